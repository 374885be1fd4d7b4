// SPDX-License-Identifier: MIT
#include "generator/send_to_matlab.h"
#include "generator/write_script.h"

#include "generator/generator_fixture.h"

namespace quorvane::testing {

using OutputTargetsTest = GeneratorTest;

TEST_F(OutputTargetsTest, Diagrams) {
    for (const char* table : {"walk", "control_flow", "sending"}) {
        CheckDiagrams("generator/" + std::string(table) + ".tsv");
    }
}

TEST_F(OutputTargetsTest, TextsBeforeTheyAreSent) {
    for (const auto& row : ReadTable("generator/sent_texts.tsv")) {
        const auto text =
            row[0] == "fold" ? FoldFirstPlot(row[1]) : WithoutDoubleSemicolons(row[1]);
        EXPECT_EQ(text, row[2]) << row.back();
    }
}

/// A failure falls to the box that its line names, or to the one that sent the part of the log.
TEST_F(OutputTargetsTest, FailuresInTheLogHaveTheirBoxes) {
    Draw({{"Pause", "", {}, {}}, {"Keyboard Input", "a=b", {}, {}}});
    screen.Reply = "error: 'b' undefined\nbox1: parse error near line 1\nboxes: error: none\n";
    screen.Kept = "box7: error: late\nerror: at the end";
    mnuEXEMatlab_Click(Sheet());
    std::string told;
    for (const auto& fault : FaultsOfLog(0)) {
        told += std::to_string(fault.Box) + " " +
                frmTextResults.txt.Text.substr(fault.Begin, fault.End - fault.Begin) + "|";
    }
    EXPECT_EQ(told,
              "2 error: 'b' undefined|1 box1: parse error near line 1|"
              "7 box7: error: late|0 error: at the end|");
    EXPECT_EQ(FaultsOfLog(frmTextResults.txt.Text.rfind("error: at")).size(), 1U);
}

}  // namespace quorvane::testing
