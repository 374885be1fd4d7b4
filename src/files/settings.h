// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "diagram/preferences.h"

namespace quorvane {

/// The preferences are kept between runs in quorvane.ini of the program directory.

/// The lines of a settings file with the product's defaults. Nothing writes them, and a file of
/// just these lines sets nothing, since their header is not that of the section that is read.
extern const std::vector<std::string_view> settingsTemplate;

/// Takes the preferences over from the settings file and fills the menus of recent files. What the
/// file doesn't give stays as it is; "Unused Boxs for Input" is never read. Error 13 when the line
/// width begins with no digit: what stands behind it is then not read.
void ReadSettings();

/// The dialog. Its OK button also affects the toolbox, so its handler lies above both.
void frmPrefs_Load();
/// Remembers what Cancel puts back, and draws the sample line.
void frmPrefs_Activate();
void frmPrefs_sclWidth_Change();
/// Corrects a text that is not a valid width, and redraws the sample line.
void frmPrefs_txtLineWidth_Change();
/// Restores line width and bubbles; the other controls keep what the user did.
void frmPrefs_cmdCancel_Click();
/// Writes the settings file. The dialog stays.
void frmPrefs_cmdSave_Click();

}  // namespace quorvane
