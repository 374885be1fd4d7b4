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
    "Comment~a<b&c;;\xC3\xA9 \xE9 "
    "\x01\xEF\xBF\xBF\r\n-1~-1~-1~-1~0~-1~0~-1~0~-1~0~-1~0\r\n1207~308~\r\n\r\n";

/// Takes what stands from `begin` up to `end` out of the text, at every place.
std::string Without(std::string text, const std::string& begin, const std::string& end) {
    for (auto at = text.find(begin); at != std::string::npos; at = text.find(begin, at)) {
        const auto stop = text.find(end, at += begin.size());
        EXPECT_GT(stop, at) << "nothing is drawn";
        text.erase(at, stop - at);
    }
    return text;
}

std::string PictureOf(const WorkFolder& folder, std::vector<std::string> options,
                      const std::string& file) {
    options.insert(options.end(), {"--picture", file, "diagram.qvm"});
    EXPECT_EQ(RunCompile(folder.Path, options).Exit, 0);
    return ReadAll(folder / file);
}

TEST(PictureTest, ShowsTheSheet) {
    const WorkFolder folder;
    WriteAll(folder / "diagram.qvm", Diagram);
    const auto run = RunCompile(folder.Path, {"--picture", "sheet.svg", "--check", "diagram.qvm"});
    EXPECT_EQ(run.Exit, 1) << "the check goes with it";
    // Without the drawings of the icons.
    auto sheet = Without(ReadAll(folder / "sheet.svg"), R"(<g id="cell20">)", "</g>\n");
    sheet = Without(sheet, R"(<g id="cell118">)", "</g>\n");
    EXPECT_EQ(sheet, ReadAll(QUORVANE_SOURCE_DIR "/tests/compile/sheet.svg"));
    WriteAll(folder / "diagram.qvm", "0\r\n\r\n");
    EXPECT_NE(PictureOf(folder, {}, "none.svg").find(R"(viewBox="-20 -20 40 40")"),
              std::string::npos);
}

TEST(PictureTest, OnPaperPaleArrowsAreDarkAndNamesStandAside) {
    const WorkFolder folder;
    // The arrow enters box 2 from below, where its name would stand.
    const auto pale = Replaced(Diagram, "~255~", "~13158655~");
    WriteAll(folder / "diagram.qvm", Replaced(pale, "300~1200~", "-1500~-150~"));
    const auto paper = PictureOf(folder, {"--paper", "--numbers"}, "paper.svg");
    for (const char* const part :
         {R"(height="267" fill="#ffffff"/>)", R"(<path stroke="#b90000")", R"(fill="#b90000" d=)",
          R"(<text x="29.2" y="-55.5">box2</text>)", R"(<text x="37.5" y="124.5">box3</text>)"}) {
        EXPECT_NE(paper.find(part), std::string::npos) << part << " in " << paper;
    }
}

TEST(PictureTest, WritesWhatTheEndingNames) {
    const WorkFolder folder;
    WriteAll(folder / "diagram.qvm", Diagram);
    if (!std::filesystem::exists(std::filesystem::path(CompileProgram()).parent_path() /
                                 "quorvane-picture")) {
        const auto run = RunCompile(folder.Path, {"--picture", "a.pdf", "diagram.qvm"});
        EXPECT_NE(run.Errors.find("PDF and PNG pictures"), std::string::npos) << run.Errors;
        EXPECT_EQ(run.Exit, 2);
        GTEST_SKIP() << "quorvane-picture was left out of the build";
    }
    EXPECT_TRUE(PictureOf(folder, {}, "a.PDF").starts_with("%PDF-"));
    // Behind the name of the first part of a PNG stand width and height.
    const auto size = [&](const char* scale) {
        const auto png = PictureOf(folder, {"--scale", scale}, "a.png");
        EXPECT_TRUE(png.starts_with("\x89PNG\r\n"));
        return png.substr(16, 8);
    };
    EXPECT_EQ(size("1"), std::string("\0\0\0\xA3\0\0\0\x85", 8));
    EXPECT_EQ(size("2.5"), std::string("\0\0\x01\x98\0\0\x01\x4D", 8));
    const auto unwritten = RunCompile(folder.Path, {"--picture", "gone/a.pdf", "diagram.qvm"});
    EXPECT_EQ(unwritten.Errors, "quorvane-compile: gone/a.pdf: The picture can't be written\n");
}

TEST(PictureTest, ShowsWhatHasChanged) {
    const WorkFolder folder;
    WriteAll(folder / "old.qvm", Diagram);
    // Without box 1, which fed box 2, and with box 3 elsewhere.
    WriteAll(folder / "new.qvm",
             "2\r\nSin~\r\n0~0~-1~0~0~0~0~0~0~0~0~0~0\r\n300~1200~\r\n"
             "Comment~a<b&c;;\xC3\xA9 \xE9 "
             "\x01\xEF\xBF\xBF\r\n-1~-1~-1~-1~0~-1~0~-1~0~-1~0~-1~0\r\n1800~308~\r\n\r\n");
    const auto run =
        RunCompile(folder.Path, {"--diff", "--picture", "both.svg", "old.qvm", "new.qvm"});
    EXPECT_EQ(run.Exit, 1) << run.Errors;
    const auto both = ReadAll(folder / "both.svg");
    for (const char* const part :
         {R"(stroke="#d03030" stroke-width="2"/>)", R"(stroke="#3060d0" stroke-width="2"/>)",
          R"(<path stroke="#d03030")"}) {
        EXPECT_NE(both.find(part), std::string::npos) << part << " in " << both;
    }
    EXPECT_EQ(RunCompile(folder.Path, {"--picture", "./", "old.qvm", "new.qvm"}).Exit, 0);
    EXPECT_TRUE(ReadAll(folder / "old.svg").starts_with("<svg"));
}

}  // namespace
