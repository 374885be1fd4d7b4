// SPDX-License-Identifier: MIT
#pragma once

#include "check/check_findings.h"

namespace quorvane {

// How the boxes of a diagram hang together.

/// Follows the arrows from the start boxes on and notes what they reach.
void FindReached(Check& check);
/// A box to which no arrows lead from a start. Of a chain of them only the first is told.
void CheckUnreached(Check& check, int number);
void CheckArrows(Check& check, int number);
void CheckSubroutine(Check& check, int number);
/// What opens blocks and what closes them, in the whole document.
void CheckBlocks(Check& check);

}  // namespace quorvane
