// SPDX-License-Identifier: MIT
#include "qt/sheet/box_view.h"

#include <QApplication>
#include <QCache>
#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QToolTip>
#include <utility>

#include "commands/worksheet_events.h"
#include "diagram/box_info.h"
#include "diagram/box_table.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/icon_strip.h"
#include "qt/desktop/screen_units.h"
#include "qt/sheet/mouse.h"
#include "qt/sheet/surface_view.h"
#include "workbench/bar.h"
#include "workbench/run_report.h"

namespace quorvane {

namespace {

constexpr int PlainSide = 33;  ///< Of a box at its own size, in pixels

/// The outline and the rounding grow with the box; the outline stays on whole pixels.
QPixmap DrawFace(int cell, int side, bool focused, qreal ratio) {
    const int line = qMax(1, side / PlainSide);
    const double rounding = 4.0 * side / PlainSide;
    QPixmap face(QSize(side, side) * ratio);
    face.setDevicePixelRatio(ratio);
    face.fill(Qt::transparent);
    QPainter painter(&face);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(focused ? FocusColor : QColor(0x3A, 0x42, 0x4C), focused ? 2 * line : line));
    painter.setBrush(PaperColor);
    painter.drawRoundedRect(QRectF(line / 2.0, line / 2.0, side - line, side - line), rounding,
                            rounding);
    painter.drawPixmap(QPointF(1.5, 1.5) * line, CellPixmap(cell, side - 3 * line, ratio));
    return face;
}

constexpr QColor FindingColor(0xD9, 0x5B, 0x0E);
constexpr QColor FailureColor(0xC6, 0x20, 0x2E);
constexpr QColor OldFailureColor(0x80, 0x80, 0x80);
constexpr QColor RunningColor(0x2F, 0x94, 0x48);

/// The tool tip with the value comes soon.
class BoxStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* more) const override {
        constexpr int milliseconds = 500;
        if (hint == SH_ToolTip_WakeUpDelay) return milliseconds;
        return QProxyStyle::styleHint(hint, option, widget, more);
    }
};

/// That of all boxes; the application owns it.
QStyle* StyleOfBoxes() {
    static QPointer<BoxStyle> style;
    if (!style) {
        style = new BoxStyle;
        style->setParent(qApp);
    }
    return style;
}

/// A frame round the box that MATLAB works at.
void PaintRunning(QPainter& painter, int side) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(RunningColor, 3));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(1.5, 1.5, side - 3, side - 3), 4, 4);
}

/// An exclamation mark on a disc in the upper right corner.
void PaintMark(QPainter& painter, int side, const QColor& color) {
    const double disc = qMax(8.0, side * 0.36);
    const QRectF place(side - disc, 0, disc, disc);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1));
    painter.setBrush(color);
    painter.drawEllipse(place.adjusted(0.5, 0.5, -0.5, -0.5));
    const double x = place.center().x();
    painter.setPen(QPen(Qt::white, disc / 6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(x, disc * 0.26), QPointF(x, disc * 0.54));
    painter.drawPoint(QPointF(x, disc * 0.76));
}

/// A box as it looks on the screen. Faces are drawn once for each cell, state, size and resolution:
/// a full worksheet paints hundreds of them at a time. Those not seen for long are dropped.
QPixmap Face(int cell, int side, bool focused, qreal ratio) {
    constexpr int largestMemory = 16 << 20;
    static QCache<QList<int>, QPixmap> drawn(largestMemory);
    const QList<int> key = {cell, side, focused ? 1 : 0, qRound(ratio * 100)};
    if (const auto* face = drawn.object(key)) return *face;
    auto face = DrawFace(cell, side, focused, ratio);
    drawn.insert(key, new QPixmap(face), face.width() * face.height() * 4);
    return face;
}

/// No arrow, box or group waits for the next click.
bool IsIdle(const Worksheet& sheet) { return EditMode == 1 && !sheet.pnlArrow.HoldsArrow; }

}  // namespace

BoxView::BoxView(int document, int number, SurfaceView* surface)
    : QWidget(surface), document_(document), number_(number), surface_(surface) {
    setObjectName(QString("box(%1)").arg(number));
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setStyle(StyleOfBoxes());
}

