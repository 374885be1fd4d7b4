// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "diagram/worksheet.h"

namespace quorvane {

/// A box comes to life in two steps: a command arms it, and the next click on a worksheet places
/// it.

/// Clears record NextBox, loads its hidden control on this worksheet and arms it: the caller then
/// writes record NextBox - 1. With a box armed already nothing happens, so that the caller retypes
/// it. Only EditMode 1, 6 and 7 count the new box; in 0 and 5 the caller's writes fall on the last
/// box in use, and in 3 and 4 on the one before it. With all boxes in use it tells so, and the
/// writes fall on box 349. What fails is skipped.
void AddBox(Worksheet& sheet);

/// Puts the armed box with its corner at (X, Y) of this worksheet's client area, out of whatever
/// document it was armed in, and marks this document as changed.
void PlaceArmedBox(Worksheet& sheet, double X, double Y);

/// Gives a control the picture of an icon key.
void GiveIcon(BoxControl& control, std::string_view key);

}  // namespace quorvane
