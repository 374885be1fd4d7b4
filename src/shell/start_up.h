// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace quorvane {

/// The splash. The screen shows it while Form.Visible; a click or a key closes it.
struct SplashForm {
    FormState Form;
    Label lblProductName;
    Label lblVersion;
};
extern SplashForm frmSplash;

void frmSplash_Load();
void frmSplash_Frame1_Click();
void frmSplash_KeyPress();
Form frmSplash_Table();

/// Changes to the user's data folder when the settings file that the launcher makes is there and
/// the current directory has none.
void GoToSettings();

/// Starts the program: shows the splash for 3 seconds, finds the program directory, reads the
/// settings and brings up the toolbox. A current directory without a settings file makes the user
/// choose the program directory; when that one has none either, the preferences stay as designed.
/// Throws nothing: a failing step is skipped.
void StartProgram();

}  // namespace quorvane
