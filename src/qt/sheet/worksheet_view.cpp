// SPDX-License-Identifier: MIT
#include "qt/sheet/worksheet_view.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QScrollBar>
#include <QToolButton>

#include "catalogue/icon_table.h"
#include "diagram/box_info.h"
#include "diagram/box_table.h"
#include "diagram/connections.h"
#include "diagram/layout.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/icon_strip.h"
#include "qt/desktop/screen_units.h"
#include "qt/sheet/box_view.h"
#include "qt/sheet/shape_painter.h"
#include "qt/sheet/sheet_scroll.h"
#include "qt/sheet/surface_view.h"
#include "qt/sheet/tour_view.h"
#include "workbench/history.h"
#include "workbench/live_script.h"

namespace quorvane {

namespace {

/// What a notch of the wheel moves the sheet by: somewhat more than a box.
constexpr int NotchUnits = 600;

/// The face of pnlArrow: the line colour with an edge that softens it, and the arrow while multiple
/// arrows are on.
QIcon ArrowPanelFace(const ArrowPanel& panel, const QSize& size, qreal ratio) {
    QPixmap face(size * ratio);
    face.setDevicePixelRatio(ratio);
    face.fill(Qt::transparent);
    const auto color = ColorOf(panel.BackColor);
    auto edge = QColor(color.lightness() < 128 ? Qt::white : Qt::black);
    edge.setAlphaF(0.5F);
    QPainter painter(&face);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(edge);
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF({}, size).adjusted(0.5, 0.5, -0.5, -0.5), 2, 2);
    if (panel.HoldsArrow) {
        const int side = qMin(size.width(), size.height());
        painter.drawPixmap((size.width() - side) / 2, 0,
                           CellPixmap(IconCell("Arrow"), side, ratio));
    }
    return face;
}

QPointF CornerOf(const Worksheet& sheet) { return QPointF(sheet.scrH.Value, sheet.scrV.Value); }

/// Boxes with some room round them.
QRectF Framed(const QRectF& boxes) {
    constexpr double margin = 10 * UnitsPerPixel;
    return boxes.isEmpty() ? boxes : boxes.adjusted(-margin, -margin, margin, margin);
}

/// Where a view of this size has to start, as near as possible to `start`, to show all from one
/// edge to the other, or nothing else where that is more than it can show.
double KeepInView(double start, double size, double from, double to) {
    return qBound(qMin(from, to - size), start, qMax(from, to - size));
}

/// The steps move the picture by as many pixels at each scale.
void FollowRecord(QScrollBar* bar, const SheetScrollBar& record, const SheetScale& scale) {
    const QSignalBlocker quiet(bar);
    bar->setGeometry(ToPixels(record.Place));
    bar->setRange(record.Min, record.Max);
    bar->setSingleStep(qCeil(record.SmallChange / scale.Factor()));
    bar->setPageStep(qCeil(record.LargeChange / scale.Factor()));
    bar->setValue(record.Value);
}

}  // namespace

WorksheetView::WorksheetView(int document) : document_(document) {
    setObjectName("main");
    surface_ = new SurfaceView(document, scale_, this);
    bubble_ = new QLabel(surface_);
    bubble_->setObjectName("txtboxname");
    bubble_->setTextFormat(Qt::PlainText);
    bubble_->setAttribute(Qt::WA_TransparentForMouseEvents);
    bubble_->setStyleSheet(
        "background: #fffbe0; color: #202020; border: 1px solid #807840; padding: 1px 4px;");
    bubble_->hide();
    tour_ = new TourView(document, surface_);
    MakeBars();
    setFocusProxy(surface_);
    setMinimumSize(220, 120);
}

