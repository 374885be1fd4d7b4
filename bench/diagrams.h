// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "diagram/box_table.h"

namespace quorvane::bench {

/// A family of diagrams, which can be made with any number of boxes from 10 to MaxBoxes.
struct Shape {
    std::string_view Name;
    std::vector<Box> (*Make)(int boxes);
};
extern const std::vector<Shape> shapes;

/// Starts the program anew with one document, number 1, that holds these boxes.
void DrawOnNewSheet(const std::vector<Box>& boxes);

/// What a run over document 1 comes to. A visit is one look at one slot of the front.
struct WalkSize {
    int Passes = 0;
    int Visits = 0;
    std::size_t ScriptBytes = 0;
};

/// Walks document 1 as the generator does, counting. Throws std::logic_error when its script
/// differs from the generator's or the walk stalls, so that the counts can't be those of another
/// walk.
WalkSize MeasureWalk();

/// A folder for the files of the benchmarks, in memory where there is such a thing. It is gone at
/// the end of the program.
const std::string& WorkFolder();

}  // namespace quorvane::bench
