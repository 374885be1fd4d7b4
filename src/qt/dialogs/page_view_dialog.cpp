// SPDX-License-Identifier: MIT
#include "qt/dialogs/page_view_dialog.h"

#include <QPainter>
#include <QPushButton>

#include "diagram/box_table.h"
#include "diagram/page_view.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/icon_strip.h"
#include "qt/desktop/screen_units.h"
#include "qt/sheet/shape_painter.h"

namespace quorvane {

namespace {

constexpr QColor SeenColor(0x2A, 0x7B, 0xC8);
constexpr QColor EdgeColor(0x9A, 0xA0, 0xA6);

QRect InPixels(const Area& area, int zoom) {
    const double units = UnitsPerPixel * zoom / 100.0;
    return {qRound(area.Left / UnitsPerPixel), qRound(area.Top / UnitsPerPixel),
            qRound(area.Width / units), qRound(area.Height / units)};
}

/// A hairline around what is too pale to be seen on the page.
void PaintOutlines(QPainter& painter) {
    constexpr int palest = 170;
    std::vector<DrawnShape> pale;
    for (auto shape : frmPageView.Surface) {
        if (qGray(ColorOf(shape.Color).rgb()) < palest) continue;
        shape.Color = ColorNumber(EdgeColor);
        pale.push_back(shape);
    }
    PaintShapes(painter, pale, {}, 2);
}

/// A box at small scale; its edges needn't be on whole pixels.
class PageBox : public QWidget {
public:
    PageBox(int number, const BoxControl& box, QWidget* dialog)
        : QWidget(dialog),
          place_(box.Left / UnitsPerPixel, box.Top / UnitsPerPixel, box.Width / UnitsPerPixel,
                 box.Height / UnitsPerPixel),
          picture_(box.Picture) {
        setObjectName(QString("box(%1)").arg(number));
        setAccessibleName(ToScreen(BoxName(number) + " " + BoxOrFree(number).BoxType));
        setGeometry(place_.toAlignedRect().adjusted(0, 0, 1, 1));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setPen(QColor(0x3A, 0x42, 0x4C));
        painter.setBrush(Qt::white);
        const auto place = place_.translated(-pos());
        painter.drawRoundedRect(place, 2, 2);
        painter.drawPixmap(place, CellPixmap(picture_, 32, devicePixelRatioF()), QRectF());
    }

private:
    QRectF place_;
    int picture_;
};

}  // namespace

PageViewDialog::PageViewDialog(int zoom, QWidget* parent) : QDialog(parent), zoom_(zoom) {
    setObjectName("frmPageView");
    setWindowTitle(ToScreen(frmPageView.Form.Caption));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint);
    // The record's size is that of the whole window; its frame and title take these parts of it.
    constexpr double frameWidth = 120, frameHeight = 420;
    setFixedSize(ToPixels(frmPageView.Width - frameWidth),
                 ToPixels(frmPageView.Height - frameHeight));
    const auto& boxes = frmPageView.box;
    for (int i = 0; i < boxes.Size(); ++i) {
        if (boxes.Has(i) && boxes[i].Visible) new PageBox(i, boxes[i], this);
    }
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
    constexpr int shade = 110;
    painter.fillRect(rect(), palette().color(QPalette::Window).darker(shade));
    const auto page = InPixels(frmPageView.Page, 100);
    painter.fillRect(page, Qt::white);
    painter.setPen(EdgeColor);
    painter.drawRect(page);
    painter.setPen(QPen(SeenColor, 1, Qt::DashLine));
    painter.drawRect(InPixels(frmPageView.Seen, zoom_) & page.adjusted(1, 1, -1, -1));
    PaintOutlines(painter);
    PaintShapes(painter, frmPageView.Surface);
}

void PageViewDialog::reject() {
    Dispatch(frmPageView_cmdOK_Click, this);
    QDialog::reject();
}

}  // namespace quorvane
