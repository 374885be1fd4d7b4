// SPDX-License-Identifier: MIT
#include "qt/sheet/box_view.h"

#include <QApplication>
#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <array>
#include <map>

#include "commands/worksheet_events.h"
#include "diagram/box_table.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/icon_strip.h"
#include "qt/desktop/screen_units.h"
#include "qt/sheet/mouse.h"

namespace quorvane {

namespace {

QPixmap DrawFace(int cell, int side, bool focused, qreal ratio) {
    QPixmap face(QSize(side, side) * ratio);
    face.setDevicePixelRatio(ratio);
    face.fill(Qt::transparent);
    QPainter painter(&face);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(focused ? QColor(0xFF, 0xB3, 0x00) : QColor(0x3A, 0x42, 0x4C), focused ? 2 : 1));
    painter.setBrush(PaperColor);
    painter.drawRoundedRect(QRectF(0.5, 0.5, side - 1, side - 1), 4, 4);
    painter.drawPixmap(QPointF(1.5, 1.5), CellPixmap(cell, side - 3, ratio));
    return face;
}

/// A box as it looks on the screen. Faces are drawn once for each cell, state and resolution: a
/// full worksheet paints hundreds of them at a time.
QPixmap Face(int cell, int side, bool focused, qreal ratio) {
    static std::map<std::array<int, 4>, QPixmap> drawn;
    auto& face = drawn[{cell, side, focused ? 1 : 0, qRound(ratio * 100)}];
    if (face.isNull()) face = DrawFace(cell, side, focused, ratio);
    return face;
}

}  // namespace

BoxView::BoxView(int document, int number, QWidget* surface)
    : QWidget(surface), document_(document), number_(number) {
    setObjectName(QString("box(%1)").arg(number));
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
}

Worksheet& BoxView::Sheet() const { return DocumentWindow(document_); }

void BoxView::Refresh(const BoxControl& control) {
    const QRect place(ToPixels(control.Left), ToPixels(control.Top), ToPixels(control.Width),
                      ToPixels(control.Height));
    if (geometry() != place) setGeometry(place);
    if (picture_ != control.Picture) {
        picture_ = control.Picture;
        update();
    }
    if (pointer_ != control.MousePointer) {
        pointer_ = control.MousePointer;
        pointer_ == PointerDefault ? unsetCursor() : setCursor(PointerShape(pointer_));
    }
    if (dragAutomatic_ != control.DragAutomatic) {
        dragAutomatic_ = control.DragAutomatic;
        update();
    }
    const auto& type = BoxOrFree(number_).BoxType;
    if (accessibleName().isEmpty() || type_ != type) {
        type_ = type;
        setAccessibleName(ToScreen(BoxName(number_) + " " + type));
    }
    if (isVisibleTo(parentWidget()) != control.Visible) {
        setVisible(control.Visible);
        if (control.Visible) raise();
    }
}

void BoxView::paintEvent(QPaintEvent*) {
    QPainter(this).drawPixmap(0, 0, Face(picture_, width(), hasFocus(), devicePixelRatioF()));
}

void BoxView::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    pressedAt_ = event->pos();
    Dispatch([&] {
        box_MouseDown(Sheet(), number_, ButtonNumber(event->button()),
                      ShiftNumber(event->modifiers()));
    });
}

/// A double click is one click: its second press does nothing.
void BoxView::mouseDoubleClickEvent(QMouseEvent*) {}

void BoxView::mouseMoveEvent(QMouseEvent* event) {
    if (pressed_ && dragAutomatic_) {
        const auto moved = (event->pos() - pressedAt_).manhattanLength();
        if (moved >= QApplication::startDragDistance()) StartDrag();
        return;
    }
    Dispatch([&] { box_MouseMove(Sheet(), number_); });
}

void BoxView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !pressed_) return;
    pressed_ = false;
    if (!dragAutomatic_ && rect().contains(event->pos())) Click();
}

void BoxView::Click() {
    Dispatch([&] { box_Click(Sheet(), number_); });
}

/// Enter or Space clicks the box; with Shift they open its information.
void BoxView::keyPressEvent(QKeyEvent* event) {
    const auto key = event->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (event->modifiers() & Qt::ShiftModifier) {
        Dispatch([&] { box_MouseDown(Sheet(), number_, MiddleButton, 0); });
    } else {
        Click();
    }
}

void BoxView::StartDrag() {
    pressed_ = false;
    auto* drag = new QDrag(this);
    auto* carried = new QMimeData;
    carried->setData(DragType(BoxDrag), QByteArray::number(number_));
    drag->setMimeData(carried);
    drag->setPixmap(grab());
    drag->setHotSpot(rect().center());
    drag->exec(Qt::MoveAction);
}

}  // namespace quorvane
