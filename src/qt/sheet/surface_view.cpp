// SPDX-License-Identifier: MIT
#include "qt/sheet/surface_view.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <utility>

#include "commands/worksheet_events.h"
#include "diagram/box_table.h"
#include "diagram/selection.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "qt/sheet/mouse.h"
#include "qt/sheet/shape_painter.h"

namespace quorvane {

namespace {

constexpr int PendingWidth = 2;
constexpr int FlashWidth = 4;
constexpr int FlashMilliseconds = 600;

QRect BandOf(const RectangleShape& shape, const SheetScale& scale) {
    if (!shape.Visible) return {};
    const auto from = scale.ToPixels(shape.Left, shape.Top);
    const auto to = scale.ToPixels(shape.Left + shape.Width, shape.Top + shape.Height);
    return {from, QSize(qMax(1, to.x() - from.x()), qMax(1, to.y() - from.y()))};
}

}  // namespace

SurfaceView::SurfaceView(int document, const SheetScale& scale, QWidget* parent)
    : QWidget(parent), document_(document), scale_(scale), pan_(document, scale) {
    setObjectName("surface");
    setAccessibleName("Worksheet surface");
    setMouseTracking(true);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    flashEnd_.setSingleShot(true);
    flashEnd_.callOnTimeout(this, [this] { Mark(flashed_, 0); });
}

Worksheet& SurfaceView::Sheet() const { return DocumentWindow(document_); }

void SurfaceView::Refresh() {
    const auto& sheet = Sheet();
    auto labels = BoxLabelsOf(sheet);
    if (percent_ != scale_.Percent || !SameShapes(drawn_, sheet.Surface) || labels_ != labels) {
        percent_ = scale_.Percent;
        drawn_ = sheet.Surface;
        labels_ = std::move(labels);
        layerIsOld_ = true;
        update();
    }
    const auto band = BandOf(sheet.shpCopy, scale_);
    if (band != band_) {
        UpdateEdges(band_);
        UpdateEdges(band);
        band_ = band;
    }
    RefreshMarks();
    const auto shape = pan_.IsMoving() ? Qt::ClosedHandCursor : PointerShape(sheet.MousePointer);
    if (cursor().shape() != shape) setCursor(shape);
}

void SurfaceView::RefreshMarks() {
    const auto& sheet = Sheet();
    auto highlight = HighlightOf(sheet, hovered_);
    if (!SameHighlight(highlight_, highlight)) {
        update(RegionOf(highlight_, scale_) + RegionOf(highlight, scale_));
        highlight_ = std::move(highlight);
    }
    const auto pending = PendingFrame(sheet, scale_);
    if (pending != pending_) {
        UpdateEdges(pending_);
        UpdateEdges(pending);
        pending_ = pending;
    }
    const auto flash = FrameOf(sheet, flashed_, scale_);
    if (flash != flash_) {
        UpdateEdges(flash_);
        UpdateEdges(flash);
        flash_ = flash;
    }
}

/// The mouse leaves a box, and a flash ends, too, when the worksheet has just been closed.
void SurfaceView::Mark(int& mark, int number) {
    mark = number;
    if (document_ <= Documents.UpperBound() && Documents[document_]) RefreshMarks();
}

void SurfaceView::Hover(int number) { Mark(hovered_, number); }

void SurfaceView::Flash(int number) {
    Mark(flashed_, number);
    flashEnd_.start(FlashMilliseconds);
}

/// Only the edges of a frame are painted, so only they are repainted.
void SurfaceView::UpdateEdges(const QRect& frame) {
    if (frame.isEmpty()) return;
    constexpr int margin = FlashWidth;
    const auto outer = frame.adjusted(-margin, -margin, margin, margin);
    update(QRegion(outer) - QRegion(frame.adjusted(margin, margin, -margin, -margin)));
}

void SurfaceView::DrawLayer() {
    const QSize needed = size() * devicePixelRatioF();
    if (layer_.size() != needed) layer_ = QPixmap(needed);
    layer_.setDevicePixelRatio(devicePixelRatioF());
    layerIsOld_ = false;
    layer_.fill(SheetColor);
    QPainter painter(&layer_);
    PaintShapes(painter, drawn_, scale_);
    if (!labels_.empty()) PaintBoxLabels(painter, labels_, scale_, rect());
}

void SurfaceView::paintEvent(QPaintEvent* event) {
    const bool fits = layer_.size() == size() * devicePixelRatioF() &&
                      layer_.devicePixelRatio() == devicePixelRatioF();
    if (layerIsOld_ || !fits) DrawLayer();
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawPixmap(0, 0, layer_);
    if (!highlight_.Arrows.empty()) {
        PaintHighlight(painter, highlight_, scale_);
        PaintBoxLabels(painter, labels_, scale_, event->rect());
    }
    PaintFrame(painter, pending_, PendingWidth);
    PaintFrame(painter, flash_, FlashWidth);
    if (band_.isEmpty()) return;
    painter.setCompositionMode(QPainter::CompositionMode_Difference);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(band_.adjusted(0, 0, -1, -1));
}

/// The middle button may be about to pan: its press counts when it is let go in place.
void SurfaceView::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    NotePress(0);
    if (event->button() == Qt::MiddleButton) {
        return pan_.Press(event->globalPosition().toPoint());
    }
    TakePress(event);
}

