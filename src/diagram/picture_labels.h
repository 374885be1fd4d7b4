// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/drawing.h"

namespace quorvane {

/// A place in pixels.
struct PixelRect {
    double Left = 0, Top = 0, Width = 0, Height = 0;

    double Right() const { return Left + Width; }
    double Bottom() const { return Top + Height; }
};

/// The smallest rectangle round both.
PixelRect United(const PixelRect& a, const PixelRect& b);

/// A box of a picture.
struct DrawnBox {
    int Number = 0;
    int Cell = 0;  ///< Of the icon strip
    PixelRect Place;
};

/// The name of a box in a picture.
struct DrawnLabel {
    int Box = 0;
    PixelRect Place;
    bool IsCrossed = false;  ///< An arrow or another box lies there
};

constexpr double LabelHeight = 12;
constexpr double LabelSize = 10;  ///< Of the type

/// Places a name at each box: below it, else beside it or above it, where the least is in the way.
/// The places of the arrows are screen units, those of the boxes pixels.
std::vector<DrawnLabel> PlaceLabels(const std::vector<DrawnBox>& boxes,
                                    const std::vector<DrawnShape>& arrows);

}  // namespace quorvane
