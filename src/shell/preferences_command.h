// SPDX-License-Identifier: MIT
#pragma once

#include "diagram/worksheet.h"
#include "platform/form.h"

namespace quorvane {

/// Shows the preferences and then applies them to every open document and the toolbox, however the
/// dialog ended. The worksheet that gave the command is redrawn.
void mnuOptionsPrefs_Click(Worksheet& sheet);

/// Reloads the toolbox by its new name and size.
void frmPrefs_cmdOK_Click();
/// Writes the settings file. The dialog stays open.
void frmPrefs_cmdSave_Click();
Form frmPrefs_Table();

}  // namespace quorvane
