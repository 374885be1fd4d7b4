// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace quorvane {

/// How a picture of a diagram looks.
struct PictureLook {
    bool OnPaper = false;                 ///< Dark arrows on white, else as a worksheet shows them
    bool Numbers = false;                 ///< "box3" stands below each box
    std::map<int, std::int32_t> Tints{};  ///< Boxes that stand out, with red in the low byte
};

/// The SVG file of a cell of the icon strip, resources/icons/NNN.svg; "" for a cell without one.
using IconReader = std::string (*)(int cell);

/// What the file of an icon draws in its square of 32 by 32, as SVG elements. A comment in the file
/// has a line of its own.
std::string IconDrawing(const std::string& file);

/// The diagram of this document as an SVG picture: its arrows and boxes, wherever its worksheet is
/// scrolled to. Pointing at a box shows its number and the text of its bubble.
std::string DocumentPicture(int document, IconReader readIcon, const PictureLook& look = {});

}  // namespace quorvane
