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

}  // namespace quorvane::testing
