// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvane {

/// The diagram of this document as the worksheet shows it, as an SVG picture: its arrows and boxes
/// on the sheet's colour. Pointing at a box shows its number and the text of its bubble.
std::string DocumentPicture(int document);

/// What the icon of a cell of the strip draws, as SVG elements in a square of 32 by 32; "" for a
/// cell without one. The build makes these texts from resources/icons.
std::string_view IconDrawing(int cell);

}  // namespace quorvane
