// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

namespace quorvane {

/// The icon strip: cells of 32 by 32 pixels, 15 to a row, numbered from 1.
constexpr int IconPixels = 32;
constexpr int IconColumns = 15;
constexpr int IconCells = 146;
/// The cell of a key that the table doesn't have.
constexpr int FallbackCell = 104;

struct IconRow {
    int Cell;
    std::string_view Key;
};
extern const std::vector<IconRow> iconTable;

/// The strip's clip window, in pixels.
struct IconStrip {
    int ClipX = 0;
    int ClipY = 0;
};
extern IconStrip icons;

/// Moves the clip window to the cell of a key; the comparison is case-sensitive.
void SelectBoxIcon(std::string_view key);

/// The cell under the clip window: the face that a box is given.
int Clip();

}  // namespace quorvane
