// SPDX-License-Identifier: MIT
#include "qt/tour_view.h"

#include <QKeyEvent>

#include "qt/dispatch.h"
#include "qt/screen_units.h"
#include "shell/tour.h"

namespace quorvane {

namespace {

constexpr int Widest = 440;
constexpr int Margin = 16;

}  // namespace

TourView::TourView(int document, QWidget* parent) : QLabel(parent), document_(document) {
    setObjectName("pnlTour");
    setAccessibleName("Guided tour");
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setStyleSheet(
        "background: #fffbe0; color: #202020; border: 1px solid #807840; border-radius: 6px; "
        "padding: 12px;");
    hide();
}

/// The panel lies at the lower edge of the sheet, in its middle.
void TourView::Refresh(const TourPanel& panel) {
    const auto text = ToScreen(panel.Caption).replace("\r\n", "\n");
    if (this->text() != text) setText(text);
    if (panel.Visible) {
        const auto* sheet = parentWidget();
        const int width = qMin(Widest, sheet->width() - 2 * Margin);
        const int height = heightForWidth(width);
        setGeometry((sheet->width() - width) / 2, sheet->height() - height - Margin, width, height);
        raise();
    }
    if (isVisibleTo(parentWidget()) != panel.Visible) {
        if (hasFocus()) parentWidget()->setFocus();
        setVisible(panel.Visible);
        if (panel.Visible) setFocus();
    }
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
