// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "diagram/worksheet.h"

namespace quorvane {

/// The manual's file. A name without a folder lies in the program directory; "" means that the
/// program has no manual.
extern std::string HelpFile;
extern const char* const Manual;

/// The path of the manual.
std::string ManualFile();

void mnuHelpContents_Click();
void mnuHelpHowTo_Click();
void mnuHelpSearch_Click();
/// The same from a worksheet's menu, where a missing setting or a failing viewer is reported.
void mnuHelpSearch_Click(Worksheet& sheet);

}  // namespace quorvane
