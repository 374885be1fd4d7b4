// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "diagram/worksheet.h"

namespace quorvane {

/// A row of the panel "Boxes": a worksheet, or one of its boxes below it.
struct OutlineRow {
    int Document = 0;
    int Box = 0;       ///< 0 for the worksheet itself
    std::string Name;  ///< "box3", or the worksheet's caption without its folder
    std::string Type;
    std::string Text;  ///< On one line
    std::string From;  ///< The boxes that feed its entries, "box1, box2"
    std::string To;    ///< The boxes that it feeds
};

/// The open worksheets with their boxes, by their numbers. With a filter, the boxes of which a cell
/// holds that text, in any case, and the worksheets that have such boxes.
std::vector<OutlineRow> Outline(std::string_view filter);

/// Selects the box alone and deletes it as the menu does.
void DeleteBox_Key(int number);

}  // namespace quorvane
