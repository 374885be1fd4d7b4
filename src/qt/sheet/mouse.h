// SPDX-License-Identifier: MIT
#pragma once

#include <QMouseEvent>

namespace quorvane {

/// The handlers' numbers for a mouse button, for all buttons that are held, and for the modifier
/// keys.
int ButtonNumber(Qt::MouseButtons buttons);
int ShiftNumber(Qt::KeyboardModifiers modifiers);

/// The MIME type of a drag within this process. Box numbers mean nothing to another Quorvane, which
/// has another type.
inline const QString BoxDrag = "box";  ///< A box of a worksheet; the data is its number
QString DragType(const QString& what);

}  // namespace quorvane
