// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// The place in the manual for the index of the commands.
constexpr std::string_view ManualIndexPlace = "<!-- commands -->";

/// The commands that make boxes, in the order of their menu, as rows of an HTML table: picture,
/// captions of the submenus and of the entry, and a link to the page that describes it.
std::string ManualIndex();

}  // namespace quorvane
