// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "diagram/box_table.h"
#include "platform/checked_array.h"
#include "platform/form.h"

namespace quorvane {

/// The dialogs of the boxes that make and cut matrices. Each Complete routine runs its dialog for
/// the armed box of that number and packs the fields, as typed, into BoxText.

/// "Vector Make Input": a linearly spaced vector.
struct MakeVectorForm {
    FormState Form = {.Caption = "Make Vector"};
    TextBox txtMin{"1"};
    TextBox txtStep{"1"};
    TextBox txtMax{"1"};
    Button cmdOK{"OK"};
};
extern MakeVectorForm frmMakeVector;
Form frmMakeVector_Table();
/// BoxText becomes "[min:step:max];".
void CompleteMakeVector(int box, const Box* former);

/// "Matrix Make Input": the size of a matrix and what fills it. Option1 stands outside the array,
/// so that taking it leaves the index clicked before.
struct MakeMatForm {
    FormState Form;
    TextBox txtRows{"1"};
    TextBox txtCols{"1"};
    CheckedArray<OptionButton, 0, 3> opn;
    OptionButton Option1{.Caption = "Normaly Distibuted Random Numbers"};
    std::string txtOpn = "0";  ///< The index last clicked, as decimal text
    Button cmdOK{"OK"};
};
extern MakeMatForm frmMakeMat;
void frmMakeMat_Load();
/// Remembers the index, 0 to 3, of what fills the matrix.
void frmMakeMat_opn_Click(int Index);
Form frmMakeMat_Table();
/// BoxText becomes "zeros(rows,columns)", or the like for another filling.
void CompleteMakeMat(int box, const Box* former);

/// "Split": a range of rows or columns.
struct SplitForm {
    FormState Form;
    OptionButton row{.Caption = "Row"};
    OptionButton Col{.Caption = "Column"};
    TextBox txtFrom;
    TextBox txtTo;
    Button cmdOK{"OK"};
};
extern SplitForm frmSplit;
void frmSplit_Load();
/// Sets an empty start of the range to 1.
void frmSplit_txtTo_Change();
Form frmSplit_Table();
/// BoxText becomes "Colfrom:to"; an empty bound is 1.
void CompleteSplit(int box, const Box* former);

}  // namespace quorvane
