// SPDX-License-Identifier: MIT
// Draws the contact sheet of the icon strip: each cell in its order, on light and on dark, with its
// number and all keys that show it. The target icon_sheet writes docs/icons.svg with it.
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "catalogue/box_commands.h"
#include "catalogue/icon_table.h"
#include "compile/icon_files.h"
#include "diagram/picture.h"

using namespace quorvane;

namespace {

constexpr int Columns = 5;
constexpr int ColumnWidth = 250;
constexpr int LineHeight = 14;
constexpr int Margin = 16;
constexpr int Gap = 20;  // between entries

std::string Number(int number) { return std::to_string(number); }

std::string Drawing(int cell) { return IconDrawing(IconFile(cell)); }

std::string Escaped(std::string_view key) {
    std::string text;
    for (const char c : key) text += c == '&' ? "&amp;" : std::string(1, c);
    return text;
}

std::vector<std::string> Captions(int cell) {
    std::vector<std::string> captions;
    const auto add = [&](std::string_view key) {
        const auto text = Escaped(key);
        const bool isNew = std::find(captions.begin(), captions.end(), text) == captions.end();
        if (!key.empty() && isNew && IconCell(key) == cell) captions.push_back(text);
    };
    for (const auto& command : boxCommands) {
        for (const auto key : command.ToolboxKeys) add(key);
        add(command.BoxType);
    }
    for (const auto& row : iconTable) add(row.Key);
    if (cell == FallbackCell) captions.emplace_back("every key without a row");
    if (captions.empty()) captions.emplace_back("no key, no picture");
    return captions;
}

std::string Text(int x, int y, const char* attributes, const std::string& text) {
    return "<text x=\"" + Number(x) + "\" y=\"" + Number(y) + "\" " + attributes + ">" + text +
           "</text>\n";
}

/// A tile of the given ground and edge, with the picture on it when the cell has one.
std::string Tile(int cell, int x, int y, const std::string& colors) {
    const auto place = " x=\"" + Number(x) + "\" y=\"" + Number(y) + "\"";
    std::string tile = "<rect" + place + " width=\"32\" height=\"32\" rx=\"4\" " + colors + "/>";
    if (!Drawing(cell).empty()) {
        tile += "<use" + place + " width=\"32\" height=\"32\" xlink:href=\"#cell" + Number(cell) +
                "\"/>";
    }
    return tile + "\n";
}

std::string Entry(int cell, int x, int y) {
    std::string entry;
    if (Drawing(cell).empty()) {
        entry += Tile(cell, x, y, "fill=\"none\" stroke=\"#b0b4ba\" stroke-dasharray=\"3 3\"");
    } else {
        entry += Tile(cell, x, y, "fill=\"#fbfbf8\"") + Tile(cell, x + 40, y, "fill=\"#202225\"");
    }
    int line = y + 32 + LineHeight;
    entry += Text(x, line, "font-weight=\"bold\"", Number(cell));
    for (const auto& caption : Captions(cell)) {
        entry += Text(x + 30, line, "", caption);
        line += LineHeight;
    }
    return entry;
}

int HeightOf(int cell) { return 32 + static_cast<int>(Captions(cell).size()) * LineHeight + Gap; }

/// The cells stand below one another, in columns of about the same height.
std::string Sheet() {
    int wanted = 0;
    for (int cell = 1; cell <= IconCells; ++cell) wanted += HeightOf(cell);
    wanted /= Columns;
    std::string drawings;
    std::string entries;
    int column = 0;
    int top = 0;
    int bottom = 0;
    for (int cell = 1; cell <= IconCells; ++cell) {
        if (const auto drawing = Drawing(cell); !drawing.empty()) {
            drawings += "<symbol id=\"cell" + Number(cell) + "\" viewBox=\"0 0 32 32\">" + drawing +
                        "</symbol>\n";
        }
        if (top >= wanted) {
            ++column;
            top = 0;
        }
        entries += Entry(cell, Margin + column * ColumnWidth, Margin + top);
        top += HeightOf(cell);
        bottom = std::max(bottom, top);
    }
    const auto size = " width=\"" + Number(2 * Margin + Columns * ColumnWidth) + "\" height=\"" +
                      Number(2 * Margin + bottom - Gap) + "\"";
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" "
           "xmlns:xlink=\"http://www.w3.org/1999/xlink\"" +
           size + ">\n<defs>\n" + drawings + "</defs>\n<rect" + size +
           " fill=\"#ffffff\"/>\n"
           "<g font-family=\"sans-serif\" font-size=\"11\" fill=\"#202225\">\n" +
           entries + "</g>\n</svg>\n";
}

}  // namespace

int main(int argc, char** argv) {
    auto* const file = argc == 2 ? std::fopen(argv[1], "wb") : nullptr;
    if (!file) {
        std::fprintf(stderr, "usage: icon_sheet_writer FILE\n");
        return 2;
    }
    const auto sheet = Sheet();
    const bool written = std::fwrite(sheet.data(), 1, sheet.size(), file) == sheet.size();
    return std::fclose(file) == 0 && written ? 0 : 1;
}
