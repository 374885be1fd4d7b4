// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvane {

/// True when every block that a script opens ("for", "if", "while", "switch", "try", "function" and
/// the like) is closed in it. Strings, comments, brackets (where "end" is an index) and fields
/// ("x.end") are skipped. A script with an "end" too many counts as closed: the engine will
/// complain about it.
bool BlocksAreClosed(std::string_view script);

/// The position, from 0, of the outermost block that is never closed; the script's size when there
/// is none.
std::size_t FindOpenBlock(std::string_view script);

}  // namespace quorvane
