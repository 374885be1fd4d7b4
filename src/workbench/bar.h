// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "diagram/worksheet.h"

namespace quorvane {

/// What stands on the frame's bar beside its buttons, and what its keys do.

/// Tells the user something that calls for no answer. It stands on the bar until the next step or
/// mode, or for some seconds.
void Say(const std::string& text);

/// The state in words: what was said, what is pending, what could not be saved, what is selected,
/// how many findings this document has if they are wanted, or how to begin on it; 0 is no document,
/// and "" says nothing.
std::string BarState(int document, bool withFindings);

/// Opens the dialog of a box for a change, and says so where it has none. What is pending is given
/// up first.
void ChangeBox_Key(Worksheet& sheet, int number);

/// Begins an arrow at a box, as the command and a click on the box do. What is pending is given up
/// first.
void ArrowFrom_Key(Worksheet& sheet, int number);

void ResetBar();

}  // namespace quorvane
