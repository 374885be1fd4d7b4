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

/// Writes the settings file anew.
void WriteSettings();

}  // namespace quorvane
