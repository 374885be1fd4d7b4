// SPDX-License-Identifier: MIT
#include "diagram/picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <set>
#include <string_view>
#include <vector>

#include "diagram/arrows.h"
#include "diagram/box_table.h"
#include "diagram/picture_labels.h"
#include "diagram/worksheet.h"
#include "platform/numbers.h"
#include "platform/small_maths.h"
#include "platform/svg_text.h"

namespace quorvane {

namespace {

// What a worksheet looks like on the screen; src/qt/sheet has the same numbers.
constexpr double UnitsPerPixel = 15;
constexpr std::int32_t FaceColor = 0xF8FBFB;
constexpr std::int32_t FaceEdge = 0x4C423A;
constexpr double FaceInset = 1.5;
constexpr double IconSide = 32;
constexpr int Margin = 20;

/// The ground of a picture and what is written on it.
struct Ground {
    std::int32_t Color;
    std::int32_t Ink;
};
constexpr Ground Sheet = {0x66584C, 0xF6F4F2};
constexpr Ground Paper = {0xFFFFFF, 0x303030};

/// What a picture shows, in pixels of the sheet from its own corner on, the arrows in screen units.
struct Drawing {
    const PictureLook& Look;
    Ground Colors;
    std::vector<DrawnBox> Boxes;
    std::vector<DrawnShape> Arrows;
    std::vector<DrawnLabel> Labels;
};

using Parts = std::array<double, 3>;  // red, green, blue from 0 to 1

/// As the eye sees it: 0 for black, 1 for white.
double Luminance(const Parts& parts) {
    constexpr Parts weights = {0.2126, 0.7152, 0.0722};
    double sum = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        // To the power of 2.2.
        sum += weights[i] * parts[i] * parts[i] * FifthRoot(parts[i]);
    }
    return sum;
}

/// A colour of the same hue that lines on white can be seen in. What is pale becomes richer as it
/// becomes darker, so that pale colours can still be told apart.
std::int32_t DarkOnWhite(std::int32_t color) {
    constexpr double darkest = 0.11, step = 0.01, richest = 4;
    Parts parts{}, dark{};
    for (std::size_t i = 0; i < 3; ++i) parts[i] = (color >> (8 * i) & 0xFF) / 255.0;
    const auto [low, high] = std::minmax_element(parts.begin(), parts.end());
    const double light = (*low + *high) / 2;
    const double room = 1 - std::abs(2 * light - 1);
    dark = parts;
    for (double now = light; Luminance(dark) > darkest; now -= step) {
        const double rich = std::min(richest, room > 0 ? (1 - std::abs(2 * now - 1)) / room : 0);
        for (std::size_t i = 0; i < 3; ++i) {
            dark[i] = std::clamp(now + (parts[i] - light) * rich, 0.0, 1.0);
        }
    }
    std::int32_t result = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        result |= static_cast<std::int32_t>(NearestWhole(dark[i] * 255)) << (8 * i);
    }
    return result;
}

/// A face that is mostly as it was.
std::int32_t Tinted(std::int32_t face, std::int32_t tint) {
    constexpr int share = 4;  // of which the tint is one
    std::int32_t mixed = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const int part = ((face >> shift & 0xFF) * (share - 1) + (tint >> shift & 0xFF)) / share;
        mixed |= part << shift;
    }
    return mixed;
}

bool IsLine(const DrawnShape& shape) { return shape.Shape == DrawnShape::Kind::Line; }

std::string PenAttributes(const DrawnShape& shape) {
    return Attribute("stroke", ColorText(shape.Color)) +
           Attribute("stroke-width", NumberText(shape.Width));
}

/// The legs of an arrow: a line, and the vertical one that continues it, if any. Lines
/// along an axis cover whole pixels, so that they are sharp at the size of the screen and of one
/// width at any other. The vertical one ends on a whole pixel, as its box does, so that none shows
/// past it.
std::string LegsElement(const DrawnShape& first, const DrawnShape* second) {
    const auto across = [half = first.Width / 2.0](double units) {
        return static_cast<double>(NearestWhole(units / UnitsPerPixel - half)) + half;
    };
    const auto along = [](double units) { return units / UnitsPerPixel; };
    const bool level = first.Y1 == first.Y2;
    const double y = level ? across(first.Y1) : along(first.Y1);
    std::string path = Point(along(first.X1), y) + " L";
    if (second) {
        const double x = across(second->X1);
        const auto end = static_cast<double>(NearestWhole(along(second->Y2)));
        path += Point(x, level ? y : along(first.Y2)) + " L" + Point(x, end);
    } else {
        path += Point(along(first.X2), level ? y : along(first.Y2));
    }
    return "<path" + PenAttributes(first) + " d=\"M" + path + "\"/>\n";
}

