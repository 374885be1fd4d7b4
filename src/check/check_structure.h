// SPDX-License-Identifier: MIT
#pragma once

#include "check/check_findings.h"

namespace quorvane {

// How the boxes of a diagram are connected.

/// Follows the arrows from the start boxes on and notes what they reach.
void FindReached(Check& check);
/// Reports a box that no arrows from a start lead to. Of a chain of them only the first is
/// reported.
void CheckUnreached(Check& check, int number);
void CheckArrows(Check& check, int number);
void CheckSubroutine(Check& check, int number);
/// Checks the boxes that open and close blocks, in the whole document.
void CheckBlocks(Check& check);

}  // namespace quorvane