void SurfaceView::TakePress(QMouseEvent* event) {
    const auto at = scale_.ToUnits(event->pos());
    Dispatch([&] {
        main_MouseDown(Sheet(), ButtonNumber(event->button()), ShiftNumber(event->modifiers()),
                       at.x(), at.y());
    });
}

void SurfaceView::mouseMoveEvent(QMouseEvent* event) {
    if (pan_.Move(event->globalPosition().toPoint(), event->buttons())) return;
    const auto at = scale_.ToUnits(event->pos());
    Dispatch([&] {
        main_MouseMove(Sheet(), ButtonNumber(event->buttons()), ShiftNumber(event->modifiers()),
                       at.x(), at.y());
    });
}

void SurfaceView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        if (!pan_.Release()) return Refresh();
        TakePress(event);
    }
    const auto at = scale_.ToUnits(event->pos());
    Dispatch([&] {
        main_MouseUp(Sheet(), ButtonNumber(event->button()), ShiftNumber(event->modifiers()),
                     at.x(), at.y());
    });
}

void SurfaceView::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasFormat(DragType(BoxDrag))) event->acceptProposedAction();
}

void SurfaceView::dropEvent(QDropEvent* event) {
    if (!event->mimeData()->hasFormat(DragType(BoxDrag))) return;
    const int number = event->mimeData()->data(DragType(BoxDrag)).toInt();
    const auto at = scale_.ToUnits(event->position().toPoint());
    event->acceptProposedAction();
    Dispatch([&] { main_DragDrop(Sheet(), number, at.x(), at.y()); });
}

/// Scrolling is the worksheet's.
void SurfaceView::wheelEvent(QWheelEvent* event) {
    QCoreApplication::sendEvent(parentWidget(), event);
}

QPoint SurfaceView::MovePointer(QPoint by) {
    auto at = mapFromGlobal(QCursor::pos());
    at = rect().contains(at) ? at + by : rect().center();
    at.setX(qBound(0, at.x(), width() - 1));
    at.setY(qBound(0, at.y(), height() - 1));
    QCursor::setPos(mapToGlobal(at));
    return at;
}

/// The keyboard can do what the mouse does: arrow keys move the pointer (with Ctrl by a pixel),
/// with Shift they draw the selection, and Enter or Space presses. The keys of a box come here,
/// too.
void SurfaceView::keyPressEvent(QKeyEvent* event) {
    const int step = event->modifiers() & Qt::ControlModifier ? 1 : 15;
    const bool selects = event->modifiers() & Qt::ShiftModifier;
    if (event->matches(QKeySequence::SelectAll)) return Dispatch([&] { SelectAll(Sheet()); });
    const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (event->key() == Qt::Key_Delete && isPlain) {
        return Dispatch([&] { mnuEditClear_Click(Sheet()); });
    }
    switch (event->key()) {
        case Qt::Key_Left: return MoveByKey({-step, 0}, selects);
        case Qt::Key_Right: return MoveByKey({step, 0}, selects);
        case Qt::Key_Up: return MoveByKey({0, -step}, selects);
        case Qt::Key_Down: return MoveByKey({0, step}, selects);
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space: return PressKey();
        default: QWidget::keyPressEvent(event);
    }
}

/// Moving the pointer over the sheet runs the command that the toolbox has fired. From a box that
/// was placed so, the pointer goes to the place of the next one below it.
void SurfaceView::PressKey() {
    constexpr int nextBelow = 900;
    const auto at = scale_.ToUnits(MovePointer({}));
    bool places = false;
    Dispatch([&] {
        main_MouseMove(Sheet(), 0, 0, at.x(), at.y());
        places = EditMode == 2;
        main_MouseDown(Sheet(), LeftButton, 0, at.x(), at.y());
        main_MouseUp(Sheet(), LeftButton, 0, at.x(), at.y());
    });
    if (places) MovePointer({0, scale_.ToPixels(nextBelow)});
}

void SurfaceView::MoveByKey(QPoint by, bool selects) {
    const auto from = scale_.ToUnits(MovePointer({}));
    const auto to = scale_.ToUnits(MovePointer(by));
    Dispatch([&] {
        if (selects && !keyboardBand_) {
            main_MouseMove(Sheet(), LeftButton, 0, from.x(), from.y());
        }
        keyboardBand_ = selects;
        main_MouseMove(Sheet(), selects ? LeftButton : 0, 0, to.x(), to.y());
    });
}

void SurfaceView::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Shift || !keyboardBand_) return;
    keyboardBand_ = false;
    const auto at = scale_.ToUnits(MovePointer({}));
    Dispatch([&] { main_MouseUp(Sheet(), LeftButton, 0, at.x(), at.y()); });
}

}  // namespace quorvane
