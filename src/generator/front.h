// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "platform/checked_array.h"

namespace quorvane {

/// The processing front: the boxes that wait to be emitted, by slot; 0 is an empty slot. Slots run
/// from 1 to frontWidth. Slot 0 is never visited: it carries the "If" box of an open first arm, or
/// in a subroutine's frame the box that feeds the call.
extern GrowableArray<std::int16_t> Front;

/// The highest slot in use. It starts at 5, grows in steps of 5, and no run takes it back.
extern std::int16_t frontWidth;

/// One saved front for each open loop, branch arm or subroutine call, in frames 1 to nestingDepth.
extern GrowableArray<GrowableArray<std::int16_t>> FrameStack;

/// The number of frames, and the depth of indentation. A pop outside the stack takes it below 0.
extern std::int16_t nestingDepth;

/// True when slots 1 to frontWidth are all 0. The answer also stands in EditMode, as 1 or 0.
bool IsFrontEmpty();

/// Puts a box in the lowest free slot, unless it is in a slot already. A negative number is
/// ignored; 0 counts as present while a slot is free. With no free slot the front grows by 5.
void AddToFront(std::int16_t box);

/// Removes a slot: the slots behind it move down by one.
void RemoveFromFront(int slot);

/// True when every box that feeds `box` is done. On the way every "Pickup" that feeds it writes its
/// line to `scriptText` and counts as done, at each call anew. Error 9 for a number outside the
/// table.
bool InputsReady(std::string& scriptText, int box);

/// The first feeder of `box` that isn't done, 0 for none. Error 9 for a number outside the table.
int UndoneFeeder(int box);

/// True when no other box of the front could be emitted instead of `box`.
bool NoOtherBoxReady(int box);

/// Saves the front in a new frame and clears it. `sparedSlot` stays in the front and is not saved;
/// -1 spares none. Outside the stack saving is error 9, and under the ignore policy the front is
/// cleared without being saved.
void PushFront(ErrorPolicy policy, int sparedSlot);

/// Puts the front of the last frame back; what was in the front is lost. Error 9 outside the stack,
/// where only the depth falls.
void PopFront();

/// A frame of the stack; error 9 outside it.
GrowableArray<std::int16_t>& Frame(int number);

/// Makes a front of frontWidth empty slots and no frames.
void ClearFront();

/// Sets the width back to 5, as at the start of the program.
void ResetFront();

}  // namespace quorvane
