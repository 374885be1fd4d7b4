// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace quorvane {

/// A problem for a run, or for MATLAB with the script of the run.
struct Finding {
    int Box = 0;         ///< The number of its box, 0 for the diagram as a whole
    std::string Type;    ///< The box's type; "" for the diagram
    std::string Text;    ///< What would happen and why
    std::string Advice;  ///< What to do about it
};

/// Finds the problems of a run of the document with this number under the current preferences, in
/// the order of the boxes; those of the whole diagram come first. When nothing is found, a run to
/// text ends without asking about a box. All state stays as it was.
std::vector<Finding> CheckDocument(int document);

}  // namespace quorvane