void WorksheetView::MakeBars() {
    gauge_ = new QProgressBar(this);
    gauge_->setObjectName("pnlResource");
    gauge_->setAccessibleName("Boxes in use");
    gauge_->setToolTip("The share of the 350 boxes that are in use");
    gauge_->setAlignment(Qt::AlignCenter);
    arrowPanel_ = new QToolButton(this);
    arrowPanel_->setObjectName("pnlArrow");
    arrowPanel_->setAccessibleName("Multiple arrows");
    arrowPanel_->setToolTip(
        "The colour of new boxes' arrows. Press it to join boxes by clicks alone, "
        "and again to stop");
    scrH_ = new QScrollBar(Qt::Horizontal, this);
    scrH_->setObjectName("scrH");
    scrH_->setAccessibleName("Scroll sideways");
    scrV_ = new QScrollBar(Qt::Vertical, this);
    scrV_->setObjectName("scrV");
    scrV_->setAccessibleName("Scroll up and down");
    // Dragging the thumb reports only the final value, so that the sheet grows once.
    for (auto* bar : {scrH_, scrV_}) {
        bar->setTracking(false);
        bar->installEventFilter(this);
    }
    corner_ = new QWidget(this);
    corner_->setObjectName("pctblank");
    connect(arrowPanel_, &QToolButton::clicked, this,
            [this] { Dispatch([this] { pnlArrow_Click(Sheet()); }); });
    connect(scrH_, &QScrollBar::valueChanged, this, [this](int value) {
        Dispatch([&] {
            Sheet().scrH.Value = static_cast<std::int16_t>(value);
            scrH_Change(Sheet());
        });
    });
    connect(scrV_, &QScrollBar::valueChanged, this, [this](int value) {
        Dispatch([&] {
            Sheet().scrV.Value = static_cast<std::int16_t>(value);
            scrV_Change(Sheet());
        });
    });
}

void WorksheetView::resizeEvent(QResizeEvent*) {
    DispatchLayout([this] {
        Sheet().ScaleWidth = ToUnits(width());
        Sheet().ScaleHeight = ToUnits(height());
        main_Resize(Sheet());
    });
}

/// A notch of the wheel moves the sheet by as much on both axes; with Shift it moves sideways. What
/// a fine wheel turns beyond a whole unit counts with its next turn.
void WorksheetView::wheelEvent(QWheelEvent* event) {
    event->accept();
    if (event->modifiers() & Qt::ControlModifier) return ZoomByWheel(event);
    auto turn = event->angleDelta();
    if (event->modifiers() & Qt::ShiftModifier && turn.x() == 0) turn = turn.transposed();
    turned_ += turn * qRound(NotchUnits / scale_.Factor());
    const QPoint units = turned_ / QWheelEvent::DefaultDeltasPerStep;
    turned_ -= units * QWheelEvent::DefaultDeltasPerStep;
    if (units.x() != 0) scrH_->setValue(scrH_->value() - units.x());
    if (units.y() != 0) scrV_->setValue(scrV_->value() - units.y());
}

/// The bars' own steps are for their arrows; the wheel does the same over a bar as over the sheet.
bool WorksheetView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel) return QWidget::eventFilter(watched, event);
    wheelEvent(static_cast<QWheelEvent*>(event));
    return true;
}

/// The keys that the sheet and its boxes don't use scroll, with Shift sideways.
void WorksheetView::keyPressEvent(QKeyEvent* event) {
    auto* bar = event->modifiers() & Qt::ShiftModifier ? scrH_ : scrV_;
    const int seen = bar == scrH_ ? surface_->width() : surface_->height();
    const int page = static_cast<int>(scale_.ToUnits(seen) - NotchUnits / scale_.Factor());
    switch (event->key()) {
        case Qt::Key_PageUp: return bar->setValue(bar->value() - page);
        case Qt::Key_PageDown: return bar->setValue(bar->value() + page);
        case Qt::Key_Home: return bar->setValue(bar->minimum());
        case Qt::Key_End: return bar->setValue(bar->maximum());
        default: QWidget::keyPressEvent(event);
    }
}

