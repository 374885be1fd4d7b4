// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "diagram/worksheet.h"
#include "platform/checked_array.h"

namespace quorvane {

/// Numbers of the selected boxes, from element 1 to the upper bound; element 0 holds nothing. Also
/// the work list of DeleteBoxes.
extern GrowableArray<std::int16_t> SelectedBoxes;

/// Sheet position of the selection rectangle's upper left corner when the selection ended.
extern std::int16_t SelectionLeft;
extern std::int16_t SelectionTop;

/// Shows the selection rectangle at (X, Y), or moves its edges there. The corner at which it began
/// isn't remembered: a left or upper edge stays at the farthest point reached.
void StretchSelection(Worksheet& sheet, double X, double Y);

/// Selects the boxes of this worksheet whose upper left corner lies inside the rectangle, not on
/// its edge; none while it is hidden. SelectionLeft or SelectionTop stays as it was where the
/// corner lies beyond 16 bits.
void EndSelection(Worksheet& sheet);

/// Moves the selection so that the corner of its rectangle lands at (X, Y). Error 340 for a box of
/// another document, and nothing is marked as changed then; one of this document without a control
/// stays where it is.
void MoveSelection(Worksheet& sheet, double X, double Y);

/// Copies the selection onto this worksheet, with the arrows between the selected boxes.
void CopySelection(Worksheet& sheet, double X, double Y);

/// Arms a copy of one box. The copy names the same boxes in its slots, which don't name it.
void CopyBox(Worksheet& sheet, int number);

/// Wait for the click that says where the selection goes: EditMode 5 to move, 6 to copy.
void mnuEditMove_Click(Worksheet& sheet);
void mnueditcopy_Click(Worksheet& sheet);
/// Deletes the selected boxes.
void mnuEditClear_Click(Worksheet& sheet);
/// Paints all arrows of the worksheet again.
void mnuEditRedraw_Click(Worksheet& sheet);

void ResetSelection();

}  // namespace quorvane
