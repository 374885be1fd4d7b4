// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace quorvane {

/// What --picture and the options that go with it ask for.
struct PictureOrder {
    std::string File;  ///< "" for no picture
    bool Paper = false;
    bool Numbers = false;
    std::optional<double> Scale;
};

/// True for a file name that ends in a separator.
bool NamesFolder(const std::string& picture);

/// The order for one of several diagrams: "DIR/" becomes the file in that folder that is called as
/// the diagram is, an SVG.
PictureOrder PictureOf(PictureOrder order, const std::string& diagram);

/// Why no diagram can be drawn so: one line, "" for nothing.
std::string Complaint(const PictureOrder& order);

/// Draws the diagram of this document, with colours for boxes that stand out. Returns one line that
/// says what went wrong, "" for nothing.
std::string DrawPicture(const PictureOrder& order, int document,
                        const std::map<int, std::int32_t>& tints = {});

}  // namespace quorvane
