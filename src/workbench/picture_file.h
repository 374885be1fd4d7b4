// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace quorvane {

/// What a picture is written as.
enum class PictureFormat { None, Svg, Pdf, Png };

/// By the ending of the file's name, in any case of letters.
PictureFormat PictureFormatOf(const std::string& path);

/// Writes an SVG picture to the file at `path`, in the format of its name. PDF and PNG are made by
/// quorvane-picture, so that this program needs no library for them. A PNG gets `scale` pixels for
/// each pixel of the picture. Returns "", or what went wrong.
std::string SavePicture(const std::string& path, const std::string& svg, double scale = 1);

/// The exit codes of quorvane-picture.
enum class PictureEnd { Written = 0, WrongUse = 1, NotWritten = 2, NotDrawn = 3 };

}  // namespace quorvane
