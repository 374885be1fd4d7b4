// SPDX-License-Identifier: MIT
#include "qt/sheet/shape_painter.h"

#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace quorvane {

namespace {

/// The slice between the two angles, counter-clockwise, with both radii. The sign of the angles
/// only asks for the radii. The arc goes in steps too small to see at the size of an arrow's head:
/// a polygon is painted in a fraction of the time of a curve.
QPolygonF Slice(const DrawnShape& pie, const SheetScale& scale) {
    const double radius = pie.Radius / scale.PixelUnits();
    const QPointF tip = QPointF(pie.X1, pie.Y1) / scale.PixelUnits();
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
/// none shows past the edge of its box. A horizontal one is lengthened by `corner`.
void PaintLine(QPainter& painter, const DrawnShape& line, const QPen& pen, const SheetScale& scale,
               double corner) {
    const QPointF from = QPointF(line.X1, line.Y1) / scale.PixelUnits();
    const QPointF to = QPointF(line.X2, line.Y2) / scale.PixelUnits();
    const double half = pen.widthF() / 2;
    if (from.x() == to.x()) {
        const QRectF leg(QPointF(from.x(), scale.ToPixels(line.Y1)),
                         QPointF(to.x(), scale.ToPixels(line.Y2)));
        painter.fillRect(leg.normalized().adjusted(-half, 0, half, 0), pen.color());
    } else if (from.y() == to.y()) {
        painter.fillRect(QRectF(from, to).normalized().adjusted(-corner, -half, corner, half),
                         pen.color());
    } else {
        painter.setPen(pen);
        painter.drawLine(from, to);
    }
}

bool SameShape(const DrawnShape& a, const DrawnShape& b) {
    return a.Shape == b.Shape && a.Color == b.Color && a.Width == b.Width && a.X1 == b.X1 &&
           a.Y1 == b.Y1 && a.X2 == b.X2 && a.Y2 == b.Y2 && a.Radius == b.Radius &&
           a.StartAngle == b.StartAngle && a.EndAngle == b.EndAngle;
}

}  // namespace

QColor ColorOf(std::int32_t color) {
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

std::int32_t ColorNumber(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}

bool SameShapes(const std::vector<DrawnShape>& a, const std::vector<DrawnShape>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), SameShape);
}

void PaintShapes(QPainter& painter, const std::vector<DrawnShape>& shapes, const SheetScale& scale,
                 double thicker) {
    const double ratio = painter.device()->devicePixelRatioF();
    const bool isPlain = scale.Percent == 100 && thicker == 0;
    painter.setBrush(Qt::black);
    QPen pen(Qt::black, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    for (const auto& shape : shapes) {
        const bool isLine = shape.Shape == DrawnShape::Kind::Line;
        const double width = shape.Width * scale.Factor() + thicker;
        pen.setColor(ColorOf(shape.Color));
        pen.setWidthF(isPlain ? width : qMax(1, qRound(width * ratio)) / ratio);
        painter.setRenderHint(QPainter::Antialiasing, !isLine);
        if (isLine) {
            PaintLine(painter, shape, pen, scale, isPlain ? 0 : pen.widthF() / 2);
            continue;
        }
        painter.setPen(pen);
        painter.drawPolygon(Slice(shape, scale));
    }
}

}  // namespace quorvane
