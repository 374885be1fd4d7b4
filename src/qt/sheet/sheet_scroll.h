// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRectF>

#include "diagram/worksheet.h"
#include "qt/sheet/sheet_scale.h"

namespace quorvane {

/// Scrolls a worksheet until this place, in screen units of the sheet, lies in its upper left
/// corner, as far as the bars reach.
void ScrollTo(Worksheet& sheet, QPointF corner);

/// Grows the sheet, as the bars do at their ends, until they can scroll to this place.
void GrowTo(Worksheet& sheet, QPointF corner);

/// What the boxes that show on a worksheet cover, in screen units of the client area; empty without
/// boxes.
QRectF DiagramExtent(const Worksheet& sheet);

/// Draws the selection rectangle round all boxes of a worksheet by the handlers of the mouse.
void SelectAll(Worksheet& sheet);

/// The middle button, which pans a worksheet when it is moved. In place it is an ordinary press,
/// which counts when it is let go.
class SheetPan {
public:
    SheetPan(int document, const SheetScale& scale) : document_(document), scale_(scale) {}
    void Press(QPoint at);
    /// Takes the sheet along; true while it does. Places are those of the screen.
    bool Move(QPoint at, Qt::MouseButtons held);
    /// True when the button has stayed in place since it was pressed.
    bool Release();
    bool IsMoving() const { return isMoving_; }

private:
    int document_;
    const SheetScale& scale_;
    bool isPressed_ = false;
    bool isMoving_ = false;
    QPoint pressedAt_;
    QPointF corner_;  ///< The place in the upper left corner when the sheet was taken hold of
};

}  // namespace quorvane
