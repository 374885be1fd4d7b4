// SPDX-License-Identifier: MIT
#pragma once

#include <QMouseEvent>

namespace quorvane {

/// The button and shift numbers that the handlers know, of one button and of all that are held.
int ButtonNumber(Qt::MouseButtons buttons);
int ShiftNumber(Qt::KeyboardModifiers modifiers);

/// The type of what is dragged within this program. Another Quorvane, whose numbers mean something
/// else here, has another type.
inline const QString BoxDrag = "box";  ///< A box of a worksheet; the data is its number
QString DragType(const QString& what);

}  // namespace quorvane
