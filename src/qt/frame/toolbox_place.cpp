// SPDX-License-Identifier: MIT
#include "qt/frame/toolbox_place.h"

#include <QGuiApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QStringList>
#include <QStyle>
#include <algorithm>

#include "platform/desktop.h"
#include "qt/desktop/screen_units.h"
#include "qt/frame/frame_view.h"

namespace quorvane {

namespace {

constexpr const char* StoreSection = "Workbench";
constexpr const char* StoreKey = "Toolbox place";
/// Between the toolbox and what it stands beside.
constexpr int Gap = 8;

QPoint UpperCorner(const FrameView& frame, bool right) {
    const auto outer = frame.frameGeometry();
    return right ? outer.topRight() : outer.topLeft();
}

/// The titles of the worksheets, on the screen, from the uppermost down. Above all the others is
/// that of a worksheet that fills the room, whether or not there is one.
QList<QRect> Titles(const FrameView& frame) {
    const auto* room = frame.Area()->viewport();
    const int high = frame.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    QList<QRect> titles = {{room->mapToGlobal(QPoint()), QSize(room->width(), high)}};
    for (const auto* window : frame.Area()->subWindowList()) {
        if (!window->isVisible() || window->isMaximized()) continue;
        titles.append({room->mapToGlobal(window->pos()), QSize(window->width(), high)});
    }
    std::sort(titles.begin(), titles.end(),
              [](const QRect& a, const QRect& b) { return a.top() < b.top(); });
    return titles;
}

/// At the right edge of the worksheets' room, left of a scroll bar and clear of the titles, if it
/// is high enough for that.
QPoint PlaceInside(const FrameView& frame, const QSize& size) {
    const auto* room = frame.Area()->viewport();
    const QRect space(room->mapToGlobal(QPoint()), room->size());
    const int bar = frame.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    QRect spot(QPoint(space.right() - bar - Gap - size.width(), space.top()), size);
    const auto titles = Titles(frame);
    for (const auto& title : titles) {
        if (spot.intersects(title)) spot.moveTop(title.bottom() + 1 + Gap);
    }
    if (spot.bottom() > space.bottom()) spot.moveTop(titles.first().bottom() + 1 + Gap);
    return spot.topLeft();
}

QPoint FirstPlace(const FrameView& frame, const QSize& size) {
    const auto outer = frame.frameGeometry();
    const int left = outer.right() + 1 + Gap;
    const bool hasRoom = left + size.width() <= frame.screen()->availableGeometry().right() + 1;
    return hasRoom ? QPoint(left, outer.top()) : PlaceInside(frame, size);
}

/// The screen in which most of the window would be; that of the frame where it would be in none.
QPoint BroughtIntoScreen(const FrameView& frame, const QRect& window) {
    const auto* screen = QGuiApplication::screenAt(window.center());
    const auto space = (screen ? screen : frame.screen())->availableGeometry();
    const auto last = space.bottomRight() - QPoint(window.width(), window.height()) + QPoint(1, 1);
    return {std::max(space.left(), std::min(window.left(), last.x())),
            std::max(space.top(), std::min(window.top(), last.y()))};
}

}  // namespace

ToolboxPlace PlaceInFrame(const FrameView& frame, const QPoint& corner, const QSize& size) {
    const auto middle = QRect(corner, size).center().x();
    const bool right = middle > frame.frameGeometry().center().x();
    return {right, corner - UpperCorner(frame, right)};
}

QPoint ToolboxCorner(const FrameView& frame, const std::optional<ToolboxPlace>& place,
                     const QSize& size) {
    const auto corner =
        place ? UpperCorner(frame, place->FromRight) + place->Offset : FirstPlace(frame, size);
    return BroughtIntoScreen(frame, QRect(corner, size));
}

std::optional<ToolboxPlace> ReadToolboxPlace() {
    const auto words = ToScreen(desktop->ReadStore(StoreSection, StoreKey)).split(' ');
    if (words.size() != 3) return {};
    return ToolboxPlace{words[0] == "right", {words[1].toInt(), words[2].toInt()}};
}

void WriteToolboxPlace(const ToolboxPlace& place) {
    const auto text = QString("%1 %2 %3")
                          .arg(place.FromRight ? "right" : "left")
                          .arg(place.Offset.x())
                          .arg(place.Offset.y());
    desktop->WriteStore(StoreSection, StoreKey, ToCore(text));
}

}  // namespace quorvane
