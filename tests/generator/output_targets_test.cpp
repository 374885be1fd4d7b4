// SPDX-License-Identifier: MIT
#include "generator/send_to_matlab.h"
#include "generator/write_script.h"

#include <algorithm>

#include "files/settings.h"
#include "files/work_folder.h"
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

TEST_F(OutputTargetsTest, LinkAndLog) {
    const char* const asked =
        "Matlab is not responding. Maybe it isn't running. Shal I try and start it ?";
    const char* const gaveUp = "DDE Error. Could not compile. Try compiling to the clipboard.";
    for (const auto& row : ReadTable("generator/link.tsv")) {
        SCOPED_TRACE(row.back());
        Restart();
        Draw({{"Constant Input", "3", {}, {2}}, {"Screen Output", "", {1}}});
        frmTextResults.txt.Text = "before|";
        screen.Reply = "ans|";
        const auto failures = Numbers(row[0]);
        screen.LinkFailures.assign(failures.begin(), failures.end());
        const bool gaveUpAtLast = row[1].ends_with("N");
        Texts told(row[1].size(), asked);
        Prepare(row[1]);
        told.emplace_back(gaveUpAtLast ? gaveUp : "Done !");

        EXPECT_EQ(Compile(0), "");
        EXPECT_EQ(Told(), told);
        EXPECT_EQ(Joined(screen.Sent, "|"), row[2]);
        EXPECT_EQ(frmTextResults.txt.Text, "before|" + row[3]);
        EXPECT_EQ(screen.MatlabStarts, std::count(row[1].begin(), row[1].end(), 'Y'));
        if (!row[1].empty()) {
            EXPECT_EQ(screen.Messages[0].Picture, Icon::Critical);
            EXPECT_EQ(screen.Messages[0].Choice, Buttons::YesNo);
        }
        EXPECT_EQ(screen.Messages.back().Picture, Icon::Information);
        EXPECT_DOUBLE_EQ(DocumentWindow(1).pnlResource.Value, 2 / 350.0 * 100);
        ExpectAtRest(gaveUpAtLast ? RunEnd::Aborted : RunEnd::Done);
        if (gaveUpAtLast) continue;
        const auto& sender = frmTextResults.Sender;
        const auto& receiver = frmTextResults.Receiver;
        EXPECT_EQ(sender.Text + receiver.Text, "");
        EXPECT_EQ(sender.LinkMode + receiver.LinkMode, 0);
        EXPECT_EQ(sender.LinkTopic + "|" + sender.LinkItem, "MATLAB|Engine|EngEvalString");
        EXPECT_EQ(receiver.LinkTopic + "|" + receiver.LinkItem, "MATLAB|Engine|EngStringResult");
    }
}

}  // namespace quorvane::testing
