// SPDX-License-Identifier: MIT
#pragma once

#include "generator/run.h"

namespace quorvane {

/// Writers of the boxes that change the walk: an opening box saves the front and starts a fresh one
/// for its block, a closing box puts the saved front back. They tell whether the box is done.

bool WriteLoop(Run& run, int box, int slot);
bool WriteNext(Run& run, int box, int slot);
bool WriteEndSubroutine(Run& run, int box, int slot);
/// The arms that a box opens by its first exits: 0 when it isn't an "If", else 1 or, with "else" at
/// the beginning of its text, 2.
int ArmCount(const Box& box);
/// The text of an "If" without that "else".
std::string_view ConditionOf(const Box& box);
bool WriteIf(Run& run, int box, int slot);
bool WriteEndIf(Run& run, int box, int slot);

/// "Insert Subroutine" and a name.
bool IsSubroutineCall(std::string_view type);
/// The type of the heads that a call of this type writes: its name and "Subroutine".
std::string CalledHead(std::string_view call);
bool WriteSubroutineCall(Run& run, int box, int slot);

/// A name and "Subroutine".
bool IsSubroutineHead(std::string_view type);
bool WriteSubroutineHead(Run& run, int box, int slot);

}  // namespace quorvane
