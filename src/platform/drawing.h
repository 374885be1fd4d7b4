// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace quorvane {

/// A shape that is painted on a window. Places are screen units. A line goes from (X1, Y1) to (X2,
/// Y2). A pie is a filled slice with its tip in (X1, Y1); its angles are in radians,
/// counter-clockwise from the positive x axis, and negative: the sign asks for the two radii, the
/// size is the angle.
struct DrawnShape {
    enum class Kind { Line, Pie };
    Kind Shape = Kind::Line;
    std::int32_t Color = 0;  ///< Red in the low byte
    int Width = 1;           ///< Of the pen, in pixels: what it was when the shape was painted
    double X1 = 0, Y1 = 0;
    double X2 = 0, Y2 = 0;                            ///< Line only
    double Radius = 0, StartAngle = 0, EndAngle = 0;  ///< Pie only

    friend bool operator==(const DrawnShape&, const DrawnShape&) = default;
};

}  // namespace quorvane
