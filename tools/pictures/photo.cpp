// SPDX-License-Identifier: MIT
// Takes windows from the off-screen desktop, which gives them no titles, and puts them together.
#include "photo.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionTitleBar>
#include <QWidget>
#include <algorithm>

#include "player.h"

namespace quorvane {

QImage figure;

namespace {

constexpr int Edge = 1;
constexpr int TitleHeight = 24;
static_assert(TitleAndEdges == QSize(2 * Edge, TitleHeight + Edge));

struct Shot {
    QPixmap Pixels;
    QPoint At;  ///< On the screen
    QRect Place() const { return {At, Pixels.deviceIndependentSize().toSize()}; }
};

QPixmap Blank(const QSize& size) {
    const auto ratio = qApp->devicePixelRatio();
    QPixmap pixels(size * ratio);
    pixels.setDevicePixelRatio(ratio);
    pixels.fill(QApplication::palette().color(QPalette::Window));
    return pixels;
}

void PaintTitle(QPainter& painter, const QRect& place, const QString& text, Qt::WindowFlags flags) {
    QStyleOptionTitleBar bar;
    bar.rect = place;
    bar.text = text;
    bar.palette = QApplication::palette();
    bar.icon = QApplication::windowIcon();
    bar.subControls = QStyle::SC_All;
    bar.titleBarFlags = flags;
    bar.titleBarState = Qt::WindowActive;
    bar.state = QStyle::State_Active | QStyle::State_Enabled;
    QApplication::style()->drawComplexControl(QStyle::CC_TitleBar, &bar, &painter);
}

/// A window's inside with title and edges.
Shot Framed(const QPixmap& inside, QPoint at, const QString& title, bool isMain) {
    const auto size = inside.deviceIndependentSize().toSize();
    Shot shot{Blank(size + TitleAndEdges), at - QPoint(Edge, TitleHeight)};
    QPainter painter(&shot.Pixels);
    Qt::WindowFlags flags =
        Qt::Window | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowSystemMenuHint;
    if (isMain) flags |= Qt::WindowMinMaxButtonsHint;
    PaintTitle(painter, QRect(0, 0, size.width() + 2 * Edge, TitleHeight), title, flags);
    painter.drawPixmap(Edge, TitleHeight, inside);
    painter.setPen(QApplication::palette().color(QPalette::Shadow));
    painter.drawRect(QRectF(0.5, 0.5, size.width() + 2 * Edge - 1, size.height() + TitleHeight));
    return shot;
}

QString TitleOf(const QWidget& window) { return QString(window.windowTitle()).replace("[*]", ""); }

Shot ShotOf(QWidget& window) {
    const auto inside = window.grab();
    const auto at = window.mapToGlobal(QPoint());
    const auto type = window.windowType();
    const bool hasTitle = window.isWindow() && type != Qt::Popup && type != Qt::ToolTip &&
                          type != Qt::SplashScreen && !TitleOf(window).isEmpty();
    if (!hasTitle) return {inside, at};
    return Framed(inside, at, TitleOf(window), type == Qt::Window);
}

/// Where the mouse is, in the shape that the control below gives it.
Shot PointerShot() {
    const auto* under = QApplication::widgetAt(QCursor::pos());
    const bool isCross = under && under->cursor().shape() == Qt::CrossCursor;
    constexpr int side = 25, middle = side / 2;
    Shot shot{Blank({side, side}), QCursor::pos() - QPoint(middle, middle)};
    shot.Pixels.fill(Qt::transparent);
    QPainter painter(&shot.Pixels);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isCross) {
        for (const auto& pen : {QPen(Qt::black, 3), QPen(Qt::white, 1)}) {
            painter.setPen(pen);
            painter.drawLine(QPointF(middle + 0.5, 2), QPointF(middle + 0.5, side - 2));
            painter.drawLine(QPointF(2, middle + 0.5), QPointF(side - 2, middle + 0.5));
        }
        return shot;
    }
    painter.translate(middle, middle);
    painter.setPen(QPen(Qt::white, 1.2));
    painter.setBrush(Qt::black);
    painter.drawPolygon(QPolygonF(
        {{0, 0}, {0, 11.5}, {2.6, 9.2}, {4.4, 12.3}, {6.2, 11.4}, {4.6, 8.2}, {8.2, 8.0}}));
    return shot;
}

QList<Shot> ShotsOf(const QString& name) {
    QList<Shot> shots;
    if (name == "pointer") return {PointerShot()};
    if (name == "figure") {
        const auto* frame = Seek("frmMDI");
        const auto inside = QPixmap::fromImage(figure);
        const QPoint margin(16, 30);
        const auto corner = frame->mapToGlobal(frame->rect().bottomRight());
        return {Framed(inside, corner - inside.rect().bottomRight() - margin, "Figure 1", true)};
    }
    for (auto* window : QApplication::topLevelWidgets()) {
        const bool isMenu = name == "menus" && qobject_cast<QMenu*>(window);
        const bool isTip = name == "tip" && window->windowType() == Qt::ToolTip;
        if ((isMenu || isTip) && window->isVisible()) shots.append(ShotOf(*window));
    }
    // A menu stands at the right of the one that opened it.
    std::sort(shots.begin(), shots.end(),
              [](const Shot& one, const Shot& other) { return one.At.x() < other.At.x(); });
    if (shots.isEmpty()) {
        auto* window = Seek(name);
        if (!window) Fail("there is no " + name + " to be seen");
        shots.append(ShotOf(*window));
    }
    return shots;
}

void PaintShadow(QPainter& painter, const QRect& place) {
    constexpr int depth = 6, alpha = 14;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, alpha));
    for (int i = 1; i <= depth; ++i) {
        painter.drawRoundedRect(place.adjusted(-i, 2 - i, i, 2 + i), i, i);
    }
}

