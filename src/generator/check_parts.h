// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "generator/check_document.h"

namespace quorvane {

/// A check of one document at work. Numbers are those of boxes.
struct Check {
    int Document = 0;
    std::vector<Finding> Found;
    bool Stops = false;         ///< A finding keeps the run from its end or a box from the script
    std::vector<int> Own;       ///< The boxes of the document
    std::vector<bool> Reached;  ///< By number: the arrows lead to it from a start
};

/// Adds a finding behind those of the same box and of boxes before it.
void Report(Check& check, int box, const std::string& text, const std::string& advice);
/// A finding that explains why a run doesn't come to its end.
void ReportStop(Check& check, int box, const std::string& text, const std::string& advice);

bool IsReached(const Check& check, int box);
/// True for a number that a box of the table has.
bool IsThere(int box);
/// "box3 (Sin)"
std::string Named(int box);
/// The advice to use a "Matlab Command" box with this function.
std::string InPlace(std::string_view function);
/// The type of the heads that a box of this type calls.
std::string HeadOf(const std::string& caller);

// What a box writes: its entries, its text and the row of its type.
void CheckEntries(Check& check, int number);
void CheckText(Check& check, int number);
void CheckPickup(Check& check, int number);

// How boxes hang together.

/// A box to which no arrows lead from a start. Of a chain of them only the first is told.
void CheckUnreached(Check& check, int number);
void CheckArrows(Check& check, int number);
void CheckSubroutine(Check& check, int number);
/// What opens blocks and what closes them, in the whole document.
void CheckBlocks(Check& check);

}  // namespace quorvane
