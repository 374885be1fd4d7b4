// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <cmath>

#include "qt/desktop/screen_units.h"

namespace quorvane {

/// The scales that the keys and the wheel go through, in per cent.
constexpr int ZoomSteps[] = {25,  33,  50,  67,  75,  80,  90,  100,
                             110, 125, 150, 175, 200, 250, 300, 400};
constexpr int SmallestZoom = 25;
constexpr int LargestZoom = 400;

/// How large a worksheet's surface is shown, and the way between its pixels and screen units.
/// Records know nothing of it.
struct SheetScale {
    int Percent = 100;  ///< SmallestZoom to LargestZoom

    double Factor() const { return Percent / 100.0; }
    /// Screen units to a logical pixel.
    double PixelUnits() const { return UnitsPerPixel / Factor(); }
    int ToPixels(double units) const { return qRound(units / PixelUnits()); }
    QPoint ToPixels(double x, double y) const { return {ToPixels(x), ToPixels(y)}; }
    /// Whole numbers, as records hold them.
    double ToUnits(int pixels) const { return std::round(pixels * PixelUnits()); }
    QPointF ToUnits(QPoint pixels) const { return {ToUnits(pixels.x()), ToUnits(pixels.y())}; }

    /// The step after or before this scale, the scale itself where there is none.
    int NextStep() const;
    int StepBefore() const;
};

inline int SheetScale::NextStep() const {
    for (const int step : ZoomSteps) {
        if (step > Percent) return step;
    }
    return Percent;
}

inline int SheetScale::StepBefore() const {
    int before = Percent;
    for (const int step : ZoomSteps) {
        if (step < Percent) before = step;
    }
    return before;
}

}  // namespace quorvane
