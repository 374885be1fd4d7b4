// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "diagram/worksheet.h"

namespace quorvane {

/// The extent that the page view shows, in screen units, of whichever worksheet was loaded or grew
/// last.
extern std::int32_t PageRight;
extern std::int32_t PageBottom;

/// Runs once for each new worksheet window.
void main_Load(Worksheet& sheet);

/// Arranges the bars by ScaleWidth and ScaleHeight, which the screen has written. A minimised
/// window only becomes the CurrentDocument. An extent that would be negative stays as it was.
void main_Resize(Worksheet& sheet);

/// Move the boxes by the bar's new value. At its maximum the sheet grows by 1000, up to 16 bits.
void scrH_Change(Worksheet& sheet);
void scrV_Change(Worksheet& sheet);

}  // namespace quorvane
