// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>

namespace quorvane {

/// A cell of the icon strip, 1 to 146, at `pixels` logical pixels and the device pixel ratio of the
/// screen that it is for. Cells are drawn from their SVG files once for each size; one without a
/// file gives a null pixmap.
QPixmap CellPixmap(int cell, int pixels, qreal devicePixelRatio);

}  // namespace quorvane
