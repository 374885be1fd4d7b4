// SPDX-License-Identifier: MIT
// quorvane-picture FILE [SCALE]: draws the SVG picture on standard input into FILE, which ends in
// .pdf or .png, a PNG with SCALE pixels for each of the picture. quorvane-compile and the
// application start it, so that neither of them needs to load what it takes.
#include <cairo-pdf.h>
#include <librsvg/rsvg.h>

#include <charconv>
#include <cmath>
#include <cstdio>
#include <memory>
#include <string>

#include "platform/file_table.h"
#include "platform/runtime_error.h"
#include "workbench/picture_file.h"

using namespace quorvane;

namespace {

template <auto Release>
struct Releaser {
    void operator()(auto* object) const { Release(object); }
};
using Svg = std::unique_ptr<RsvgHandle, Releaser<g_object_unref>>;
using Surface = std::unique_ptr<cairo_surface_t, Releaser<cairo_surface_destroy>>;
using Context = std::unique_ptr<cairo_t, Releaser<cairo_destroy>>;

std::string ReadInput() {
    std::string text;
    char part[1 << 16];
    while (const auto size = std::fread(part, 1, sizeof part, stdin)) text.append(part, size);
    return text;
}

cairo_status_t Collect(void* bytes, const unsigned char* data, unsigned size) {
    static_cast<std::string*>(bytes)->append(data, data + size);
    return CAIRO_STATUS_SUCCESS;
}

bool Draw(RsvgHandle* svg, cairo_surface_t* surface, double width, double height) {
    const Context context(cairo_create(surface));
    const RsvgRectangle place = {0, 0, width, height};
    return rsvg_handle_render_document(svg, context.get(), &place, nullptr) &&
           cairo_status(context.get()) == CAIRO_STATUS_SUCCESS;
}

/// The page is as large as the picture on a screen of 96 pixels to the inch.
bool DrawPdf(RsvgHandle* svg, double width, double height, std::string& bytes) {
    constexpr double pointsPerPixel = 0.75;
    width *= pointsPerPixel;
    height *= pointsPerPixel;
    const Surface surface(cairo_pdf_surface_create_for_stream(Collect, &bytes, width, height));
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATOR, "Quorvane");
    if (!Draw(svg, surface.get(), width, height)) return false;
    cairo_surface_finish(surface.get());
    return cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS;
}

/// Whatever is larger than a gigabyte in memory isn't drawn.
bool DrawPng(RsvgHandle* svg, double width, double height, double scale, std::string& bytes) {
    constexpr double largest = 32767, most = 1 << 28;
    width = std::fmax(1, std::round(width * scale));
    height = std::fmax(1, std::round(height * scale));
    if (width > largest || height > largest || width * height > most) return false;
    const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, static_cast<int>(width),
                                                     static_cast<int>(height)));
    return Draw(svg, surface.get(), width, height) &&
           cairo_surface_write_to_png_stream(surface.get(), Collect, &bytes) ==
               CAIRO_STATUS_SUCCESS;
}

PictureEnd WritePicture(const std::string& path, double scale) {
    const auto text = ReadInput();
    const Svg svg(rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(text.data()),
                                            text.size(), nullptr));
    double width = 0, height = 0;
    if (!svg || !rsvg_handle_get_intrinsic_size_in_pixels(svg.get(), &width, &height)) {
        return PictureEnd::NotDrawn;
    }
    std::string bytes;
    const bool isDrawn = PictureFormatOf(path) == PictureFormat::Pdf
                             ? DrawPdf(svg.get(), width, height, bytes)
                             : DrawPng(svg.get(), width, height, scale, bytes);
    if (!isDrawn) return PictureEnd::NotDrawn;
    const bool isWritten = Attempt([&] { ReplaceFile(path, bytes); });
    return isWritten ? PictureEnd::Written : PictureEnd::NotWritten;
}

}  // namespace

int main(int argc, char** argv) {
    const auto format = argc > 1 ? PictureFormatOf(argv[1]) : PictureFormat::None;
    const std::string factor = argc > 2 ? argv[2] : "1";
    double scale = 0;
    std::from_chars(factor.data(), factor.data() + factor.size(), scale);
    const bool isKnown = format == PictureFormat::Pdf || format == PictureFormat::Png;
    if (!isKnown || argc > 3 || !(scale > 0)) {
        std::fprintf(stderr, "usage: quorvane-picture FILE.pdf|FILE.png [SCALE] < PICTURE.svg\n");
        return static_cast<int>(PictureEnd::WrongUse);
    }
    return static_cast<int>(WritePicture(argv[1], scale));
}
