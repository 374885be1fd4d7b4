// SPDX-License-Identifier: MIT
#include "qt/desktop/svg_icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace quorvane {

namespace {

class SvgIconEngine : public QIconEngine {
public:
    SvgIconEngine(const QString& file, const QColor& ground) : file_(file), ground_(ground) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        constexpr double faint = 0.35;
        if (mode == QIcon::Disabled) painter->setOpacity(faint);
        painter->fillRect(rect, ground_);
        painter->setRenderHint(QPainter::Antialiasing);
        QSvgRenderer drawing(file_);
        drawing.setAspectRatioMode(Qt::KeepAspectRatio);
        drawing.render(painter, QRectF(rect));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap drawn(size);
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        paint(&painter, drawn.rect(), mode, state);
        return drawn;
    }
    QIconEngine* clone() const override { return new SvgIconEngine(*this); }

private:
    QString file_;
    QColor ground_;
};

}  // namespace

QIcon SvgIcon(const QString& name, const QColor& ground) {
    return QIcon(new SvgIconEngine(":/" + name + ".svg", ground));
}

}  // namespace quorvane
