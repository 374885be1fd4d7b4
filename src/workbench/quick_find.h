// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// Something that the field "quick" finds: a command that makes boxes, or a box.
struct QuickRow {
    std::string Text;
    std::string_view Control;  ///< The command's menu entry; "" for a box
    int Box = 0;               ///< 0 for a command
};

/// What fits the words of a text, each of which begins a word of the row, in any case; the commands
/// first. Nothing fits a text without words.
std::vector<QuickRow> FindQuick(std::string_view text);

}  // namespace quorvane
