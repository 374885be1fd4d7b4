// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace quorvane {

/// The number of the box that wrote each line of a script.
using LineBoxes = std::vector<std::int16_t>;

/// The link to a running MATLAB as a run uses it. The program sets it to the real link
/// (matlab_link/link.h) when it starts; until then its calls do nothing. The command line sets it
/// to a printer.
struct LinkDoor {
    /// Error 282 when nothing answers, as for Execute.
    std::function<void()> Open = [] {};
    std::function<void(const std::string& script, const LineBoxes& boxes)> Execute =
        [](const std::string&, const LineBoxes&) {};
    /// What was printed for the last Execute.
    std::function<std::string()> Request = [] { return ""; };
    /// Ends a run, which has `come` to its end or was aborted; returns a note for the log, or "".
    std::function<std::string(bool come)> Finish = [](bool) { return ""; };
    /// The command "Start Matlab".
    std::function<void()> StartMatlab = [] {};
    /// A run of so many boxes begins.
    std::function<void(int boxes)> Begin = [](int) {};
    /// The user has closed the program meanwhile: the run is given up without a word.
    std::function<bool()> IsLeft = [] { return false; };
};
extern LinkDoor matlabLink;

}  // namespace quorvane
