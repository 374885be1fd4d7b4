// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace quorvane {

/// A diagram that comes with the program.
struct Example {
    std::string Name;  ///< "damped oscillation"
    std::string File;
    std::string Line;  ///< What it shows, from the table of the examples' README; "" without one
};

/// The examples in the program directory, in the order of their README, the others behind them.
std::vector<Example> Examples();

}  // namespace quorvane