Worksheet& BoxView::Sheet() const { return DocumentWindow(document_); }

void BoxView::Refresh(const BoxControl& control) {
    const auto& scale = surface_->Scale();
    const QRect place(scale.ToPixels(control.Left, control.Top),
                      QSize(scale.ToPixels(control.Width), scale.ToPixels(control.Height)));
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

void BoxView::SetMarks(const std::string& finding) {
    const auto run = ReportOf(number_).State;
    const bool isOld = IsOutOfDate(number_);
    auto left = ReportInWords(number_);
    if (finding_ == finding && run_ == run && isOld_ == isOld && left_ == left) return;
    finding_ = finding;
    run_ = run;
    isOld_ = isOld;
    left_ = std::move(left);
    QStringList lines;
    for (const auto* text : {&left_, &finding_}) {
        if (!text->empty()) lines.append(ToScreen(*text));
    }
    setToolTip(lines.join('\n'));
    setAccessibleDescription(lines.join(". "));
    update();
}

/// The tool tip stands below the bubble.
bool BoxView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || toolTip().isEmpty()) return QWidget::event(event);
    constexpr int apart = 8;
    QToolTip::showText(mapToGlobal(QPoint(width(), height() + apart)), toolTip(), this);
    return true;
}

void BoxView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, Face(picture_, width(), hasFocus(), devicePixelRatioF()));
    if (run_ == BoxRun::Running) PaintRunning(painter, width());
    if (run_ == BoxRun::Failed && !isOld_) {
        PaintMark(painter, width(), FailureColor);
    } else if (!finding_.empty()) {
        PaintMark(painter, width(), FindingColor);
    } else if (run_ == BoxRun::Failed) {
        PaintMark(painter, width(), OldFailureColor);
    }
}

/// The middle button may be about to pan: its press counts when it is let go in place.
void BoxView::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    pressedAt_ = event->pos();
    surface_->NotePress(pressed_ && IsIdle(Sheet()) ? number_ : 0);
    if (event->button() == Qt::MiddleButton) {
        return surface_->Pan().Press(event->globalPosition().toPoint());
    }
    Dispatch([&] {
        box_MouseDown(Sheet(), number_, ButtonNumber(event->button()),
                      ShiftNumber(event->modifiers()));
    });
}

/// A double click opens the information, but is one click where a click means something. Its first
/// half must have been on this box: the click that places a box has it under the mouse at once.
void BoxView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) return mousePressEvent(event);
    const bool isSecond = surface_->LastPress() == number_;
    surface_->NotePress(0);
    if (event->button() != Qt::LeftButton || !isSecond) return;
    Dispatch([&] { OpenBoxInfo(Sheet(), number_); });
}

void BoxView::mouseMoveEvent(QMouseEvent* event) {
    const auto at = event->globalPosition().toPoint();
    if (surface_->Pan().Move(at, event->buttons())) return;
    if (pressed_ && dragAutomatic_) {
        const auto moved = (event->pos() - pressedAt_).manhattanLength();
        if (moved >= QApplication::startDragDistance()) StartDrag();
        return;
    }
    Dispatch([&] { box_MouseMove(Sheet(), number_); });
}

void BoxView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        if (!surface_->Pan().Release()) return surface_->Refresh();
        return Dispatch([&] {
            box_MouseDown(Sheet(), number_, MiddleButton, ShiftNumber(event->modifiers()));
        });
    }
    if (event->button() != Qt::LeftButton || !pressed_) return;
    pressed_ = false;
    if (!dragAutomatic_ && rect().contains(event->pos())) Click();
}

void BoxView::enterEvent(QEnterEvent*) { surface_->Hover(number_); }
void BoxView::leaveEvent(QEvent*) { surface_->Hover(0); }

void BoxView::Click() {
    Dispatch([&] { box_Click(Sheet(), number_); });
}

/// Enter or Space clicks the box; with Shift they open its information. "A" begins an arrow here.
void BoxView::keyPressEvent(QKeyEvent* event) {
    const auto key = event->key();
    if (key == Qt::Key_A && event->modifiers() == Qt::NoModifier) {
        return Dispatch([&] { ArrowFrom_Key(Sheet(), number_); });
    }
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
