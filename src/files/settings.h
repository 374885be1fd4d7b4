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

/// Reads the preferences from the settings file and fills the menus of recent files. What the file
/// doesn't hold stays as it is; "Unused Boxs for Input" is never read. Error 13 when the line width
/// doesn't begin with a digit: nothing after it is then read.
void ReadSettings();

/// Writes all preferences to the settings file. What can't be written is not reported.
void WriteSettings();

}  // namespace quorvane
