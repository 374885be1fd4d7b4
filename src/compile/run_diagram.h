// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "compile/console_desktop.h"

namespace quorvane {

/// How a diagram is run.
struct EngineChoice {
    std::string Command;  ///< Starts an engine, perhaps elsewhere; "" for an Octave on the PATH
    unsigned StartLimit = 60;  ///< Seconds that it may take to become ready, 0 for any time
};

/// Runs the loaded diagram box by box in an engine, with the transcript and the answers of
/// `console`. What is printed goes to standard output as it comes; what fails becomes a line on
/// standard error. Returns the exit code.
int RunDiagram(const ConsoleDesktop& console, const EngineChoice& choice);

}  // namespace quorvane
