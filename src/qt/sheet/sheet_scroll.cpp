// SPDX-License-Identifier: MIT
#include "qt/sheet/sheet_scroll.h"

#include <QApplication>

#include "commands/worksheet_events.h"
#include "diagram/box_info.h"
#include "diagram/box_table.h"
#include "diagram/layout.h"
#include "qt/desktop/dispatch.h"

namespace quorvane {

namespace {

using Change = void (*)(Worksheet& sheet);

void SetBar(Worksheet& sheet, SheetScrollBar& bar, Change change, double wanted) {
    const auto value = static_cast<std::int16_t>(qRound(qBound<double>(bar.Min, wanted, bar.Max)));
    if (bar.Value == value) return;
    bar.Value = value;
    change(sheet);
}

void GrowBar(Worksheet& sheet, SheetScrollBar& bar, Change change, double wanted) {
    while (bar.Max < wanted) {
        const auto before = bar.Max;
        bar.Value = bar.Max;
        change(sheet);
        if (bar.Max == before) return;
    }
}

}  // namespace

void ScrollTo(Worksheet& sheet, QPointF corner) {
    SetBar(sheet, sheet.scrH, scrH_Change, corner.x());
    SetBar(sheet, sheet.scrV, scrV_Change, corner.y());
}

void GrowTo(Worksheet& sheet, QPointF corner) {
    GrowBar(sheet, sheet.scrH, scrH_Change, corner.x());
    GrowBar(sheet, sheet.scrV, scrV_Change, corner.y());
}

/// The corner in the record counts too: that of a box that was dropped lies inside its control.
QRectF DiagramExtent(const Worksheet& sheet) {
    QRectF extent;
    const auto document = DocumentNumber(sheet);
    for (int i = 1; i < NextBox; ++i) {
        const auto& box = BoxOrFree(i);
        if (box.BoxDocument != document || !sheet.box.Has(i) || !sheet.box[i].Visible) continue;
        const auto& control = sheet.box[i];
        extent |= QRectF(control.Left, control.Top, control.Width, control.Height);
        extent |= QRectF(box.BoxLeft - sheet.scrH.Value, box.BoxTop - sheet.scrV.Value, 1, 1);
    }
    return extent;
}

void SelectAll(Worksheet& sheet) {
    constexpr double margin = 5 * UnitsPerPixel;
    const auto extent = DiagramExtent(sheet);
    if (extent.isEmpty() || EditMode != 1) return;
    const QPointF from(std::floor(extent.left() - margin), std::floor(extent.top() - margin));
    const QPointF to(std::ceil(extent.right() + margin), std::ceil(extent.bottom() + margin));
    main_MouseDown(sheet, LeftButton, 0, from.x(), from.y());
    main_MouseMove(sheet, LeftButton, 0, from.x(), from.y());
    main_MouseMove(sheet, LeftButton, 0, to.x(), to.y());
    main_MouseUp(sheet, LeftButton, 0, to.x(), to.y());
}

void SheetPan::Press(QPoint at) {
    isPressed_ = true;
    isMoving_ = false;
    pressedAt_ = at;
    const auto& sheet = DocumentWindow(document_);
    corner_ = QPointF(sheet.scrH.Value, sheet.scrV.Value);
}

bool SheetPan::Move(QPoint at, Qt::MouseButtons held) {
    const auto by = at - pressedAt_;
    if (!(held & Qt::MiddleButton)) isPressed_ = isMoving_ = false;
    if (!isPressed_) return false;
    if (!isMoving_ && by.manhattanLength() < QApplication::startDragDistance()) return false;
    Dispatch([&] {
        auto& sheet = DocumentWindow(document_);
        if (!isMoving_) HideBubble(sheet);
        isMoving_ = true;
        ScrollTo(sheet, corner_ - QPointF(by) * scale_.PixelUnits());
    });
    return true;
}

bool SheetPan::Release() {
    const bool inPlace = isPressed_ && !isMoving_;
    isPressed_ = isMoving_ = false;
    return inPlace;
}

}  // namespace quorvane