constexpr int SheetWidth = 3200;
constexpr int Gap = 24;
constexpr int NameHeight = 22;

/// Where each photo stands, row by row; the last rectangle is the whole sheet.
QList<QRect> PlacesOf(const QList<NamedPhoto>& photos) {
    QList<QRect> places;
    QPoint at(Gap, Gap);
    int rowHeight = 0;
    for (const auto& photo : photos) {
        const auto size = photo.Photo.deviceIndependentSize().toSize();
        if (at.x() + size.width() + Gap > SheetWidth) {
            at = QPoint(Gap, at.y() + rowHeight + Gap);
            rowHeight = 0;
        }
        places.append(QRect(at, size + QSize(0, NameHeight)));
        at.rx() += size.width() + Gap;
        rowHeight = qMax(rowHeight, size.height() + NameHeight);
    }
    places.append(QRect(0, 0, SheetWidth, at.y() + rowHeight + Gap));
    return places;
}

}  // namespace

QImage PhotoOf(const QStringList& windows) {
    QList<Shot> shots;
    QRect place;
    for (const auto& name : windows) {
        shots += ShotsOf(name);
        // The toolbox stands beside the frame.
        const bool grows = place.isNull() || name == "frmPictures";
        if (grows) place |= shots.last().Place();
    }
    auto canvas = Blank(place.size());
    canvas.fill(QApplication::palette().color(QPalette::Base));
    QPainter painter(&canvas);
    for (const auto& shot : shots) {
        const auto at = shot.Place().translated(-place.topLeft());
        const bool isGround = &shot == &shots.constFirst();
        if (!isGround && !shot.Pixels.hasAlphaChannel()) PaintShadow(painter, at);
        painter.drawPixmap(at.topLeft(), shot.Pixels);
    }
    painter.end();
    return canvas.toImage().convertToFormat(QImage::Format_RGB32);
}

QImage ContactSheet(const QList<NamedPhoto>& photos) {
    const auto places = PlacesOf(photos);
    auto sheet = Blank(places.last().size());
    sheet.fill(QColor(0x80, 0x80, 0x80));
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    for (int i = 0; i < photos.size(); ++i) {
        painter.drawText(places[i].topLeft() + QPoint(0, NameHeight - 6), photos[i].Name);
        painter.drawImage(places[i].topLeft() + QPoint(0, NameHeight), photos[i].Photo);
    }
    painter.end();
    return sheet.toImage().convertToFormat(QImage::Format_RGB32);
}

void Save(const QImage& image, const QString& file) {
    QDir().mkpath(QFileInfo(file).path());
    auto plain = image;
    plain.setDevicePixelRatio(1);
    constexpr int smallest = 0;
    if (!plain.save(file, "PNG", smallest)) Fail("it can't be written to " + file);
}

}  // namespace quorvane
