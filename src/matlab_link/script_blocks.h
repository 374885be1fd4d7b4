// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvane {

/// True when every block that a script opens ("for", "if", "while", "switch", "try", "function" and
/// their kin) is closed in it. Strings, comments, brackets (where "end" is an index) and fields
/// ("x.end") are passed over. A script with an "end" too many counts as closed: it is for the
/// engine to complain about.
bool BlocksAreClosed(std::string_view script);

/// Where the outermost block begins that is never closed, from 0; the script's size when there is
/// none.
std::size_t FindOpenBlock(std::string_view script);

}  // namespace quorvane
