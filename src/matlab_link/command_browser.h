// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "platform/controls.h"
#include "platform/form.h"

namespace quorvane {

/// The dialog in which the user picks a MATLAB function from the index of M-files. What is picked
/// goes to the dialog that opened it.
struct MatlabForm {
    FormState Form = {.Caption = "Select a Matlab Command"};
    ComboBox cmbCategory;
    ListBox lstFunc;  ///< The paths of the M-files of the category
    Label lblHelp;    ///< The help text of the selected one
    Button cmdRescn = {.Caption = "Rescan drives"};
    Button cmdOK = {.Caption = "OK"};
    Label lblcaller = {.Caption = "mat", .Visible = false};  ///< Who opened it: "mat" or "func"
};
extern MatlabForm frmMatlab;

/// Reads the index unless that has been done, and fills the categories with those that have files.
/// Without an index the drives are scanned first. The last line of the index is never read.
void frmMatlab_Load();
/// Lists the files whose path contains that of the category, so also those of folders below it.
void frmMatlab_cmbCategory_Click();
/// Shows the first comment of the selected file, or asks whether to scan again when the file can't
/// be read. A line with commas shows a blank for each of them.
void frmMatlab_lstFunc_Click();
/// Scans the drives and lists the files of the chosen category anew. The categories of the dialog
/// stay as they were until it is opened again.
void frmMatlab_cmdRescn_Click();
/// Hands the name of the selected function, or "" when none is selected, to the caller.
void frmMatlab_cmdOK_Click();
/// The user closes the window: the caller gets nothing.
void frmMatlab_Close();
Form frmMatlab_Table();

/// Loads the dialog for a caller, "mat" or "func", with the hourglass as pointer, and shows it.
/// OpenCommandBrowser is set to this.
void ShowCommandBrowser(std::string_view caller);

}  // namespace quorvane
