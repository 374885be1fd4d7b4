// SPDX-License-Identifier: MIT
#include "qt/page_view_dialog.h"

#include <QPainter>
#include <QPushButton>

#include "diagram/page_view.h"
#include "qt/dispatch.h"
#include "qt/icon_strip.h"
#include "qt/screen_units.h"
#include "qt/shape_painter.h"

namespace quorvane {

PageViewDialog::PageViewDialog(QWidget* parent) : QDialog(parent) {
    setObjectName("frmPageView");
    setWindowTitle(ToScreen(frmPageView.Form.Caption));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint);
    // The record's size is that of the whole window; its frame and title take these parts of it.
    constexpr double frameWidth = 120, frameHeight = 420;
    setFixedSize(ToPixels(frmPageView.Width - frameWidth),
                 ToPixels(frmPageView.Height - frameHeight));
    auto* panel = new QWidget(this);
    panel->setObjectName("pnl");
    panel->setAutoFillBackground(true);
    panel->setGeometry(0, ToPixels(frmPageView.pnl.Top), width(),
                       height() - ToPixels(frmPageView.pnl.Top));
    auto* ok = new QPushButton("OK", panel);
    ok->setObjectName("cmdOK");
    ok->setDefault(true);
    ok->setGeometry(ToPixels(frmPageView.cmdOK));
    connect(ok, &QPushButton::clicked, this, [this] {
        Dispatch(frmPageView_cmdOK_Click, this);
        accept();
    });
}

void PageViewDialog::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    PaintShapes(painter, frmPageView.Surface);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const auto& boxes = frmPageView.box;
    for (int i = 0; i < boxes.Size(); ++i) {
        if (!boxes.Has(i) || !boxes[i].Visible) continue;
        const auto& box = boxes[i];
        const QRectF place(box.Left / UnitsPerPixel, box.Top / UnitsPerPixel,
                           box.Width / UnitsPerPixel, box.Height / UnitsPerPixel);
        painter.setPen(QColor(0x3A, 0x42, 0x4C));
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(place, 2, 2);
        painter.drawPixmap(place, CellPixmap(box.Picture, 32, devicePixelRatioF()), QRectF());
    }
}

void PageViewDialog::reject() {
    Dispatch(frmPageView_cmdOK_Click, this);
    QDialog::reject();
}

}  // namespace quorvane
