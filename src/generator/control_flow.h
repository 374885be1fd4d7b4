// SPDX-License-Identifier: MIT
#pragma once

#include "generator/run.h"

namespace quorvane {

/// Writers of the boxes that change the walk: an opening box saves the front and starts a fresh one
/// for its block, a closing box puts the saved front back. They tell whether the box is done.

bool WriteLoop(Run& run, int box, int slot);
bool WriteNext(Run& run, int box, int slot);
bool WriteEndSubroutine(Run& run, int box, int slot);
bool WriteIf(Run& run, int box, int slot);
bool WriteEndIf(Run& run, int box, int slot);

/// "Insert Subroutine" and a name.
bool IsSubroutineCall(std::string_view type);
bool WriteSubroutineCall(Run& run, int box, int slot);

/// A name and "Subroutine".
bool IsSubroutineHead(std::string_view type);
bool WriteSubroutineHead(Run& run, int box, int slot);

}  // namespace quorvane
