// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "catalogue/option_lists.h"

namespace quorvane {

/// What the box of an option writes, with boxes 1 to 3 at its open entries: made by its dialog's OK
/// and the generator on records that are put back. The dialog's field counts as it stands while it
/// is open, else with its default. Lines are separated by CR LF; "" for a box that writes none.
std::string LineOfOption(const OptionList& list, const ListOption& option);

/// The tool tip of an option: its line, and what GNU Octave says where it refuses that.
std::string TipOfOption(const OptionList& list, const ListOption& option);

}  // namespace quorvane
