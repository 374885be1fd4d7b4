// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>
#include <string>

#include "platform/controls.h"

namespace quorvane {

/// Screen units of 1/1440 inch to a logical pixel.
constexpr double UnitsPerPixel = 15;

/// Between screen units and whole logical pixels.
inline int ToPixels(double units) { return qRound(units / UnitsPerPixel); }
inline double ToUnits(int pixels) { return pixels * UnitsPerPixel; }

inline QRect ToPixels(const Area& area) {
    return {ToPixels(area.Left), ToPixels(area.Top), ToPixels(area.Width), ToPixels(area.Height)};
}

/// Between the core's text, which is UTF-8 on the screen, and Qt's.
inline QString ToScreen(const std::string& text) { return QString::fromStdString(text); }
inline QString ToScreen(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string ToCore(const QString& text) { return text.toStdString(); }

/// The screen's shape of a pointer number; the default shape for an unknown one.
inline Qt::CursorShape PointerShape(int pointer) {
    switch (pointer) {
        case PointerCross: return Qt::CrossCursor;
        case PointerHourglass: return Qt::WaitCursor;
        case PointerNoDrop: return Qt::ForbiddenCursor;
        default: return Qt::ArrowCursor;
    }
}

}  // namespace quorvane
