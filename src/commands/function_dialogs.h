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
    TextBox txtFunc;                          ///< The browser of commands writes its choice here
    CheckedArray<CheckBox, 1, 3> chkInputs;   ///< The entries that stay open
    CheckedArray<CheckBox, 1, 5> chkOutputs;  ///< The exits that stay open
    Button cmdShowFunc{"Show Functions"};
    Button cmdOK{"OK"};
};
extern MatlabFunctionForm frmMatlabFunction;
void frmMatlabFunction_Load();
/// Opens the browser of commands, which writes to txtFunc.
void frmMatlabFunction_cmdShowFunc_Click();
Form frmMatlabFunction_Table();
/// BoxText becomes "Output=" and the command in lower case; slots without a tick are locked.
void CompleteMatlabCommand(int box, const Box* former);

/// "Compute Function": a formula over Input1 to Input3, written to an output or to one cell of it.
struct FuncForm {
    FormState Form;
    TextBox txtoutput{"output"};  ///< The variable that is set; "Output" is the box itself
    TextBox txtFunc;              ///< The browser of commands appends its choice here
    /// Each serves as a button that writes its input's name into the formula.
    CheckedArray<CheckBox, 1, 3> opnInput;
    CheckBox chkcell;  ///< Only one cell of it is set
    TextBox txtRow;
    TextBox txtCol;
    Button cmdMatlab{"Select a Matlab command"};
    Button cmdOK{"OK"};
};
extern FuncForm frmFunc;
void frmFunc_Load();
/// Appends "Input" and the index, 1 to 3, to the formula and clears the tick.
void frmFunc_opnInput_Click(int Index);
/// Tick chkcell: a row or column selects one cell of the output.
void frmFunc_txtRow_Change();
void frmFunc_txtCol_Change();
/// Opens the browser of commands, which appends to txtFunc.
void frmFunc_cmdMatlab_Click();
/// Warns when a cell lacks its row or column, but hides the dialog in any case.
void frmFunc_cmdOK_Click();
Form frmFunc_Table();
/// BoxText becomes "output=formula;", with "(row,column)" after the output for a cell. Inputs that
/// the formula doesn't name are locked; when it names none, input 1 stays open and a line that
/// copies it comes first.
void CompleteFunction(int box, const Box* former);

}  // namespace quorvane
