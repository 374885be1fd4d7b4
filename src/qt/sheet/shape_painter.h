// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <vector>

#include "diagram/worksheet.h"
#include "qt/sheet/sheet_scale.h"

namespace quorvane {

/// Paints lines and pies in their order, each with the pen it was drawn with, in logical pixels.
/// Lines are aligned to the pixels of the device, so that they stay sharp. Pens are scaled too, to
/// whole pixels of the device and at least one; `thicker` adds logical pixels to them.
void PaintShapes(QPainter& painter, const std::vector<DrawnShape>& shapes,
                 const SheetScale& scale = {}, double thicker = 0);

/// True for lists that are painted alike.
bool SameShapes(const std::vector<DrawnShape>& a, const std::vector<DrawnShape>& b);

/// The colour of a 32-bit value with red in the low byte.
QColor ColorOf(std::int32_t color);
std::int32_t ColorNumber(const QColor& color);

}  // namespace quorvane
