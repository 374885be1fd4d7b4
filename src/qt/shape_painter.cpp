// SPDX-License-Identifier: MIT
#include "qt/shape_painter.h"

#include <QPainterPath>
#include <cmath>
#include <numbers>

#include "qt/screen_units.h"

namespace quorvane {

namespace {

double Degrees(double radians) { return radians * 180 / std::numbers::pi; }

/// The slice between the two angles, counter-clockwise, with both radii. The sign of the angles
/// only asks for the radii.
QPainterPath Slice(const DrawnShape& pie) {
    const double radius = pie.Radius / UnitsPerPixel;
    const QPointF tip(pie.X1 / UnitsPerPixel, pie.Y1 / UnitsPerPixel);
    const double start = Degrees(std::abs(pie.StartAngle));
    double sweep = Degrees(std::abs(pie.EndAngle)) - start;
    if (sweep < 0) sweep += 360;
    QPainterPath slice(tip);
    slice.arcTo(tip.x() - radius, tip.y() - radius, 2 * radius, 2 * radius, start, sweep);
    slice.closeSubpath();
    return slice;
}

}  // namespace

QColor ColorOf(std::int32_t color) {
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

std::int32_t ColorNumber(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}

void PaintShapes(QPainter& painter, const std::vector<DrawnShape>& shapes, int penWidth) {
    painter.setBrush(Qt::black);
    for (const auto& shape : shapes) {
        const bool isLine = shape.Shape == DrawnShape::Kind::Line;
        painter.setPen(QPen(ColorOf(shape.Color), isLine ? penWidth : 1, Qt::SolidLine, Qt::FlatCap,
                            Qt::MiterJoin));
        painter.setRenderHint(QPainter::Antialiasing, !isLine);
        if (isLine) {
            painter.drawLine(QPointF(shape.X1, shape.Y1) / UnitsPerPixel,
                             QPointF(shape.X2, shape.Y2) / UnitsPerPixel);
        } else {
            painter.drawPath(Slice(shape));
        }
    }
}

}  // namespace quorvane
