// SPDX-License-Identifier: MIT
#include "qt/desktop/icon_strip.h"

#include <QCache>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <utility>

namespace quorvane {

namespace {

QPixmap Draw(int cell, int devicePixels) {
    const auto name = QString(":/icons/%1.svg").arg(cell, 3, 10, QChar('0'));
    if (!QFile::exists(name)) return {};
    QSvgRenderer renderer(name);
    QPixmap pixmap(devicePixels, devicePixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    return pixmap;
}

}  // namespace

QPixmap CellPixmap(int cell, int pixels, qreal devicePixelRatio) {
    constexpr int largestMemory = 16 << 20;
    static QCache<std::pair<int, int>, QPixmap> drawn(largestMemory);
    const int devicePixels = qRound(pixels * devicePixelRatio);
    const auto* known = drawn.object({cell, devicePixels});
    auto pixmap = known ? *known : Draw(cell, devicePixels);
    if (!known)
        drawn.insert({cell, devicePixels}, new QPixmap(pixmap), 4 * devicePixels * devicePixels);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

QPixmap CellOnPaper(int cell, int pixels, qreal devicePixelRatio) {
    QPixmap paper(QSize(pixels, pixels) * devicePixelRatio);
    paper.setDevicePixelRatio(devicePixelRatio);
    paper.fill(Qt::transparent);
    QPainter painter(&paper);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(PaperColor);
    painter.drawRoundedRect(QRectF(0, 0, pixels, pixels), pixels / 8.0, pixels / 8.0);
    painter.drawPixmap(0, 0, CellPixmap(cell, pixels, devicePixelRatio));
    return paper;
}

}  // namespace quorvane