void WorksheetView::ShowBox(int number) {
    const auto show = [](QScrollBar* bar, int place, int seen) {
        constexpr int room = 600;  // somewhat more than a box
        const int last = place + 2 * room - seen;
        bar->setValue(qMax(qMin(bar->value(), place - room / 2), last));
    };
    show(scrH_, Boxes[number].BoxLeft, static_cast<int>(scale_.ToUnits(surface_->width())));
    show(scrV_, Boxes[number].BoxTop, static_cast<int>(scale_.ToUnits(surface_->height())));
    auto* box = boxes_.size() > static_cast<std::size_t>(number)
                    ? boxes_[static_cast<std::size_t>(number)]
                    : nullptr;
    if (box) box->setFocus(Qt::ShortcutFocusReason);
    surface_->Flash(number);
}

/// With Ctrl the wheel zooms, a step for each notch; the place under the mouse stays.
void WorksheetView::ZoomByWheel(const QWheelEvent* event) {
    zoomTurned_ += event->angleDelta().y();
    const int notches = zoomTurned_ / QWheelEvent::DefaultDeltasPerStep;
    zoomTurned_ -= notches * QWheelEvent::DefaultDeltasPerStep;
    auto zoomed = scale_;
    for (int i = 0; i < notches; ++i) zoomed.Percent = zoomed.NextStep();
    for (int i = 0; i > notches; --i) zoomed.Percent = zoomed.StepBefore();
    if (zoomed.Percent == scale_.Percent) return;
    const auto at = surface_->mapFromGlobal(event->globalPosition());
    const auto place = CornerOf(Sheet()) + at * scale_.PixelUnits();
    Dispatch([&] { Rescale(zoomed.Percent, place - at * zoomed.PixelUnits()); });
}

/// Shows the sheet at this scale, with this place in the upper left corner if the bars reach it.
/// What scrolling takes away stays: this is none to the user.
void WorksheetView::Rescale(int percent, QPointF corner) {
    auto& sheet = Sheet();
    auto band = sheet.shpCopy;
    const auto before = CornerOf(sheet);
    scale_.Percent = percent;
    HideBubble(sheet);
    ScrollTo(sheet, corner);
    const auto moved = CornerOf(sheet) - before;
    band.Left -= moved.x();
    band.Top -= moved.y();
    if (band.Visible) sheet.shpCopy = band;
}

void WorksheetView::SetZoom(int percent) {
    SheetScale scale;
    scale.Percent = qBound(SmallestZoom, percent, LargestZoom);
    if (scale.Percent == scale_.Percent) return;
    const auto corner = CornerOf(Sheet());
    const QRectF view(corner, QSizeF(surface_->size()) * scale_.PixelUnits());
    const auto boxes = Framed(DiagramExtent(Sheet())).translated(corner);
    const auto seen = view & boxes;
    const auto middle = boxes.isEmpty() ? corner : (seen.isEmpty() ? view : seen).center();
    const auto at = (middle - corner) / scale_.PixelUnits();
    auto wanted = middle - at * scale.PixelUnits();
    if (!seen.isEmpty()) {
        const auto next = QSizeF(surface_->size()) * scale.PixelUnits();
        wanted.setX(KeepInView(wanted.x(), next.width(), boxes.left(), boxes.right()));
        wanted.setY(KeepInView(wanted.y(), next.height(), boxes.top(), boxes.bottom()));
    }
    Dispatch([&] { Rescale(scale.Percent, wanted); });
}

void WorksheetView::ZoomIn() { SetZoom(scale_.NextStep()); }
void WorksheetView::ZoomOut() { SetZoom(scale_.StepBefore()); }

void WorksheetView::ZoomToDiagram() {
    if (DiagramExtent(Sheet()).isEmpty()) return SetZoom(100);
    const auto boxes = Framed(DiagramExtent(Sheet())).translated(CornerOf(Sheet()));
    const QSizeF seen = surface_->size();
    const int fit = static_cast<int>(
        100 * UnitsPerPixel * qMin(seen.width() / boxes.width(), seen.height() / boxes.height()));
    SheetScale scale;
    scale.Percent = qBound(SmallestZoom, fit, 100);
    const QPointF middle(seen.width() / 2, seen.height() / 2);
    const auto corner =
        fit < SmallestZoom ? boxes.topLeft() : boxes.center() - middle * scale.PixelUnits();
    Dispatch([&] {
        GrowTo(Sheet(), corner);
        Rescale(scale.Percent, corner);
    });
}

