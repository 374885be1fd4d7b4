// SPDX-License-Identifier: MIT
#include "compile/picture.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <set>

#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

// What a worksheet looks like on the screen; src/qt/sheet has the same numbers.
constexpr double UnitsPerPixel = 15;
constexpr const char* SheetColor = "#4c5866";
constexpr const char* FaceColor = "#fbfbf8";
constexpr const char* FaceEdge = "#3a424c";
constexpr double FaceInset = 1.5;
constexpr int Margin = 20;

/// A place or length in pixels, with as many decimals as can be seen.
std::string Pixels(double pixels) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2f", pixels);
    std::string number = text;
    number.erase(number.find_last_not_of('0') + 1);
    if (number.ends_with(".")) number.pop_back();
    return number == "-0" ? "0" : number;
}

std::string Point(double x, double y) { return Pixels(x) + " " + Pixels(y); }

std::string Attribute(const char* name, const std::string& value) {
    return std::string(" ") + name + "=\"" + value + "\"";
}

std::string ColorText(std::int32_t color) {
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", color & 0xFF, color >> 8 & 0xFF,
                  color >> 16 & 0xFF);
    return text;
}

/// True for the bytes at `at` when they are one character of UTF-8; `length` becomes their count.
bool IsCharacter(std::string_view text, std::size_t at, std::size_t& length) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const auto first = byte(at);
    length = first < 0x80 ? 1 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0x80) return first >= 0x20 || first == '\t' || first == '\n' || first == '\r';
    if (first < 0xC2 || first > 0xF4 || at + length > text.size()) return false;
    for (std::size_t i = at + 1; i < at + length; ++i) {
        if ((byte(i) & 0xC0) != 0x80) return false;
    }
    const auto second = byte(at + 1);
    // Longer than needed, a surrogate half, or beyond the last character.
    return !(first == 0xE0 && second < 0xA0) && !(first == 0xED && second > 0x9F) &&
           !(first == 0xF0 && second < 0x90) && !(first == 0xF4 && second > 0x8F);
}

/// A text of a box as character data. Invalid bytes show as a question mark.
std::string CharacterData(std::string_view text) {
    std::string data;
    for (std::size_t at = 0, length = 1; at < text.size(); at += length) {
        if (!IsCharacter(text, at, length)) {
            data += '?';
            length = 1;
            continue;
        }
        switch (text[at]) {
            case '&': data += "&amp;"; break;
            case '<': data += "&lt;"; break;
            case '>': data += "&gt;"; break;
            case '\r': break;
            default: data += text.substr(at, length);
        }
    }
    return data;
}

bool IsLine(const DrawnShape& shape) { return shape.Shape == DrawnShape::Kind::Line; }

std::string PenAttributes(const DrawnShape& shape) {
    return Attribute("stroke", ColorText(shape.Color)) +
           Attribute("stroke-width", NumberText(shape.Width));
}

/// The legs of an arrow: a line, and the vertical one that continues it, if any. Lines
/// along an axis cover whole pixels, so that they are sharp at the size of the screen and of one
/// width at any other.
std::string LegsElement(const DrawnShape& first, const DrawnShape* second) {
    const auto across = [half = first.Width / 2.0](double units) {
        return std::round(units / UnitsPerPixel - half) + half;
    };
    const auto along = [](double units) { return units / UnitsPerPixel; };
    const bool level = first.Y1 == first.Y2;
    const double y = level ? across(first.Y1) : along(first.Y1);
    std::string path = Point(along(first.X1), y) + " L";
    if (second) {
        const double x = across(second->X1);
        path += Point(x, level ? y : along(first.Y2)) + " L" + Point(x, along(second->Y2));
    } else {
        path += Point(along(first.X2), level ? y : along(first.Y2));
    }
    return "<path" + PenAttributes(first) + " d=\"M" + path + "\"/>\n";
}

/// The head of an arrow: a black slice between two angles, counter-clockwise, with an edge in the
/// arrow's colour. The sign of the angles only asks for the radii.
std::string PieElement(const DrawnShape& pie) {
    const double x = pie.X1 / UnitsPerPixel;
    const double y = pie.Y1 / UnitsPerPixel;
    const double radius = pie.Radius / UnitsPerPixel;
    const double start = std::abs(pie.StartAngle);
    double sweep = std::abs(pie.EndAngle) - start;
    if (sweep < 0) sweep += 2 * std::numbers::pi;
    const auto rim = [&](double angle) {
        return Point(x + radius * std::cos(angle), y - radius * std::sin(angle));
    };
    return "<path" + PenAttributes(pie) + " fill=\"#000000\" d=\"M" + Point(x, y) + " L" +
           rim(start) + " A" + Point(radius, radius) + " 0 " +
           (sweep > std::numbers::pi ? "1" : "0") + " 0 " + rim(start + sweep) + " Z\"/>\n";
}

