// SPDX-License-Identifier: MIT
#include "qt/sheet/tour_view.h"

#include <QKeyEvent>
#include <QPainter>

#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "shell/tour.h"

namespace quorvane {

namespace {

constexpr int Widest = 440;
constexpr int Padding = 12;
constexpr int Gap = 16;  ///< Between the panel and the edges of the sheet
constexpr int NarrowGap = 3;
constexpr int CountPixels = 10;
constexpr int SmallestPoints = 6;

}  // namespace

TourView::TourView(int document, QWidget* parent) : QLabel(parent), document_(document) {
    setObjectName("pnlTour");
    setAccessibleName("Guided tour");
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setStyleSheet(
        "background: #fffbe0; color: #202020; border: 1px solid #807840; border-radius: 6px;");
    hide();
}

/// Puts the panel in the middle of the sheet's lower edge. On a low sheet it takes the whole width,
/// and its text shrinks until it fits.
void TourView::Fit(const QSize& sheet) {
    int gap = Gap;
    int width = qMin(Widest, sheet.width() - 2 * gap);
    auto font = parentWidget()->font();
    setMargin(Padding);
    setFont(font);
    const auto fits = [&] { return heightForWidth(width) <= sheet.height() - 2 * gap; };
    if (!fits()) {
        gap = NarrowGap;
        setMargin(NarrowGap);
        width = sheet.width() - 2 * gap;
    }
    while (!fits() && font.pointSize() > SmallestPoints) {
        font.setPointSize(font.pointSize() - 1);
        setFont(font);
    }
    const int height = heightForWidth(width);
    const int top = qMax(0, sheet.height() - height - gap);
    setGeometry((sheet.width() - width) / 2, top, width, height);
}

void TourView::Refresh(const TourPanel& panel) {
    const auto text = ToScreen(panel.Caption).replace("\r\n", "\n");
    const auto sheet = parentWidget()->size();
    if (panel.Visible && (this->text() != text || fitted_ != sheet)) {
        setText(text);
        count_ = ToScreen(TourCount(panel));
        setAccessibleDescription(count_);
        Fit(sheet);
        fitted_ = sheet;
    }
    if (panel.Visible) raise();
    if (isVisibleTo(parentWidget()) != panel.Visible) {
        if (hasFocus()) parentWidget()->setFocus();
        setVisible(panel.Visible);
        if (panel.Visible) setFocus();
    }
}

/// The count stands in the lower margin, which a low sheet doesn't leave.
void TourView::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (count_.isEmpty() || margin() < Padding) return;
    QPainter painter(this);
    auto small = font();
    small.setPixelSize(CountPixels);
    painter.setFont(small);
    painter.setPen(QColor(0x6A, 0x62, 0x30));
    painter.drawText(rect().adjusted(0, 0, -Padding, -2), Qt::AlignRight | Qt::AlignBottom, count_);
}

void TourView::GoOn() {
    Dispatch([this] { pnlTour_Click(DocumentWindow(document_)); });
}

void TourView::mousePressEvent(QMouseEvent*) { GoOn(); }

void TourView::keyPressEvent(QKeyEvent* event) {
    const auto key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
        GoOn();
    } else {
        QLabel::keyPressEvent(event);
    }
}

}  // namespace quorvane
