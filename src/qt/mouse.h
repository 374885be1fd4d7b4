// SPDX-License-Identifier: MIT
#pragma once

#include <QMouseEvent>

namespace quorvane {

/// The button and shift numbers that the handlers know, of one button and of all that are held.
int ButtonNumber(Qt::MouseButtons buttons);
int ShiftNumber(Qt::KeyboardModifiers modifiers);

}  // namespace quorvane
