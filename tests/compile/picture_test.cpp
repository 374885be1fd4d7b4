// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "compile/run_compile.h"
#include "support/table_file.h"

using namespace quorvane::testing;

namespace {

// Boxes 1 and 2 stand on a line with an arrow to the second entry, box 3 below and aside.
constexpr auto Diagram =
    "3\r\nSin~\r\n0~-1~-1~2~0~0~255~0~0~0~0~0~0\r\n300~-150~\r\n"
    "Sin~\r\n0~1~-1~0~0~0~0~0~0~0~0~0~0\r\n300~1200~\r\n"
    "Comment~a<b&c;;\xC3\xA9 \xE9 \x01\r\n-1~-1~-1~-1~0~-1~0~-1~0~-1~0~-1~0\r\n1207~308~\r\n\r\n";

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
    sheet = Replaced(sheet, face, "FACE");
    // Without the drawings of the icons.
    EXPECT_EQ(sheet, ReadAll(QUORVANE_SOURCE_DIR "/tests/compile/sheet.svg"));
    WriteAll(folder / "none.qvm", "0\r\n\r\n");
    EXPECT_EQ(RunCompile(folder.Path, {"--picture", "sheet.svg", "none.qvm"}).Exit, 0);
    EXPECT_NE(ReadAll(folder / "sheet.svg").find(R"(viewBox="0 0 40 40")"), std::string::npos);
}

}  // namespace
