// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "compile/run_compile.h"

using namespace quorvane::testing;

namespace {

// Boxes 1 and 2 stand on a line with an arrow to the second entry, box 3 below and aside.
constexpr auto Diagram =
    "3\r\nSin~\r\n0~-1~-1~2~0~0~255~0~0~0~0~0~0\r\n300~-150~\r\n"
    "Sin~\r\n0~1~-1~0~0~0~0~0~0~0~0~0~0\r\n300~1200~\r\n"
    "Comment~a<b&c;;\xC3\xA9 \xE9 \x01\r\n-1~-1~-1~-1~0~-1~0~-1~0~-1~0~-1~0\r\n1207~308~\r\n\r\n";

// Without the drawings of the icons.
constexpr auto Picture =
    R"svg(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="163" height="133" viewBox="-30 0 163 133">
<defs>
<symbol id="cell20" viewBox="0 0 32 32"></symbol>
<symbol id="cell118" viewBox="0 0 32 32"></symbol>
</defs>
<rect x="-30" y="0" width="163" height="133" fill="#4c5866"/>
<g fill="none">
<path stroke="#ff0000" stroke-width="1" d="M3.2 36.5 L93.5 36.5 L93.5 20"/>
<path stroke="#ff0000" stroke-width="1" fill="#000000" d="M80 36.5 L70.15 34.78 A10 10 0 0 0 70.84 40.52 Z"/>
</g>
<g transform="translate(-10 20)"><title>box1: Sin</title>FACE<use xlink:href="#cell118" x="1.5" y="1.5" width="30" height="30"/></g>
<g transform="translate(80 20)"><title>box2: Sin</title>FACE<use xlink:href="#cell118" x="1.5" y="1.5" width="30" height="30"/></g>
<g transform="translate(21 80)"><title>box3: Comment
a&lt;b&amp;c;;é ? ?</title>FACE<use xlink:href="#cell20" x="1.5" y="1.5" width="30" height="30"/></g>
</svg>
)svg";

/// Takes what stands from `begin` up to `end` out of the text, at every place.
std::string Without(std::string text, const std::string& begin, const std::string& end) {
    for (auto at = text.find(begin); at != std::string::npos; at = text.find(begin, at)) {
        const auto stop = text.find(end, at += begin.size());
        EXPECT_GT(stop, at) << "nothing is drawn";
        text.erase(at, stop - at);
    }
    return text;
}

TEST(PictureTest, ShowsTheSheet) {
    const WorkFolder folder;
    WriteAll(folder / "diagram.qvm", Diagram);
    const auto run = RunCompile(folder.Path, {"--picture", "sheet.svg", "--check", "diagram.qvm"});
    EXPECT_EQ(run.Exit, 1) << "the check goes with it";
    auto sheet = Without(ReadAll(folder / "sheet.svg"), R"(viewBox="0 0 32 32">)", "</symbol>");
    const std::string face =
        R"(<rect x="0.5" y="0.5" width="32" height="32" rx="4" ry="4" fill="#fbfbf8" stroke="#3a424c"/>)";
    for (auto at = sheet.find(face); at != std::string::npos; at = sheet.find(face)) {
        sheet.replace(at, face.size(), "FACE");
    }
    EXPECT_EQ(sheet, Picture);
    WriteAll(folder / "none.qvm", "0\r\n\r\n");
    EXPECT_EQ(RunCompile(folder.Path, {"--picture", "sheet.svg", "none.qvm"}).Exit, 0);
    EXPECT_NE(ReadAll(folder / "sheet.svg").find(R"(viewBox="0 0 40 40")"), std::string::npos);
}

}  // namespace
