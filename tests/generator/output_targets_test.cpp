// SPDX-License-Identifier: MIT
#include "generator/output_targets.h"

#include "generator/generator_fixture.h"

namespace quorvane::testing {

namespace {

struct TextCase {
    const char* Text;
    const char* Expected;
};

const std::string Ready = "system_dependent(12,'off');";

const char* const NotResponding =
    "Matlab is not responding. Maybe it isn't running. Shal I try and start it ?";
const char* const GaveUp = "DDE Error. Could not compile. Try compiling to the clipboard.";

}  // namespace

class OutputTargetsTest : public GeneratorTest {
protected:
    void DrawTwoBoxes() { Draw({{"Constant Input", "3", {}, {2}}, {"Screen Output", "", {1}}}); }
    /// Compiles for MATLAB and looks at the texts that were sent, line ends written as "\n".
    void ExpectSent(const std::vector<std::string>& texts) {
        EXPECT_EQ(Compile(0), "");
        Texts expected;
        for (const auto& text : texts) expected.push_back(Crlf(text));
        EXPECT_EQ(screen.Sent, expected);
    }
};

TEST_F(OutputTargetsTest, TheFirstPlotBecomesOneLine) {
    const std::vector<TextCase> cases = {
        {"figure;\nplot(1)\ngrid;\n;", "figure;plot(1);grid;;\n"},
        {"plot(1)\n;", "figure;plot(1);;\n"},
        {"Figure;\n;", "figure;Figure;;\n"},
        {"   figure;\n;", "figure;   figure;;\n"},
        {"\nfigure;;", "figure;;figure;;\n"},
        {"", "figure;\n"},
        {";", "figure;;\n"},
        // The last line end is out of reach unless one in front of it made the text shorter.
        {"plot(1)", "figure;plot(1)\n"},
        {"plot(1)\n", "figure;plot(1)\n\n"},
        {"plot(1);\n", "figure;plot(1);\n\n"},
        {"plot(1);\nx;\n", "figure;plot(1);x;\n"},
        {"plot(1)\nx;\n", "figure;plot(1);x;\n"},
        {"a\nb\n", "figure;a;b;\n"},
        // What moves up to a place that was looked at stays; what was replaced counts as ";".
        {"a;\n\nbcd", "figure;a;\nbcd\n"},
        {"a\n\nbcd", "figure;a;bcd\n"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(FoldFirstPlot(Crlf(row.Text)), Ready + Crlf(row.Expected)) << row.Text;
    }
    // Only the two characters together are a line end.
    EXPECT_EQ(FoldFirstPlot("a\rb\nc;;;"), Ready + "figure;a\rb\nc;;;\r\n");
}

TEST_F(OutputTargetsTest, RunsOfSemicolonsBecomeOne) {
    const std::vector<TextCase> cases = {
        {"", ""},       {";", ";"},
        {";;", ";"},    {";;;;;", ";"},
        {"a;;", "a;"},  {"a;;b;;;c;", "a;b;c;"},
        {"; ;", "; ;"}, {";\n;;\n", ";\n;\n"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(WithoutDoubleSemicolons(Crlf(row.Text)), Crlf(row.Expected)) << row.Text;
    }
}

TEST_F(OutputTargetsTest, ALoopGoesOutBoxByBox) {
    Draw({{"Dummy Input", "", {}, {2}},
          {"For", "1:3", {1}, {3}},
          {"Matlab Command", "Output=Input1*2;;", {2}, {4}},
          {"Next", "", {3}}});
    ExpectSent({"", "for box2=1:3\n", "   box3=box2*2;\n", "end;\nbox4=box3;\n"});
}

TEST_F(OutputTargetsTest, TheConditionOfABranchGoesOutWithTheNextBox) {
    Draw({{"Constant Input", "2", {}, {2}},
          {"If", "elsec", {1}, {3, 5}},
          {"Matlab Command", "a;", {2}, {4}},
          {"End If", "", {3}},
          {"Matlab Command", "b;", {2}, {6}},
          {"End If", "", {5}}});
    ExpectSent({"box1=2;\n", "box2=box1;\nif (c),\n      box5=0;b;\n", "   else\n   box3=0;a;\n",
                "end;\n"});
    // Without an arm the condition is never sent.
    screen.Sent.clear();
    Boxes[2].BoxOut[2] = 0;
    ExpectSent({"box1=2;\n"});
}

TEST_F(OutputTargetsTest, OnlyTheFirstPlotOfARunIsMadeReady) {
    Draw({{"Constant Input", "1", {}, {2, 5}},
          {"Plot Output", "Plot2d;plot(Input1)\r\ngrid;\r\n", {1}, {3}},
          {"Plot Output", "Plot2d;figure;\r\nplot(Input1)\r\n", {2}, {4}},
          {"Plot Output", "Plot2d;bar(Input1);;", {3}}});
    Boxes[1].BoxOut[2] = 0;
    const std::vector<std::string> texts = {"box1=1;\n", Ready + "figure;plot(box1);grid;\n",
                                            "figure;\nplot(box2)\n;", "bar(box3);"};
    ExpectSent(texts);
    screen.Sent.clear();
    ExpectSent(texts);
}

TEST_F(OutputTargetsTest, AFirstPlotTakesPendingLinesAlong) {
    Draw({{"Constant Input", "1", {}, {2}},
          {"If", "c", {1}, {3}},
          {"Plot Output", "Plot2d;figure;\r\nplot(Input1)\r\n", {2}, {4}},
          {"End If", "", {3}}});
    ExpectSent({"box1=1;\n", Ready + "figure;box2=box1;if (c),;   figure;plot(box2);\n", "end;\n"});
}

TEST_F(OutputTargetsTest, APlotEndsItsTextWithASemicolon) {
    const std::vector<TextCase> cases = {
        {"Bar;", "figure;\n"},
        {"Bar;;", "figure;\n"},
        {"Bar;;a", "figure;a;\n"},
        {"Bar;a;", "figure;a;\n"},
    };
    for (const auto& row : cases) {
        Restart();
        Draw({{"Dummy Input", "", {}, {2}}, {"Plot Output", row.Text, {1}}});
        ExpectSent({"", Ready + row.Expected});
    }
}

TEST_F(OutputTargetsTest, TheLogHoldsScriptsAndAnswers) {
    DrawTwoBoxes();
    frmTextResults.txt.Text = "before|";
    screen.Reply = "ans|";
    Compile(0);
    EXPECT_EQ(frmTextResults.txt.Text, Crlf("before|box1=3;\nans|box2=box1\nans|"));
    EXPECT_EQ(frmTextResults.Sender.Text + frmTextResults.Receiver.Text, "");
    EXPECT_EQ(frmTextResults.Sender.LinkMode, 0);
    EXPECT_EQ(frmTextResults.Sender.LinkTopic, "MATLAB|Engine");
    EXPECT_EQ(frmTextResults.Sender.LinkItem, "EngEvalString");
    EXPECT_EQ(frmTextResults.Receiver.LinkMode, 0);
    EXPECT_EQ(frmTextResults.Receiver.LinkTopic, "MATLAB|Engine");
    EXPECT_EQ(frmTextResults.Receiver.LinkItem, "EngStringResult");
    EXPECT_EQ(Told(), Texts{"Done !"});
}

TEST_F(OutputTargetsTest, SendingMakesFailuresIgnored) {
    Draw({{"Constant Input", "1", {}, {2}}, {"Compute Function", "Inputs;Input1", {1}}});
    ExpectSent({"box1=1;\n", "box2=0;Inputs;box1\n"});
    frmPrefs.chkInput.Value = 1;
    for (const int entry : {1, 2, 3}) Boxes[2].BoxIn[entry] = 0;
    Boxes[1].BoxDocument = 2;
    EXPECT_EQ(ErrorOf([&] { Compile(0); }), 13);
    ExpectNoMarks();
}

TEST_F(OutputTargetsTest, ALinkThatFails) {
    struct Case {
        const char* Name;
        std::vector<int> Failures;  ///< Of the openings: sender and receiver of box 1, of box 2
        std::vector<Answer> Answers;
        Texts Told;
        std::size_t Sent;
        int MatlabStarts;
        const char* Log;
    };
    using enum Answer;
    const char* const whole = "box1=3;\n>box2=box1\n>";
    const std::vector<Case> cases = {
        {"no", {282}, {No}, {NotResponding, GaveUp}, 0, 0, ""},
        {"no at the second box", {0, 0, 282}, {No}, {NotResponding, GaveUp}, 1, 0, "box1=3;\n>"},
        {"yes", {282}, {Yes}, {NotResponding, "Done !"}, 2, 1, whole},
        {"yes and again",
         {282, 282},
         {Yes, Yes},
         {NotResponding, NotResponding, "Done !"},
         2,
         2,
         whole},
        {"yes, then no", {282, 282}, {Yes, No}, {NotResponding, NotResponding, GaveUp}, 0, 1, ""},
        {"another error", {5}, {}, {"Done !"}, 2, 0, whole},
        {"receiver", {0, 282}, {}, {"Done !"}, 2, 0, "box1=3;\nbox2=box1\n>"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.Name);
        Restart();
        DrawTwoBoxes();
        screen.Reply = ">";
        screen.LinkFailures.assign(row.Failures.begin(), row.Failures.end());
        screen.MessageAnswers.assign(row.Answers.begin(), row.Answers.end());
        EXPECT_EQ(Compile(0), "");
        EXPECT_EQ(Told(), row.Told);
        EXPECT_EQ(screen.Sent.size(), row.Sent);
        EXPECT_EQ(screen.MatlabStarts, row.MatlabStarts);
        EXPECT_EQ(frmTextResults.txt.Text, Crlf(row.Log));
        if (row.Told[0] == NotResponding) {
            EXPECT_EQ(screen.Messages[0].Picture, Icon::Critical);
            EXPECT_EQ(screen.Messages[0].Choice, Buttons::YesNo);
            EXPECT_EQ(screen.Messages.back().Picture, Icon::Information);
        }
        EXPECT_EQ(lastRunEnd, row.Told.back() == GaveUp ? RunEnd::Aborted : RunEnd::Done);
        EXPECT_EQ(DocumentWindow(1).MousePointer, PointerDefault);
        EXPECT_DOUBLE_EQ(DocumentWindow(1).pnlResource.Value, 2 / 350.0 * 100);
        ExpectNoMarks();
    }
}

}  // namespace quorvane::testing
