// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "catalogue/option_lists.h"
#include "diagram/box_table.h"
#include "platform/checked_array.h"
#include "platform/form.h"

namespace quorvane {

/// Rows of the longest list.
constexpr int MaxOptions = 14;

/// The record that all these dialogs share: only one is open at a time.
struct OptionListForm {
    FormState Form;
    const OptionList* List = nullptr;
    CheckedArray<OptionButton, 0, MaxOptions - 1> Options;  ///< By their rows in the list
    std::string txtOpn;   ///< The index last clicked, as decimal text
    TextBox Field;        ///< The further field that holds text
    CheckBox chkElement;  ///< The further field that is a tick
    Button cmdOK;
};
extern OptionListForm frmOptionList;

/// An option that was picked before its dialog opens, nullptr for none. The dialog then shows only
/// when the option needs the further field.
extern const ListOption* pickedBeforehand;

/// Fills the form from a list, with the option selected that OK would take.
void frmOptionList_Load(const OptionList& list);
/// A click on the option in this row of the list.
void frmOptionList_Option_Click(int row);
/// In frmConst selects the field's option, and clears a text that is no number.
void frmOptionList_Field_Change();
/// Hides the form, unless the constant of frmConst lacks its value.
void frmOptionList_cmdOK_Click();
/// The form of a list, named after its dialog.
Form OptionList_Table(const OptionList& list);

/// Runs the dialog of a list for a box and writes what the picked option says; false when none was
/// picked, which only the arithmetic operators allow. For a box that is changed `former` is what it
/// was, and its option stands selected.
bool RunOptionList(const OptionList& list, Box& box, const Box* former);

}  // namespace quorvane
