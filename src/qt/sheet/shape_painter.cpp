// SPDX-License-Identifier: MIT
#include "qt/sheet/shape_painter.h"

#include <QPolygonF>
#include <cmath>
#include <numbers>

#include "qt/desktop/screen_units.h"

namespace quorvane {

namespace {

/// The slice between the two angles, counter-clockwise, with both radii. The sign of the angles
/// only asks for the radii. The arc goes in steps too small to see at the size of an arrow's head:
/// a polygon is painted in a fraction of the time of a curve.
QPolygonF Slice(const DrawnShape& pie) {
    const double radius = pie.Radius / UnitsPerPixel;
    const QPointF tip(pie.X1 / UnitsPerPixel, pie.Y1 / UnitsPerPixel);
    const double start = std::abs(pie.StartAngle);
    double sweep = std::abs(pie.EndAngle) - start;
    if (sweep < 0) sweep += 2 * std::numbers::pi;
    constexpr double largestStep = 0.2;
    const int steps = static_cast<int>(std::ceil(sweep / largestStep));
    QPolygonF slice{tip};
    for (int i = 0; i <= steps; ++i) {
        const double angle = start + sweep * i / qMax(1, steps);
        slice.append(tip + radius * QPointF(std::cos(angle), -std::sin(angle)));
    }
    return slice;
}

/// Lines along an axis, as those of arrows are, are filled as rectangles: that costs a third of
/// what a pen does. A vertical one ends on a whole pixel, as boxes do, so that on a finer screen
/// none shows past the edge of its box.
void PaintLine(QPainter& painter, const DrawnShape& line, const QColor& color) {
    const QPointF from = QPointF(line.X1, line.Y1) / UnitsPerPixel;
    const QPointF to = QPointF(line.X2, line.Y2) / UnitsPerPixel;
    const double half = line.Width / 2.0;
    if (from.x() == to.x()) {
        const QRectF leg(QPointF(from.x(), ToPixels(line.Y1)), QPointF(to.x(), ToPixels(line.Y2)));
        painter.fillRect(leg.normalized().adjusted(-half, 0, half, 0), color);
    } else if (from.y() == to.y()) {
        painter.fillRect(QRectF(from, to).normalized().adjusted(0, -half, 0, half), color);
    } else {
        painter.setPen(QPen(color, line.Width, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(from, to);
    }
}

}  // namespace

QColor ColorOf(std::int32_t color) {
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

std::int32_t ColorNumber(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}

void PaintShapes(QPainter& painter, const std::vector<DrawnShape>& shapes) {
    painter.setBrush(Qt::black);
    QPen outline(Qt::black, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    for (const auto& shape : shapes) {
        const bool isLine = shape.Shape == DrawnShape::Kind::Line;
        const auto color = ColorOf(shape.Color);
        painter.setRenderHint(QPainter::Antialiasing, !isLine);
        if (isLine) {
            PaintLine(painter, shape, color);
            continue;
        }
        outline.setColor(color);
        outline.setWidth(shape.Width);
        painter.setPen(outline);
        painter.drawPolygon(Slice(shape));
    }
}

}  // namespace quorvane
