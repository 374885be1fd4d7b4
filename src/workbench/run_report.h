// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "matlab_link/run_report.h"

namespace quorvane {

/// What the last run left at box `number`: nothing for a box that wasn't there. A report follows
/// its box when that gets another number, goes with it, and comes back with an undo.
const BoxReport& ReportOf(int number);

/// True when type, text or feeders of the box, or of one that it hangs on, have changed since then.
bool IsOutOfDate(int number);

/// What there is to read of it, "" for nothing: the failure, or else the value.
std::string ReportInWords(int number);

/// What the last run into MATLAB left, in words: "running box 12 of 40" while it goes on, then
/// "2 boxes failed", "" when none did.
std::string RunInWords();

/// The boxes that failed in the last run and are still as they were then.
std::vector<int> FailedBoxes();

void ResetShownReports();

}  // namespace quorvane
