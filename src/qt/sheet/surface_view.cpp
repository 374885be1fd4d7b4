// SPDX-License-Identifier: MIT
#include "qt/sheet/surface_view.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>

#include "commands/worksheet_events.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "qt/sheet/box_view.h"
#include "qt/sheet/mouse.h"
#include "qt/sheet/shape_painter.h"

namespace quorvane {

namespace {

/// Dark enough for the light arrows of a new worksheet and for the inverted rubber band, light
/// enough for the black of the heads.
const QColor sheetColor(0x4C, 0x58, 0x66);

QRect BandOf(const RectangleShape& shape) {
    if (!shape.Visible) return {};
    return {ToPixels(shape.Left), ToPixels(shape.Top), qMax(1, ToPixels(shape.Width)),
            qMax(1, ToPixels(shape.Height))};
}

bool SameShape(const DrawnShape& a, const DrawnShape& b) {
    return a.Shape == b.Shape && a.Color == b.Color && a.Width == b.Width && a.X1 == b.X1 &&
           a.Y1 == b.Y1 && a.X2 == b.X2 && a.Y2 == b.Y2 && a.Radius == b.Radius &&
           a.StartAngle == b.StartAngle && a.EndAngle == b.EndAngle;
}

}  // namespace

SurfaceView::SurfaceView(int document, QWidget* parent) : QWidget(parent), document_(document) {
    setObjectName("surface");
    setAccessibleName("Worksheet surface");
    setMouseTracking(true);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

Worksheet& SurfaceView::Sheet() const { return DocumentWindow(document_); }

void SurfaceView::Refresh() {
    const auto& sheet = Sheet();
    if (!std::equal(drawn_.begin(), drawn_.end(), sheet.Surface.begin(), sheet.Surface.end(),
                    SameShape)) {
        drawn_ = sheet.Surface;
        layerIsOld_ = true;
        update();
    }
    const auto band = BandOf(sheet.shpCopy);
    if (band != band_) {
        UpdateBand(band_);
        UpdateBand(band);
        band_ = band;
    }
    const auto shape = PointerShape(sheet.MousePointer);
    if (cursor().shape() != shape) setCursor(shape);
}

/// Only the edges of the band are painted, so only they are repainted.
void SurfaceView::UpdateBand(const QRect& band) {
    if (band.isEmpty()) return;
    constexpr int margin = 2;
    const auto outer = band.adjusted(-margin, -margin, margin, margin);
    update(QRegion(outer) - QRegion(band.adjusted(margin, margin, -margin, -margin)));
}

void SurfaceView::DrawLayer() {
    const QSize needed = size() * devicePixelRatioF();
    if (layer_.size() != needed) layer_ = QPixmap(needed);
    layer_.setDevicePixelRatio(devicePixelRatioF());
    layerIsOld_ = false;
    layer_.fill(sheetColor);
    QPainter painter(&layer_);
    PaintShapes(painter, drawn_);
}

void SurfaceView::paintEvent(QPaintEvent* event) {
    const bool fits = layer_.size() == size() * devicePixelRatioF() &&
                      layer_.devicePixelRatio() == devicePixelRatioF();
    if (layerIsOld_ || !fits) DrawLayer();
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawPixmap(0, 0, layer_);
    if (band_.isEmpty()) return;
    painter.setCompositionMode(QPainter::CompositionMode_Difference);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(band_.adjusted(0, 0, -1, -1));
}

void SurfaceView::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    Dispatch([&] {
        main_MouseDown(Sheet(), ButtonNumber(event->button()), ShiftNumber(event->modifiers()),
                       ToUnits(event->pos().x()), ToUnits(event->pos().y()));
    });
}

void SurfaceView::mouseMoveEvent(QMouseEvent* event) {
    Dispatch([&] {
        main_MouseMove(Sheet(), ButtonNumber(event->buttons()), ShiftNumber(event->modifiers()),
                       ToUnits(event->pos().x()), ToUnits(event->pos().y()));
    });
}

void SurfaceView::mouseReleaseEvent(QMouseEvent* event) {
    Dispatch([&] {
        main_MouseUp(Sheet(), ButtonNumber(event->button()), ShiftNumber(event->modifiers()),
                     ToUnits(event->pos().x()), ToUnits(event->pos().y()));
    });
}

void SurfaceView::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasFormat(DragType(BoxDrag))) event->acceptProposedAction();
}

void SurfaceView::dropEvent(QDropEvent* event) {
    if (!event->mimeData()->hasFormat(DragType(BoxDrag))) return;
    const int number = event->mimeData()->data(DragType(BoxDrag)).toInt();
    const auto at = event->position().toPoint();
    event->acceptProposedAction();
    Dispatch([&] { main_DragDrop(Sheet(), number, ToUnits(at.x()), ToUnits(at.y())); });
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
/// with Shift they draw the selection, and Enter or Space presses.
void SurfaceView::keyPressEvent(QKeyEvent* event) {
    const int step = event->modifiers() & Qt::ControlModifier ? 1 : 15;
    const bool selects = event->modifiers() & Qt::ShiftModifier;
    QPoint by;
    switch (event->key()) {
        case Qt::Key_Left: by = {-step, 0}; break;
        case Qt::Key_Right: by = {step, 0}; break;
        case Qt::Key_Up: by = {0, -step}; break;
        case Qt::Key_Down: by = {0, step}; break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space: {
            const auto at = MovePointer({});
            // Moving the pointer over the sheet runs the command that the toolbox has fired.
            Dispatch([&] {
                main_MouseMove(Sheet(), 0, 0, ToUnits(at.x()), ToUnits(at.y()));
                main_MouseDown(Sheet(), LeftButton, 0, ToUnits(at.x()), ToUnits(at.y()));
                main_MouseUp(Sheet(), LeftButton, 0, ToUnits(at.x()), ToUnits(at.y()));
            });
            return;
        }
        default: QWidget::keyPressEvent(event); return;
    }
    const auto from = MovePointer({});
    const auto to = MovePointer(by);
    Dispatch([&] {
        if (selects && !keyboardBand_) {
            main_MouseMove(Sheet(), LeftButton, 0, ToUnits(from.x()), ToUnits(from.y()));
        }
        keyboardBand_ = selects;
        main_MouseMove(Sheet(), selects ? LeftButton : 0, 0, ToUnits(to.x()), ToUnits(to.y()));
    });
}

void SurfaceView::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Shift || !keyboardBand_) return;
    keyboardBand_ = false;
    const auto at = MovePointer({});
    Dispatch([&] { main_MouseUp(Sheet(), LeftButton, 0, ToUnits(at.x()), ToUnits(at.y())); });
}

}  // namespace quorvane
