// SPDX-License-Identifier: MIT
#pragma once

#include "diagram/box_table.h"
#include "platform/checked_array.h"
#include "platform/form.h"

namespace quorvane {

/// The dialogs of the boxes that hold a formula or name a command of MATLAB. Each Complete routine
/// runs its dialog for the armed box of that number, packs the fields into BoxText and opens the
/// slots that are used.

/// "Matlab Command": a command by its name, and the slots that it has.
struct MatlabFunctionForm {
    FormState Form;
    TextBox txtFunc;  ///< The browser of commands writes its choice here
    CheckedArray<CheckBox, 1, 3> chkInputs;
    CheckedArray<CheckBox, 1, 5> chkOutputs;
    Button cmdShowFunc{"Show Functions"};
    Button cmdOK{"OK"};
};
extern MatlabFunctionForm frmMatlabFunction;
void frmMatlabFunction_Load();
void frmMatlabFunction_cmdShowFunc_Click();
Form frmMatlabFunction_Table();
void CompleteMatlabCommand(int box, const Box* former);

/// "Compute Function": a formula over Input1 to Input3, written to an output or to one cell of it.
struct FuncForm {
    FormState Form;
    TextBox txtoutput{"output"};
    TextBox txtFunc;  ///< The browser of commands appends its choice here
    /// Each serves as a button that writes its input's name into the formula.
    CheckedArray<CheckBox, 1, 3> opnInput;
    CheckBox chkcell;
    TextBox txtRow;
    TextBox txtCol;
    Button cmdMatlab{"Select a Matlab command"};
    Button cmdOK{"OK"};
};
extern FuncForm frmFunc;
void frmFunc_Load();
void frmFunc_opnInput_Click(int Index);
void frmFunc_txtRow_Change();
void frmFunc_txtCol_Change();
void frmFunc_cmdMatlab_Click();
/// Warns when a cell lacks its row or column, but hides the dialog in any case.
void frmFunc_cmdOK_Click();
Form frmFunc_Table();
void CompleteFunction(int box, const Box* former);

}  // namespace quorvane
