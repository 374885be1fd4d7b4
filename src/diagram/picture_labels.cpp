// SPDX-License-Identifier: MIT
#include "diagram/picture_labels.h"

#include <algorithm>
#include <array>

#include "diagram/box_table.h"

namespace quorvane {

namespace {

constexpr double UnitsPerPixel = 15;
constexpr double Gap = 2;  ///< Between a name and what is beside it

/// That of the widest of the usual fonts.
double WidthOf(int box) {
    constexpr double widestCharacter = 0.64;
    return static_cast<double>(BoxName(box).size()) * widestCharacter * LabelSize;
}

bool Overlap(const PixelRect& a, const PixelRect& b) {
    return a.Left < b.Right() && b.Left < a.Right() && a.Top < b.Bottom() && b.Top < a.Bottom();
}

/// What a line or a head covers, roughly.
PixelRect AreaOf(const DrawnShape& shape) {
    const bool isLine = shape.Shape == DrawnShape::Kind::Line;
    const double reach = (isLine ? 0 : shape.Radius / UnitsPerPixel) + shape.Width / 2.0;
    const double x1 = shape.X1 / UnitsPerPixel, y1 = shape.Y1 / UnitsPerPixel;
    const double x2 = isLine ? shape.X2 / UnitsPerPixel : x1;
    const double y2 = isLine ? shape.Y2 / UnitsPerPixel : y1;
    const double left = std::min(x1, x2) - reach, top = std::min(y1, y2) - reach;
    return {left, top, std::max(x1, x2) + reach - left, std::max(y1, y2) + reach - top};
}

/// The places for a name, best first: below the box, there left or right of an arrow, then beside
/// the box below and above the arrows at its middle, then above it.
std::array<PixelRect, 8> PlacesAt(const PixelRect& box, double width) {
    const double below = box.Bottom() + Gap, above = box.Top - Gap - LabelHeight;
    const double middle = box.Left + (box.Width - width) / 2;
    const double lower = box.Bottom() - LabelHeight, before = box.Left - Gap - width;
    const double after = box.Right() + Gap;
    const auto at = [width](double left, double top) {
        return PixelRect{left, top, width, LabelHeight};
    };
    return {at(middle, below),           at(box.Left + box.Width * 4 / 5, below),
            at(box.Left - width, below), at(after, lower),
            at(before, lower),           at(after, box.Top),
            at(before, box.Top),         at(middle, above)};
}

}  // namespace

PixelRect United(const PixelRect& a, const PixelRect& b) {
    const double left = std::min(a.Left, b.Left), top = std::min(a.Top, b.Top);
    return {left, top, std::max(a.Right(), b.Right()) - left,
            std::max(a.Bottom(), b.Bottom()) - top};
}

std::vector<DrawnLabel> PlaceLabels(const std::vector<DrawnBox>& boxes,
                                    const std::vector<DrawnShape>& arrows) {
    std::vector<PixelRect> taken;
    taken.reserve(2 * boxes.size() + arrows.size());
    for (const auto& box : boxes) taken.push_back(box.Place);
    for (const auto& shape : arrows) taken.push_back(AreaOf(shape));
    std::vector<DrawnLabel> labels;
    for (const auto& box : boxes) {
        DrawnLabel label;
        auto fewest = taken.size() + 1;
        for (const auto& place : PlacesAt(box.Place, WidthOf(box.Number))) {
            const auto crossings = static_cast<std::size_t>(
                std::count_if(taken.begin(), taken.end(),
                              [&](const PixelRect& other) { return Overlap(place, other); }));
            if (crossings >= fewest) continue;
            fewest = crossings;
            label = {box.Number, place, crossings > 0};
            if (crossings == 0) break;
        }
        taken.push_back(label.Place);
        labels.push_back(label);
    }
    return labels;
}

}  // namespace quorvane
