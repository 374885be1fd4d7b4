// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

namespace quorvane {

/// The icon strip: cells of 32 by 32 pixels, 15 to a row, numbered from 1.
constexpr int IconPixels = 32;
constexpr int IconColumns = 15;  ///< Cells in a row of the strip
constexpr int IconCells = 146;   ///< Cells in use
/// The cell of a key that has none.
constexpr int FallbackCell = 104;

/// A key and the cell of its picture.
struct IconRow {
    int Cell;              ///< 1 to IconCells
    std::string_view Key;  ///< Type, kind of plot or text, as BoxIconKey gives it
};
/// The keys that are neither the type nor a toolbox key of a box command: what the option lists
/// make of a box, kinds of plot, texts. A command's own picture stands in its row.
extern const std::span<const IconRow> iconTable;

/// The cell of a key; the comparison is case-sensitive.
int IconCell(std::string_view key);

/// The strip's clip window, in pixels.
struct IconStrip {
    int ClipX = 0;
    int ClipY = 0;
};
extern IconStrip icons;

/// Moves the clip window to the cell of a key.
void SelectBoxIcon(std::string_view key);

/// The cell under the clip window: the face that a box is given.
int Clip();

}  // namespace quorvane
