// SPDX-License-Identifier: MIT
#pragma once

#include "diagram/worksheet.h"

namespace quorvane {

/// What the mouse does on a worksheet: on its own surface, "main", and on one of its boxes. Places
/// are screen units in the client area.

/// Bits of a mouse button; a press names one, a move those that are down.
constexpr int LeftButton = 1;
constexpr int RightButton = 2;
constexpr int MiddleButton = 4;

/// Bits of the keys that are held.
constexpr int ShiftKey = 1;
constexpr int CtrlKey = 2;
constexpr int AltKey = 4;

/// Places the armed box, or moves or copies the selection. Every press removes the selection
/// rectangle, which counts as a change.
void main_MouseDown(Worksheet& sheet, int Button, int Shift, double X, double Y);

/// Runs the command that the toolbox left for the first worksheet under the mouse; draws the
/// selection rectangle while the left button is down; hides the bubble.
void main_MouseMove(Worksheet& sheet, int Button, int Shift, double X, double Y);

/// Selects what lies in the selection rectangle.
void main_MouseUp(Worksheet& sheet, int Button, int Shift, double X, double Y);

/// Box `number` was dropped on the surface with its centre at (X, Y). Its record keeps that point,
/// so that a later scroll moves the box by half its size.
void main_DragDrop(Worksheet& sheet, int number, double X, double Y);

/// A click with the left button: a step of an arrow, or a copy.
void box_Click(Worksheet& sheet, int number);

/// The right button alone switches dragging on and off; with a key, and the middle button, it opens
/// the box's information.
void box_MouseDown(Worksheet& sheet, int number, int Button, int Shift);
/// Shows the bubble of the box under the pointer.
void box_MouseMove(Worksheet& sheet, int number);

}  // namespace quorvane
