// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QSize>
#include <optional>

namespace quorvane {

class FrameView;

/// Where the user put the toolbox: its upper left corner from the nearer upper corner of the frame,
/// so that it keeps its distance from the edge beside it when the frame grows.
struct ToolboxPlace {
    bool FromRight = false;
    QPoint Offset;
};

/// The place of a toolbox that stands here.
ToolboxPlace PlaceInFrame(const FrameView& frame, const QPoint& corner, const QSize& size);
/// The corner of a toolbox of this size, its window's frame included: where it was put, or else
/// its first place, which is beside the frame where the screen has room, and otherwise in the
/// frame, right of the worksheets' middle and below their titles. It is on a screen, all of it if
/// it fits.
QPoint ToolboxCorner(const FrameView& frame, const std::optional<ToolboxPlace>& place,
                     const QSize& size);

/// What the user's settings remember; nothing at first.
std::optional<ToolboxPlace> ReadToolboxPlace();
void WriteToolboxPlace(const ToolboxPlace& place);

}  // namespace quorvane
