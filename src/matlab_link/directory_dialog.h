// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "matlab_link/find_engines.h"
#include "platform/controls.h"
#include "platform/form.h"

namespace quorvane {

/// The dialog that asks for a folder. The process's current directory follows the user through the
/// folders. There is no Cancel: the folder that was entered last is the answer, even if the user
/// just closes the window.
struct DirectoryForm {
    FormState Form = {.Caption = "Quorvane"};
    Label lblTop = {.Caption = "Please locate the Quorvane directory"};  ///< The question
    Label lblEngines = {.Caption = "Found on this computer:", .Visible = false};
    ListBox lstEngines = {.Visible = false,
                          .Needed = false};  ///< The rows of Engines; only for MATLAB's folder
    std::vector<FoundEngine> Engines;
    TextBox txtPath;  ///< The chosen folder, to be typed too
    /// The folder was picked among the engines or typed, and not gone to by the lists.
    bool IsPicked = false;
    ComboBox Drive1;  ///< The drives, as "C:"; empty, and not shown, where there are none
    ComboBox Dir1;    ///< The path, and below it where to go from there: ".." and the subfolders
    TextBox director = {.Visible = false};  ///< The result: the chosen folder
    Button cmdOK = {.Caption = "OK"};
};
extern DirectoryForm frmDirectory;

/// Begins in the current directory.
void frmDirectory_Load();
/// Lists the engines that are here. The one that was picked and started last is picked again.
void frmDirectory_OfferEngines();
void frmDirectory_lstEngines_Click();
/// Takes what is typed as the answer, whether it is there or not, and goes there when it is a
/// folder. An engine's program stands for the folder above its "bin".
void frmDirectory_txtPath_Change();
void frmDirectory_Drive1_Change();
/// Goes to the path, or to the entry of the list, that the text of Dir1 names. Nothing happens as
/// long as it names none. In a folder whose first settings file is the program's own, the dialog
/// accepts by itself, provided that its question is capitalised, which that of no caller is.
void frmDirectory_Dir1_Change();
void frmDirectory_cmdOK_Click();
/// Keeps a folder as the one to be picked again.
void RememberEngine(const std::string& folder);
Form frmDirectory_Table();

}  // namespace quorvane