/// The head of an arrow: a slice between two angles, counter-clockwise, with an edge in the arrow's
/// colour, black on the sheet. The sign of the angles only asks for the radii.
std::string HeadElement(const DrawnShape& pie, bool onPaper) {
    const double x = pie.X1 / UnitsPerPixel;
    const double y = pie.Y1 / UnitsPerPixel;
    const double radius = pie.Radius / UnitsPerPixel;
    const double start = std::abs(pie.StartAngle);
    double sweep = std::abs(pie.EndAngle) - start;
    if (sweep < 0) sweep += 2 * std::numbers::pi;
    const auto rim = [&](double angle) {
        const auto direction = DirectionOf(angle);
        return Point(x + radius * direction.X, y - radius * direction.Y);
    };
    return "<path" + PenAttributes(pie) + Attribute("fill", ColorText(onPaper ? pie.Color : 0)) +
           " d=\"M" + Point(x, y) + " L" + rim(start) + " A" + Point(radius, radius) + " 0 " +
           (sweep > std::numbers::pi ? "1" : "0") + " 0 " + rim(start + sweep) + " Z\"/>\n";
}

std::string ArrowElements(const Drawing& drawing) {
    const auto& shapes = drawing.Arrows;
    std::string text = "<g fill=\"none\">\n";
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        if (!IsLine(shapes[i])) {
            text += HeadElement(shapes[i], drawing.Look.OnPaper);
            continue;
        }
        const auto* next = i + 1 < shapes.size() ? &shapes[i + 1] : nullptr;
        const bool goesOn = next && IsLine(*next) && next->X1 == shapes[i].X2 &&
                            next->Y1 == shapes[i].Y2 && next->X1 == next->X2;
        text += LegsElement(shapes[i], goesOn ? next : nullptr);
        if (goesOn) ++i;
    }
    return text + "</g>\n";
}

/// The boxes that show, in the order in which they lie. They stand on whole pixels.
std::vector<DrawnBox> ShownBoxes(const Worksheet& sheet, int document) {
    const auto whole = [](double units) {
        return static_cast<double>(NearestWhole(units / UnitsPerPixel));
    };
    std::vector<DrawnBox> shown;
    for (int i = 1; i < NextBox; ++i) {
        if (Boxes[i].BoxDocument != document || !sheet.box.Has(i)) continue;
        const auto& box = sheet.box[i];
        if (!box.Visible) continue;
        const PixelRect place = {whole(box.Left + sheet.scrH.Value),
                                 whole(box.Top + sheet.scrV.Value), whole(box.Width),
                                 whole(box.Height)};
        shown.push_back({i, box.Picture, place});
    }
    return shown;
}

std::vector<DrawnShape> ShownArrows(const Worksheet& sheet, int document, bool onPaper) {
    std::vector<DrawnShape> shapes;
    AddArrows(shapes, document);
    for (auto& shape : shapes) {
        shape.X1 += sheet.scrH.Value;
        shape.X2 += sheet.scrH.Value;
        shape.Y1 += sheet.scrV.Value;
        shape.Y2 += sheet.scrV.Value;
        if (onPaper) shape.Color = DarkOnWhite(shape.Color);
    }
    return shapes;
}

PixelRect Extent(const Drawing& drawing) {
    PixelRect all = drawing.Boxes.empty() ? PixelRect() : drawing.Boxes[0].Place;
    for (const auto& box : drawing.Boxes) all = United(all, box.Place);
    for (const auto& label : drawing.Labels) all = United(all, label.Place);
    const double left = std::floor(all.Left) - Margin, top = std::floor(all.Top) - Margin;
    return {left, top, std::ceil(all.Right()) + Margin - left,
            std::ceil(all.Bottom()) + Margin - top};
}

/// Each icon that shows, once.
std::string Definitions(const Drawing& drawing, IconReader readIcon) {
    std::set<int> cells;
    for (const auto& box : drawing.Boxes) cells.insert(box.Cell);
    std::string text = "<defs>\n";
    for (const int cell : cells) {
        text += "<g" + Attribute("id", "cell" + NumberText(cell)) + ">" +
                IconDrawing(readIcon(cell)) + "</g>\n";
    }
    return text + "</defs>\n";
}

