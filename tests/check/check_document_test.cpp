// SPDX-License-Identifier: MIT
#include "check/check_document.h"

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <tuple>

#include "commands/matrix_input.h"
#include "generator/generator_fixture.h"

namespace quorvane::testing {

class CheckTest : public GeneratorTest {
protected:
    std::string told;  ///< All findings and their advice

    static auto State() {
        return std::tuple(
            Boxes, std::vector<int>(Front.Data(), Front.Data() + Front.UpperBound() + 1),
            frontWidth, FrameStack.UpperBound(), nestingDepth, EditMode, lastRunEnd,
            frmMatrix.mat.Text, Sheet().MousePointer, Sheet().pnlResource.Value, desktop);
    }

    /// The findings as "number text", after a check in the middle of a run that waits for an
    /// answer, which must leave everything as it was.
    Texts Check() {
        Boxes[NextBox - 1].BoxMark = "OK";
        nestingDepth = 2;
        FrameStack.Resize(2);
        Front[2] = Front[0] = 7;
        EditMode = 4;
        lastRunEnd = RunEnd::Aborted;
        frmMatrix.mat.Text = "[1 2";
        Sheet().MousePointer = PointerCross;
        Sheet().pnlResource.Value = 40;
        const auto before = State();
        Texts texts;
        for (const auto& finding : CheckDocument(1)) {
            texts.push_back(std::to_string(finding.Box) + " " + finding.Text);
            EXPECT_EQ(finding.Type, Boxes[finding.Box].BoxType);
            EXPECT_FALSE(finding.Advice.empty());
            told += finding.Text + finding.Advice;
        }
        EXPECT_TRUE(State() == before);
        EXPECT_TRUE(screen.Messages.empty());
        return texts;
    }
};

TEST_F(CheckTest, PlantedFaults) {
    for (const auto& row : ReadTable("check/check.tsv")) {
        SCOPED_TRACE(row.back() + " " + row[0]);
        Restart();
        for (std::size_t i = 2; i + 1 < row.size() && !row[i].empty(); ++i) DrawBox(row[i]);
        const auto found = Check();
        const auto begins = row[1].empty() ? Texts() : Split(row[1], '|');
        const bool same =
            std::equal(found.begin(), found.end(), begins.begin(), begins.end(),
                       [](auto& text, auto& begin) { return text.starts_with(begin); });
        EXPECT_TRUE(same) << Joined(found, "\n");
    }
    EXPECT_EQ(DigestOf(told), 793529653U) << "a letter has changed in: " << told;
}

TEST_F(CheckTest, WhateverDoesNotEndWellIsFound) {
    for (const char* const table : {"generator/walk.tsv", "generator/control_flow.tsv"}) {
        ForEachDiagram(table, [&](const Texts& expected) {
            const bool endsWell = expected[2] == "Done !" && std::atoi(expected[3].c_str()) == 0;
            const auto found = Check();
            EXPECT_TRUE(endsWell || !found.empty());
        });
    }
}

/// Each loop leads into the next two.
TEST_F(CheckTest, ManyNestedBlocksTakeNoTime) {
    for (int i = 1; i < MaxBoxes; ++i) Draw({{"For", "1:3", {i == 1 ? 0 : i - 1}, {i + 1, i + 2}}});
    Draw({{"Next", "", {MaxBoxes - 1}}});
    const auto start = std::clock();
    EXPECT_FALSE(Check().empty());
    EXPECT_LT(std::clock() - start, 5 * CLOCKS_PER_SEC);
}

TEST_F(CheckTest, ExamplesAreClean) {
    for (const auto& entry : std::filesystem::directory_iterator(QUORVANE_SOURCE_DIR "/examples")) {
        if (entry.path().extension() != ".qvm") continue;
        ResetApplication();
        screen = ScriptedDesktop();
        LoadDocumentFile(entry.path().string());
        EXPECT_EQ(Joined(Check(), "\n"), "") << entry.path();
    }
}

}  // namespace quorvane::testing