void WorksheetView::Refresh() {
    const auto title = ToScreen(Sheet().Caption);
    if (windowTitle() != title) setWindowTitle(title);
    RefreshBars();
    surface_->Refresh();
    RefreshBoxes();
    RefreshBubble();
    RefreshMarks();
    tour_->Refresh(Sheet().pnlTour);
}

void WorksheetView::RefreshBars() {
    const auto& sheet = Sheet();
    gauge_->setGeometry(ToPixels(sheet.pnlResource.Place));
    gauge_->setValue(qRound(sheet.pnlResource.Value));
    const auto place = ToPixels(sheet.pnlArrow.Place);
    const QString state =
        QString("%1 %2").arg(sheet.pnlArrow.BackColor).arg(sheet.pnlArrow.HoldsArrow);
    if (arrowPanel_->geometry() != place || arrowPanel_->property("shown") != state) {
        const QSize face = place.size() - QSize(8, 6);
        arrowPanel_->setGeometry(place);
        arrowPanel_->setIconSize(face);
        arrowPanel_->setIcon(ArrowPanelFace(sheet.pnlArrow, face, devicePixelRatioF()));
        arrowPanel_->setProperty("shown", state);
    }
    FollowRecord(scrH_, sheet.scrH, scale_);
    FollowRecord(scrV_, sheet.scrV, scale_);
    corner_->setGeometry(ToPixels(sheet.pctblank));
    surface_->setGeometry(0, 0, scrV_->x(), scrH_->y());
}

void WorksheetView::RefreshBoxes() {
    const auto& controls = Sheet().box;
    const auto needed = static_cast<std::size_t>(controls.Size());
    if (boxes_.size() < needed) boxes_.resize(needed, nullptr);
    // Tab goes from the sheet to the boxes by their numbers, and then to the bars.
    QWidget* before = surface_;
    for (int i = 1; i < static_cast<int>(boxes_.size()); ++i) {
        auto*& view = boxes_[static_cast<std::size_t>(i)];
        if (!controls.Has(i)) {
            if (view) view->deleteLater();
            if (view) view->hide();
            view = nullptr;
            continue;
        }
        if (!view) {
            view = new BoxView(document_, i, surface_);
            setTabOrder(before, view);
        }
        view->Refresh(controls[i]);
        before = view;
    }
}

/// Marks the boxes where the last run failed, and those with findings as long as the panel that
/// lists them is open. A press of the mouse puts off the check.
void WorksheetView::RefreshMarks() {
    const int wanted = showsFindings ? HistoryChanges() : -1;
    findings_.resize(boxes_.size());
    if (checked_ != wanted && QGuiApplication::mouseButtons() == Qt::NoButton) {
        checked_ = wanted;
        for (std::size_t i = 1; i < findings_.size(); ++i) {
            findings_[i] = showsFindings ? FindingsOfBox(static_cast<int>(i)) : "";
        }
    }
    for (std::size_t i = 1; i < boxes_.size(); ++i) {
        if (boxes_[i]) boxes_[i]->SetMarks(findings_[i]);
    }
}

void WorksheetView::RefreshBubble() {
    const auto& bubble = Sheet().txtboxname;
    const auto text = ToScreen(bubble.Caption);
    const bool shows = bubble.Visible && !text.isEmpty();
    const auto place = scale_.ToPixels(bubble.Left, bubble.Top);
    if (shows && (bubble_->text() != text || bubble_->pos() != place || !bubble_->isVisible())) {
        bubble_->setText(text);
        bubble_->adjustSize();
        bubble_->move(place);
        bubble_->raise();
    }
    if (bubble_->isVisibleTo(surface_) != shows) bubble_->setVisible(shows);
}

}  // namespace quorvane
