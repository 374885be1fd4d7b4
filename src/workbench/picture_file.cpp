// SPDX-License-Identifier: MIT
#include "workbench/picture_file.h"

#include <unistd.h>

#include "platform/child_program.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "platform/svg_text.h"

namespace quorvane {

PictureFormat PictureFormatOf(const std::string& path) {
    const auto name = LowerCase(path);
    if (name.ends_with(".svg")) return PictureFormat::Svg;
    if (name.ends_with(".pdf")) return PictureFormat::Pdf;
    return name.ends_with(".png") ? PictureFormat::Png : PictureFormat::None;
}

std::string SavePicture(const std::string& path, const std::string& svg, double scale) {
    const auto format = PictureFormatOf(path);
    auto end = PictureEnd::Written;
    if (format == PictureFormat::None) return "The name of a picture ends in .svg, .pdf or .png";
    if (format == PictureFormat::Svg) {
        if (!Attempt([&] { ReplaceFile(path, svg); })) end = PictureEnd::NotWritten;
    } else {
        const auto program = ProgramBeside("quorvane-picture");
        if (program.empty()) {
            return "PDF and PNG pictures aren't there on Windows yet; end the name in .svg";
        }
        if (access(program.c_str(), X_OK) != 0) {
            return "PDF and PNG pictures need the program " + program + ", which isn't there";
        }
        end = static_cast<PictureEnd>(RunProgram({program, path, Pixels(scale, 4)}, svg));
    }
    switch (end) {
        case PictureEnd::Written: return "";
        case PictureEnd::NotWritten: return "The picture can't be written";
        default: return "The picture can't be drawn; a large one needs a smaller scale";
    }
}

}  // namespace quorvane
