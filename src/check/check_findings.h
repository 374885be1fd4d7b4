// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "check/check_document.h"
#include "diagram/box_table.h"

namespace quorvane {

/// The state of the check of one document. Numbers are those of boxes.
struct Check {
    int Document = 0;
    std::vector<Finding> Found;
    bool Stops = false;         ///< A finding that stops the run, or keeps a box out of the script
    std::vector<int> Own;       ///< The boxes of the document
    std::vector<bool> Reached;  ///< By number: the arrows lead to it from a start
    /// By number: the first feeder that isn't reached and so holds the box up; 0 for none.
    std::vector<int> UnreachedFeeder;
    std::vector<std::string_view> Words;  ///< The names in its texts, in order, once asked for
};

/// Adds a finding about a box, or with 0 about the diagram.
void Report(Check& check, int box, const std::string& text, const std::string& advice);
/// Adds a finding that explains why a run doesn't reach its end.
void ReportStop(Check& check, int box, const std::string& text, const std::string& advice);

bool IsReached(const Check& check, int box);
/// True for a number that a box of the table has.
bool IsThere(int box);
/// True for a passive box, which the walk never visits.
bool IsPassive(const Box& box);
/// "box3 (Sin)"
std::string Named(int box);
/// The advice to use a "Matlab Command" box with this function.
std::string InPlace(std::string_view function);

}  // namespace quorvane
