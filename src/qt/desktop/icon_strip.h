// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPixmap>

namespace quorvane {

/// A cell of the icon strip, 1 to 146, at `pixels` logical pixels and the device pixel ratio of the
/// screen that it is for. Cells are drawn from their SVG files once for each size, until many
/// others have been; one without a file gives a null pixmap.
QPixmap CellPixmap(int cell, int pixels, qreal devicePixelRatio);

/// The ground of the cells: light, since their lines are dark.
constexpr QColor PaperColor(0xFB, 0xFB, 0xF8);
/// The same on its light ground, for windows of any colour.
QPixmap CellOnPaper(int cell, int pixels, qreal devicePixelRatio);

}  // namespace quorvane
