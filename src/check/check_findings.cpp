// SPDX-License-Identifier: MIT
#include "check/check_findings.h"

namespace quorvane {

void Report(Check& check, int box, const std::string& text, const std::string& advice) {
    check.Found.push_back({box, box == 0 ? "" : Boxes[box].BoxType, text, advice});
}

void ReportStop(Check& check, int box, const std::string& text, const std::string& advice) {
    check.Stops = true;
    Report(check, box, text, advice);
}

bool IsReached(const Check& check, int box) { return check.Reached[static_cast<std::size_t>(box)]; }

bool IsThere(int box) { return box > 0 && box < NextBox; }

bool IsPassive(const Box& box) { return box.BoxType == "Comment" || box.BoxType == "Pickup"; }

std::string Named(int box) { return BoxName(box) + " (" + BoxOrFree(box).BoxType + ")"; }

std::string InPlace(std::string_view function) {
    return "Put a Matlab Command box in its place, with the function \"" + std::string(function) +
           "\"";
}

}  // namespace quorvane
