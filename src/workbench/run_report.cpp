// SPDX-License-Identifier: MIT
#include "workbench/run_report.h"

#include <algorithm>

#include "matlab_link/run_report.h"
#include "platform/numbers.h"

namespace quorvane {

int FailedBoxes() {
    const auto failed = [](const BoxReport& box) { return box.State == BoxRun::Failed; };
    return static_cast<int>(std::count_if(linkReport.Of.begin(), linkReport.Of.end(), failed));
}

std::string RunInWords() {
    if (linkReport.Box != 0) {
        // A loop's box may be sent twice.
        const auto nth = std::min(linkReport.Sent, linkReport.Total);
        return "running box " + NumberText(nth) + " of " + NumberText(linkReport.Total);
    }
    const int failed = FailedBoxes();
    if (failed == 0) return "";
    return NumberText(failed) + (failed == 1 ? " box failed" : " boxes failed");
}

}  // namespace quorvane
