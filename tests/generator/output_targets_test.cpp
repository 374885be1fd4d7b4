// SPDX-License-Identifier: MIT
#include "generator/send_to_matlab.h"
#include "generator/write_script.h"

#include <algorithm>

#include "files/settings.h"
#include "files/work_folder.h"
#include "generator/generator_fixture.h"

namespace quorvane::testing {

using OutputTargetsTest = GeneratorTest;

TEST_F(OutputTargetsTest, Diagrams) { CheckDiagrams("generator/sending.tsv"); }

TEST_F(OutputTargetsTest, TextsBeforeTheyAreSent) {
    for (const auto& row : ReadTable("generator/sent_texts.tsv")) {
        const auto text =
            row[0] == "fold" ? FoldFirstPlot(row[1]) : WithoutDoubleSemicolons(row[1]);
        EXPECT_EQ(text, row[2]) << row.back();
    }
}

TEST_F(OutputTargetsTest, SendingMakesFailuresIgnored) {
    Draw({{"Constant Input", "1", {}, {2}}, {"Compute Function", "Inputs;Input1", {1}}});
    EXPECT_EQ(Compile(0), "");
    EXPECT_EQ(screen.Sent.back(), Crlf("box2=0;Inputs;box1\n"));
    frmPrefs.chkInput.Value = 1;
    for (const int entry : {1, 2, 3}) Boxes[2].BoxIn[entry] = 0;
    Boxes[1].BoxDocument = 2;
    EXPECT_EQ(RaisedError([&] { Compile(0); }), 13);
    ExpectAtRest(RunEnd::None);
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

/// The name that is chosen, the answer to the offer of a header, the name of the file that is then
/// there, and what stands in it around the script.
struct FileRow {
    const char* Chosen;
    Answer Header;
    const char* Written;
    const char* Head;
    const char* End;
};
const FileRow fileRows[] = {
    {"Plain.m", Answer::No, "Plain.m", "", ""},
    {"My Sum.m", Answer::Yes, "My Sum", "function my sum;\r\n", "end\r\n"},
    {"two.parts.M", Answer::Yes, "two", "function two;\r\n", "end\r\n"},
    {"bare", Answer::Yes, "bare", "function bare;\r\n", "end\r\n"},
};

TEST_F(OutputTargetsTest, Files) {
    for (const auto& row : fileRows) {
        SCOPED_TRACE(row.Chosen);
        Restart();
        Draw({{"Constant Input", "3"}});
        const WorkFolder folder;
        screen.Paths = {folder / row.Chosen};
        screen.MessageAnswers = {row.Header};
        mnuExeFile_Click(Sheet());
        EXPECT_EQ(NamesIn(folder.Path), std::set<std::string>{row.Written});
        EXPECT_EQ(ReadAll(folder / row.Written),
                  std::string(row.Head) + "box1=3;\r\n" + row.End + "\r\n");
        EXPECT_EQ(TakeTold(), "iDone !|?Do you want to add a function header ?");
    }
    std::string path = "no_folder.m";
    EXPECT_EQ(AddFunctionHeader(path, "x"), "x");
    EXPECT_EQ(path, "no_folder");
    path = "C:\\dir.x\\It.m";
    EXPECT_EQ(AddFunctionHeader(path, "x"), "function it;\r\nxend\r\n");
    EXPECT_EQ(path, "C:\\dir.x\\It");
}

TEST_F(OutputTargetsTest, FilesThatAreNotWritten) {
    mnuExeFile_Click(Sheet());
    EXPECT_EQ(TakeTold(), "") << "without a file nothing is compiled";
    screen.Paths = {"/nowhere/a.m"};
    mnuExeFile_Click(Sheet());
    EXPECT_EQ(TakeTold(), "!There are no inputs !|!No file to make, check your algorithm.");
    Draw({{"Constant Input", "3"}});
    screen.Paths = {"/nowhere/a.m"};
    screen.MessageAnswers = {Answer::No};
    mnuExeFile_Click(Sheet());
    EXPECT_EQ(TakeTold(), "iDone !|?Do you want to add a function header ?");
}

TEST_F(OutputTargetsTest, TheLogGoesOnUntilItsWindowIsClosed) {
    Draw({{"Constant Input", "3"}});
    screen.Reply = "ans|";
    screen.Kept = "unclosed|";
    for (const char* log :
         {"box1=3;\r\nans|unclosed|", "box1=3;\r\nans|unclosed|box1=3;\r\nans|unclosed|"}) {
        mnuEXEMatlab_Click(Sheet());
        EXPECT_EQ(frmTextResults.txt.Text, log);
        EXPECT_TRUE(frmTextResults.Form.Visible);
    }
    frmTextResults_cmdOK_Click();
    EXPECT_FALSE(frmTextResults.Form.Visible);
    mnuEXEMatlab_Click(Sheet());
    EXPECT_EQ(frmTextResults.txt.Text, "box1=3;\r\nans|unclosed|");
    frmTextResults_cmdOK_Click();
    screen.LinkFailures = {282};
    mnuEXEMatlab_Click(Sheet());
    EXPECT_EQ(frmTextResults.txt.Text, "dropped|") << "a run that was broken off";
}

TEST_F(OutputTargetsTest, MatlabIsToldWhichBoxWroteWhichLine) {
    Draw({{"Constant Input", "3", {}, {2}},
          {"If", "a>1", {1}, {3}},
          {"Screen Output", "", {2}, {}}});
    mnuEXEMatlab_Click(Sheet());
    EXPECT_EQ(frmTextResults.txt.Text, "box1=3;\r\nbox2=box1;\r\nif (a>1),\r\n   box3=box2\r\n");
    EXPECT_EQ(screen.SentBoxes, (std::vector<LineBoxes>{{1}, {2, 2, 3}}));
}

}  // namespace quorvane::testing
