// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// Where the manual takes the index of the commands in.
constexpr std::string_view ManualIndexPlace = "<!-- commands -->";

/// The commands that make boxes, in the order of their menu, as rows of an HTML table: picture,
/// captions of the submenus and of the entry, and a link to the page that tells about it.
std::string ManualIndex();

}  // namespace quorvane
