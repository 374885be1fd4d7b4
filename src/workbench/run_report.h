// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace quorvane {

/// What the last run into MATLAB left, in words: "running box 12 of 40" while it goes on, then
/// "2 boxes failed", "" when none did. linkReport (matlab_link/run_report.h) holds it box by box.
std::string RunInWords();

/// How many boxes failed in the last run.
int FailedBoxes();

}  // namespace quorvane
