// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace quorvane {

/// Something that would trouble a run or MATLAB behind it.
struct Finding {
    int Box = 0;         ///< The number of its box, 0 for the diagram as a whole
    std::string Type;    ///< The box's type; "" for the diagram
    std::string Text;    ///< What would happen and why
    std::string Advice;  ///< What to do about it
};

/// Looks for what would trouble a run of the document with this number, with the preferences as
/// they are, and tells it in the order of the boxes; the diagram as a whole comes first. When
/// nothing is found, a run to text comes to its end without asking about a box. Everything is left
/// as it was.
std::vector<Finding> CheckDocument(int document);

}  // namespace quorvane
