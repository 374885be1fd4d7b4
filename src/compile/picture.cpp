// SPDX-License-Identifier: MIT
#include "compile/picture.h"

#include "compile/icon_files.h"
#include "diagram/picture.h"
#include "platform/paths.h"
#include "workbench/picture_file.h"

namespace quorvane {

bool NamesFolder(const std::string& picture) {
    return !picture.empty() && !SystemPath(picture).has_filename();
}

PictureOrder PictureOf(PictureOrder order, const std::string& diagram) {
    if (NamesFolder(order.File)) {
        order.File += SystemPath(diagram).stem().string() + ".svg";
    }
    return order;
}

std::string Complaint(const PictureOrder& order) {
    if (order.File.empty()) return "";
    const auto format = PictureFormatOf(order.File);
    if (format == PictureFormat::None) {
        return order.File + ": The name of a picture ends in .svg, .pdf or .png";
    }
    if (order.Scale && format != PictureFormat::Png) {
        return order.File + ": --scale is for PNG pictures; others have no pixels";
    }
    return "";
}

std::string DrawPicture(const PictureOrder& order, int document,
                        const std::map<int, std::int32_t>& tints) {
    const PictureLook look = {order.Paper, order.Numbers, tints};
    const auto fault =
        SavePicture(order.File, DocumentPicture(document, IconFile, look), order.Scale.value_or(1));
    return fault.empty() ? "" : order.File + ": " + fault;
}

}  // namespace quorvane
