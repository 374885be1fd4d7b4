// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "diagram/worksheet.h"
#include "platform/controls.h"

namespace quorvane {

/// The folder of the settings, help and toolbox files, without a separator at its end; set while
/// the program starts.
extern std::string ProgramDirectory;

/// The preferences dialog. It is never unloaded: its controls are the current preferences, which
/// all parts read. Saving them and OK reach further: their handlers are in the shell.
struct PreferencesForm {
    FormState Form = {.Caption = "Prefrences"};
    ScrollBar sclWidth = {.Value = 1, .Min = 1, .Max = 4};
    TextBox txtLineWidth = {.Text = "1"};    ///< Pen width of the arrows in every document, 1 to 4
    CheckBox chkShowBubbles = {.Value = 1};  ///< Bubbles name the boxes under the mouse
    CheckBox chkInput;  ///< Start the generator at every box without arrows into it, too
    CheckBox chkShowToolbox = {.Value = 1};        ///< The toolbox shows from the start
    TextBox txtToolbox = {.Text = "default.tlb"};  ///< A file of the program directory
    Label lbltoolboxsize;                          ///< Columns, "X", rows; "" for 3 columns
    TextBox txtDrives = {.Text = "abcdef"};        ///< A letter for each drive to scan for M-files
    Button cmdSave = {.Caption = "Save Prefrences"};
    Button cmdOK = {.Caption = "OK"};
    Button cmdCancel = {.Caption = "Cancel"};
    int DrawWidth = 1;                 ///< Pen width of the sample line, in pixels
    std::vector<DrawnShape> Surface;   ///< The sample line, at its place in the dialog
    std::int16_t RememberedWidth = 1;  ///< What Cancel puts back
    int RememberedBubbles = 1;
};
extern PreferencesForm frmPrefs;

/// Remembers what Cancel puts back, and draws the sample line.
void frmPrefs_Activate();
void frmPrefs_sclWidth_Change();
/// Corrects a text that is not a valid width, and redraws the sample line.
void frmPrefs_txtLineWidth_Change();
/// Restores line width and bubbles; the other controls keep what the user did.
void frmPrefs_cmdCancel_Click();

}  // namespace quorvane
