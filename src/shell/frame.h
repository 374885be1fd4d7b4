// SPDX-License-Identifier: MIT
#pragma once

#include "diagram/worksheet.h"

namespace quorvane {

/// The commands of the frame window; the same entries of a worksheet's menu do the same.

void mnuFileNew_Click();
void mnuFileOpen_Click();
/// Ends the program from the frame's menu, or from a worksheet's; nothing ends when the closing of
/// a worksheet is refused.
void mnuFileExit_Click();
void mnuExit_Click();
void mnuWindowsArrange_Click();
void mnuWindowsCascade_Click();
void mnuWindowsTile_Click();

void mnuFileSaveFile_Click(Worksheet& sheet);
void mnuFileSave_Click(Worksheet& sheet);

/// Closes every worksheet by its own rules and ends the program. False when one refused to close:
/// the frame stays, with the worksheets that are still open.
bool UnloadFrame();

}  // namespace quorvane
