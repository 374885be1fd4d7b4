// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <vector>

#include "diagram/worksheet.h"

namespace quorvane {

/// Paints lines and pies in their order, each with the pen it was drawn with, in logical pixels.
/// Lines are aligned to the pixels of the device, so that they stay sharp.
void PaintShapes(QPainter& painter, const std::vector<DrawnShape>& shapes);

/// The colour of a 32-bit value with red in the low byte.
QColor ColorOf(std::int32_t color);
std::int32_t ColorNumber(const QColor& color);

}  // namespace quorvane