/// The numbers of the document's boxes that show on the sheet, in the order in which they lie.
std::vector<int> ShownBoxes(int document) {
    const auto& sheet = DocumentWindow(document);
    std::vector<int> shown;
    for (int i = 1; i < NextBox; ++i) {
        const bool own = Boxes[i].BoxDocument == document;
        if (own && sheet.box.Has(i) && sheet.box[i].Visible) shown.push_back(i);
    }
    return shown;
}

struct PixelRect {
    double Left = 0, Top = 0, Width = 0, Height = 0;
};

/// Boxes stand on whole pixels.
PixelRect Place(const BoxControl& control) {
    const auto whole = [](double units) { return std::round(units / UnitsPerPixel); };
    return {whole(control.Left), whole(control.Top), whole(control.Width), whole(control.Height)};
}

PixelRect Extent(const Worksheet& sheet, const std::vector<int>& boxes) {
    if (boxes.empty()) return {0, 0, 2 * Margin, 2 * Margin};
    auto place = Place(sheet.box[boxes[0]]);
    double left = place.Left, top = place.Top, right = left, bottom = top;
    for (const int box : boxes) {
        place = Place(sheet.box[box]);
        left = std::min(left, place.Left);
        top = std::min(top, place.Top);
        right = std::max(right, place.Left + place.Width);
        bottom = std::max(bottom, place.Top + place.Height);
    }
    return {left - Margin, top - Margin, right - left + 2 * Margin, bottom - top + 2 * Margin};
}

/// The face and each icon that shows, once.
std::string Definitions(const Worksheet& sheet, const std::vector<int>& boxes) {
    std::set<int> cells;
    for (const int box : boxes) cells.insert(sheet.box[box].Picture);
    std::string text = "<defs>\n";
    for (const int cell : cells) {
        text += "<symbol" + Attribute("id", "cell" + NumberText(cell)) + " viewBox=\"0 0 32 32\">" +
                std::string(IconDrawing(cell)) + "</symbol>\n";
    }
    return text + "</defs>\n";
}

std::string BoxElement(const Worksheet& sheet, int number) {
    const Box& box = Boxes[number];
    const auto place = Place(sheet.box[number]);
    std::string named = BoxName(number) + ": " + box.BoxType;
    if (box.BoxType == "Comment" || !box.BoxText.empty()) named += "\n" + box.BoxText;
    const auto inner = [](double side) { return Pixels(side - 2 * FaceInset); };
    return "<g transform=\"translate(" + Point(place.Left, place.Top) + ")\"><title>" +
           CharacterData(named) + "</title><rect x=\"0.5\" y=\"0.5\"" +
           Attribute("width", Pixels(place.Width - 1)) +
           Attribute("height", Pixels(place.Height - 1)) + " rx=\"4\" ry=\"4\"" +
           Attribute("fill", FaceColor) + Attribute("stroke", FaceEdge) + "/><use" +
           Attribute("xlink:href", "#cell" + NumberText(sheet.box[number].Picture)) +
           Attribute("x", Pixels(FaceInset)) + Attribute("y", Pixels(FaceInset)) +
           Attribute("width", inner(place.Width)) + Attribute("height", inner(place.Height)) +
           "/></g>\n";
}

std::string ArrowElements(const Worksheet& sheet) {
    const auto& shapes = sheet.Surface;
    std::string text = "<g fill=\"none\">\n";
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        if (!IsLine(shapes[i])) {
            text += PieElement(shapes[i]);
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

}  // namespace

std::string DocumentPicture(int document) {
    const auto& sheet = DocumentWindow(document);
    const auto boxes = ShownBoxes(document);
    const auto extent = Extent(sheet, boxes);
    const auto corner = Attribute("x", Pixels(extent.Left)) + Attribute("y", Pixels(extent.Top));
    const auto size =
        Attribute("width", Pixels(extent.Width)) + Attribute("height", Pixels(extent.Height));
    std::string text =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\"" +
        size + " viewBox=\"" + Point(extent.Left, extent.Top) + " " +
        Point(extent.Width, extent.Height) + "\">\n" + Definitions(sheet, boxes) + "<rect" +
        corner + size + Attribute("fill", SheetColor) + "/>\n";
    text += ArrowElements(sheet);
    for (const int box : boxes) text += BoxElement(sheet, box);
    return text + "</svg>\n";
}

}  // namespace quorvane
