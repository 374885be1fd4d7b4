// SPDX-License-Identifier: MIT
#include "diagram/arrows.h"

#include <algorithm>

#include "diagram/box_table.h"
#include "platform/numbers.h"

namespace quorvane {

bool paintsSheets = true;

namespace {

/// Two legs and a head
constexpr std::size_t ShapesOfArrow = 3;

/// Heads are drawn with this value, which is part of their shape.
constexpr double Pi = 3.14;

void AddLine(std::vector<DrawnShape>& shapes, const Pen& pen, double x1, double y1, double x2,
             double y2) {
    auto& line = shapes.emplace_back();
    line.Color = pen.Color;
    line.Width = pen.Width;
    line.X1 = x1;
    line.Y1 = y1;
    line.X2 = x2;
    line.Y2 = y2;
}

void AddPie(std::vector<DrawnShape>& shapes, const Pen& pen, double x, double y, double radius,
            double start, double end) {
    auto& pie = shapes.emplace_back();
    pie.Shape = DrawnShape::Kind::Pie;
    pie.Color = pen.Color;
    pie.Width = pen.Width;
    pie.X1 = x;
    pie.Y1 = y;
    pie.Radius = radius;
    pie.StartAngle = start;
    pie.EndAngle = end;
}

/// Where an arrow to this entry meets the upper or lower edge: on a fifth of the width.
double LandingPoint(const BoxControl& D, int entry) { return D.Left + entry * (D.Width / 5); }

/// Adds the head at the landing point x of destination D, by where source S stands.
void AddHead(std::vector<DrawnShape>& shapes, const Pen& pen, const BoxControl& S,
             const BoxControl& D, double x) {
    const double middle = S.Top + S.Height / 2;
    if (S.Top < D.Top - D.Height / 2) {
        AddPie(shapes, pen, x, D.Top - 10, 100, -0.95, -2.2);
    } else if (S.Top >= D.Top + D.Height / 2) {
        AddPie(shapes, pen, x, D.Top + D.Height + 10, 100, -0.95 - Pi, -2.2 - Pi);
    } else if (S.Left < D.Left) {
        AddPie(shapes, pen, D.Left, middle, 150, -0.3 - Pi * 0.85, -1.2 - Pi * 0.75);
    } else {
        AddPie(shapes, pen, D.Left + D.Width, middle, 100, -1.05 - 1.5 * Pi, -0.7);
    }
}

void AddArrow(std::vector<DrawnShape>& shapes, const Worksheet& window, int source, int destination,
              int entry) {
    const Pen pen = {Boxes[source].BoxLineColor[entry], window.DrawWidth};
    const auto& S = window.box[source];
    const auto& D = window.box[destination];
    DrawLegsAndHead(shapes, pen, S, D, entry);
}

}  // namespace

void DrawArrow(int source, int destination, int entry, const char* /*mode*/, int document) {
    if (destination <= 0) return;
    Attempt([&] {
        auto& window = DocumentWindow(document);
        AddArrow(window.Surface, window, source, destination, entry);
    });
}

void DrawLegs(std::vector<DrawnShape>& surface, const Pen& pen, const BoxControl& S,
              const BoxControl& D, int entry) {
    const double x = LandingPoint(D, entry);
    const double y = S.Top + S.Height / 2;
    AddLine(surface, pen, S.Left + entry * (S.Width / 5), y, x, S.Top + D.Height / 2);
    AddLine(surface, pen, x, y, x, D.Top);
}

void DrawLegsAndHead(std::vector<DrawnShape>& surface, const Pen& pen, const BoxControl& S,
                     const BoxControl& D, int entry) {
    DrawLegs(surface, pen, S, D, entry);
    AddHead(surface, pen, S, D, LandingPoint(D, entry));
}

int FindEntrySlot(int source, int destination) {
    const auto& entries = BoxOrFree(destination).BoxIn;
    for (int i = 1; i <= 3; ++i) {
        if (entries[i] == source) return i;
    }
    return 1;
}

void AddArrows(std::vector<DrawnShape>& shapes, int document) {
    const auto& window = DocumentWindow(document);
    shapes.reserve(static_cast<std::size_t>(std::max<int>(NextBox, 0)) * ShapesOfArrow);
    for (int i = 1; i <= NextBox; ++i) {
        const Box& box = BoxOrFree(i);
        if (box.BoxDocument != document) continue;
        for (int j = 1; j <= 5; ++j) {
            const int peer = box.BoxOut[j];
            if (peer < 1) continue;
            Attempt([&] { AddArrow(shapes, window, i, peer, FindEntrySlot(i, peer)); });
        }
    }
}

void RedrawDocument(const std::string& document) {
    if (document.empty() || !paintsSheets) return;
    const int number = TextToInt16(document);
    auto& surface = DocumentWindow(number).Surface;
    surface.clear();
    AddArrows(surface, number);
}

}  // namespace quorvane