/// The face of a box. One that stands out has a wider edge.
std::string FaceElement(const DrawnBox& shown, const PictureLook& look) {
    const auto tint = look.Tints.find(shown.Number);
    const bool standsOut = tint != look.Tints.end();
    const double edge = standsOut ? 2 : 1;
    const auto inset = Pixels(edge / 2);
    return "<rect" + Attribute("x", inset) + Attribute("y", inset) +
           Attribute("width", Pixels(shown.Place.Width - edge)) +
           Attribute("height", Pixels(shown.Place.Height - edge)) + " rx=\"4\" ry=\"4\"" +
           Attribute("fill", ColorText(standsOut ? Tinted(FaceColor, tint->second) : FaceColor)) +
           Attribute("stroke", ColorText(standsOut ? tint->second : FaceEdge)) +
           (standsOut ? Attribute("stroke-width", Pixels(edge)) : "") + "/>";
}

std::string BoxElement(const DrawnBox& shown, const PictureLook& look) {
    const Box& box = Boxes[shown.Number];
    std::string named = BoxName(shown.Number) + ": " + box.BoxType;
    if (box.BoxType == "Comment" || !box.BoxText.empty()) named += "\n" + box.BoxText;
    const double scale = (shown.Place.Width - 2 * FaceInset) / IconSide;
    return "<g transform=\"translate(" + Point(shown.Place.Left, shown.Place.Top) + ")\"><title>" +
           CharacterData(named) + "</title>" + FaceElement(shown, look) + "<use" +
           Attribute("xlink:href", "#cell" + NumberText(shown.Cell)) + " transform=\"translate(" +
           Point(FaceInset, FaceInset) + ") scale(" + Pixels(scale, 4) + ")\"/></g>\n";
}

std::string RectElement(const PixelRect& place, std::int32_t color, const std::string& more = "") {
    return "<rect" + Attribute("x", Pixels(place.Left)) + Attribute("y", Pixels(place.Top)) +
           Attribute("width", Pixels(place.Width)) + Attribute("height", Pixels(place.Height)) +
           Attribute("fill", ColorText(color)) + more + "/>\n";
}

/// The names of the boxes, on a plate where something lies behind them.
std::string LabelElements(const Drawing& drawing) {
    if (drawing.Labels.empty()) return "";
    constexpr double baseLine = 9.5;
    std::string plates, names;
    for (const auto& label : drawing.Labels) {
        const auto& place = label.Place;
        if (label.IsCrossed) {
            plates += RectElement(place, drawing.Colors.Color, Attribute("fill-opacity", "0.8"));
        }
        names += "<text" + Attribute("x", Pixels(place.Left + place.Width / 2)) +
                 Attribute("y", Pixels(place.Top + baseLine)) + ">" + BoxName(label.Box) +
                 "</text>\n";
    }
    return plates + "<g font-family=\"sans-serif\" text-anchor=\"middle\"" +
           Attribute("font-size", Pixels(LabelSize)) +
           Attribute("fill", ColorText(drawing.Colors.Ink)) + ">\n" + names + "</g>\n";
}

}  // namespace

std::string IconDrawing(const std::string& file) {
    const auto start = file.find('>', file.find("<svg")), end = file.rfind("</svg>");
    if (end == std::string::npos || start > end) return "";
    std::string_view rest(file.data() + start + 1, end - start - 1);
    std::string drawing;
    while (!rest.empty()) {
        const auto element = Trimmed(TakeUpTo(rest, "\n"));
        if (!element.starts_with("<!--")) drawing += element;
    }
    return drawing;
}

std::string DocumentPicture(int document, IconReader readIcon, const PictureLook& look) {
    const auto& sheet = DocumentWindow(document);
    Drawing drawing = {look, look.OnPaper ? Paper : Sheet, ShownBoxes(sheet, document),
                       ShownArrows(sheet, document, look.OnPaper)};
    if (look.Numbers) drawing.Labels = PlaceLabels(drawing.Boxes, drawing.Arrows);
    const auto extent = Extent(drawing);
    std::string text =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\"" +
        Attribute("width", Pixels(extent.Width)) + Attribute("height", Pixels(extent.Height)) +
        " viewBox=\"" + Point(extent.Left, extent.Top) + " " + Point(extent.Width, extent.Height) +
        "\">\n" + Definitions(drawing, readIcon) + RectElement(extent, drawing.Colors.Color);
    text += ArrowElements(drawing);
    for (const auto& box : drawing.Boxes) text += BoxElement(box, look);
    return text + LabelElements(drawing) + "</svg>\n";
}

}  // namespace quorvane
