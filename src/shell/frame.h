// SPDX-License-Identifier: MIT
#pragma once

#include "diagram/worksheet.h"

namespace quorvane {

/// The commands of the frame window; the same entries of a worksheet's menu do the same.

void mnuFileNew_Click();
void mnuFileOpen_Click();
/// End the program from the frame's menu and from a worksheet's, with the help viewer. The program
/// stays when a worksheet refuses to close; the frame's command has then already closed the toolbox
/// and the results window.
void mnuFileExit_Click();
void mnuExit_Click();
void mnuWindowsArrange_Click();
void mnuWindowsCascade_Click();
void mnuWindowsTile_Click();

void mnuFileSaveFile_Click(Worksheet& sheet);
void mnuFileSave_Click(Worksheet& sheet);

/// Closes every worksheet by its own rules, then the toolbox, and ends the program. False when a
/// worksheet refused to close: the frame stays, with what is still open.
bool UnloadFrame();

}  // namespace quorvane
