// SPDX-License-Identifier: MIT
#include "catalogue/matrix_input.h"
#include "generator/generator_fixture.h"

namespace quorvane::testing {

class WalkTest : public GeneratorTest {
protected:
    /// A box that a Pickup and a box that is never done feed: each visit writes one more Pickup
    /// line.
    void DrawCountedStall() {
        Draw({{"Constant Input", "1", {}, {2}}, {"+", "", {3, 4}}, {"Pickup", "x"}, {"Sin"}});
    }
    static std::string Lines(int count, const std::string& line) {
        std::string lines;
        for (int i = 0; i < count; ++i) lines += line;
        return Crlf(lines);
    }
};

TEST_F(WalkTest, AChainOfBoxes) {
    Draw({{"Constant Input", "3", {}, {2}}, {"Sin", "", {1}, {3}}, {"Screen Output", "", {2}}});
    EXPECT_EQ(Compile(), Crlf("box1=3;\nbox2=sin(box1);\nbox3=box2\n"));
    ASSERT_EQ(screen.Messages.size(), 1U);
    EXPECT_EQ(screen.Messages[0].Text, "Done !");
    EXPECT_EQ(screen.Messages[0].Picture, Icon::Information);
    EXPECT_EQ(screen.Messages[0].Choice, Buttons::Ok);
    EXPECT_EQ(screen.Messages[0].Title, "Quorvane");
    EXPECT_EQ(lastRunEnd, RunEnd::Done);
    EXPECT_EQ(EditMode, 1);
    ExpectNoMarks();
}

TEST_F(WalkTest, StartBoxes) {
    struct Case {
        int chkInput;
        const char* Expected;
    };
    for (const auto& row : {Case{0, "box6=6;\n"}, Case{1, "box6=6;\nbox2=2;\nbox1=sin(box0);\n"}}) {
        Restart();
        frmPrefs.chkInput.Value = row.chkInput;
        Draw({{"Sin", "", {0, 0, 0}},
              {"Constant Input", "2", {0, 0, 0}},
              {"Constant Input", "3", {-1, -1, 0}},
              {"Constant Input", "4", {5, 0, 0}},
              {"Sin", "", {0, 0, -1}},
              {"Constant Input", "6"},
              {"Constant Input2", "7"}});
        Draw({{"Constant Input", "8"}, {"Cos", "", {0, 0, 0}}}, 2);
        EXPECT_EQ(Compile(), Crlf(row.Expected));
    }
}

TEST_F(WalkTest, WithoutAStartBoxTheRunIsRefused) {
    Draw({{"Sin", "", {2}, {2}}, {"Sin", "", {1}, {1}}});
    Draw({{"Constant Input", "1", {}, {1}}}, 2);
    EditMode = 5;
    EXPECT_EQ(Compile(), "");
    EXPECT_EQ(Told(), Texts{"There are no inputs !"});
    EXPECT_EQ(screen.Messages[0].Picture, Icon::Exclamation);
    EXPECT_EQ(screen.Messages[0].Choice, Buttons::Ok);
    EXPECT_EQ(lastRunEnd, RunEnd::Refused);
    EXPECT_EQ(EditMode, 5);
    EXPECT_EQ(DocumentWindow(1).MousePointer, PointerDefault);
}

TEST_F(WalkTest, ARemovalHidesTheNextBoxUntilTheNextPass) {
    for (int i = 1; i <= 5; ++i) Draw({{"Constant Input", "0"}});
    EXPECT_EQ(Compile(), Crlf("box1=0;\nbox3=0;\nbox5=0;\nbox2=0;\nbox4=0;\n"));
    EXPECT_EQ(frontWidth, 5);
    Draw({{"Constant Input", "0"}});
    for (int run = 1; run <= 2; ++run) {
        EXPECT_EQ(Compile(), Crlf("box1=0;\nbox3=0;\nbox5=0;\nbox2=0;\nbox6=0;\nbox4=0;\n"));
        EXPECT_EQ(frontWidth, 10);
    }
}

TEST_F(WalkTest, SlotsThatAPassAddsWaitForTheNext) {
    Draw({{"Constant Input", "0", {}, {3, 4, 5, 6, 7}},
          {"Constant Input", "0"},
          {"Screen Output", "", {2}},
          {"Screen Output", "", {2}},
          {"Screen Output", "", {2}},
          {"Sin", "", {1}, {8}},
          {"Screen Output", "", {1}},
          {"Screen Output", "", {6}}});
    EXPECT_EQ(Compile(), Crlf("box1=0;\nbox6=sin(box1);\nbox2=0;\nbox4=box2\nbox7=box1\nbox3=box2\n"
                              "box8=box6\nbox5=box2\n"));
    EXPECT_EQ(Told(), Texts{"Done !"});
}

TEST_F(WalkTest, TheFrontTakesEachBoxOnce) {
    using Numbers = std::vector<std::int16_t>;
    for (const auto box : Numbers{7, 0, -1, 8, 7, 9}) AddToFront(box);
    RemoveFromFront(2);
    AddToFront(0);
    EXPECT_EQ(frontWidth, 5);
    for (const auto box : Numbers{1, 2, 3, 0}) AddToFront(box);
    EXPECT_EQ(frontWidth, 10);
    AddToFront(4);
    const std::vector<int> expected = {0, 7, 9, 1, 2, 3, 4, 0, 0, 0, 0};
    for (int slot = 0; slot <= 10; ++slot) EXPECT_EQ(Front[slot], expected[slot]) << slot;
    EXPECT_EQ(Front.UpperBound(), 10);
}

TEST_F(WalkTest, AnswersToAStall) {
    struct Case {
        std::vector<Answer> Answers;
        int Visits;  ///< 0 for a run that was aborted
    };
    using enum Answer;
    for (const auto& row :
         {Case{{Ignore}, 4}, Case{{Retry, Ignore}, 6}, Case{{Retry, Retry, Ignore}, 8},
          Case{{Abort}, 0}, Case{{Retry, Abort}, 0}}) {
        Restart();
        DrawCountedStall();
        screen.MessageAnswers.assign(row.Answers.begin(), row.Answers.end());
        const bool done = row.Visits > 0;
        EXPECT_EQ(Compile(), done ? "box1=1;\r\n" + Lines(row.Visits, "box3=x;\n") : "");
        Texts texts(row.Answers.size(), StallText("box2 (+)"));
        if (done) texts.push_back("Done !");
        EXPECT_EQ(Told(), texts);
        EXPECT_EQ(screen.Messages[0].Picture, Icon::Critical);
        EXPECT_EQ(screen.Messages[0].Choice, Buttons::AbortRetryIgnore);
        EXPECT_EQ(screen.Messages[0].Title, "Quorvane");
        EXPECT_EQ(lastRunEnd, done ? RunEnd::Done : RunEnd::Aborted);
        EXPECT_EQ(EditMode, done ? 1 : 0);
        EXPECT_EQ(DocumentWindow(1).MousePointer, PointerDefault);
        ExpectNoMarks();
    }
}

TEST_F(WalkTest, IgnoringDropsTheVisitedBoxAndNotTheSuspect) {
    // Box 3 fails first, so both questions are about it; box 2 is in the slot at the first of them.
    Draw({{"Constant Input", "1", {}, {2, 3}},
          {"Sin", "", {4}},
          {"Screen Output", "", {4}},
          {"Cos"}});
    screen.MessageAnswers = {Answer::Ignore, Answer::Ignore};
    EXPECT_EQ(Compile(), "box1=1;\r\n");
    const auto suspect = StallText("box3 (Screen Output)");
    EXPECT_EQ(Told(), (Texts{suspect, suspect, "Done !"}));
}

TEST_F(WalkTest, ASuccessAnywhereClearsTheSuspect) {
    // In each pass three boxes fail and one of the chain 3 to 12 succeeds.
    Draw({{"Constant Input", "1", {}, {2, 13, 14, 3}}, {"+", "", {1, 12, 0}}});
    for (int i = 3; i <= 12; ++i) Draw({{"Sin", "", {i == 3 ? 1 : i - 1}, {i == 12 ? 2 : i + 1}}});
    Draw({{"Screen Output", "", {12}}, {"Screen Output", "", {12}}});
    const auto script = Compile();
    EXPECT_TRUE(
        script.ends_with(Crlf("box12=sin(box11);\nbox2=box1+box12;\nbox14=box12\nbox13=box12\n")))
        << script;
    EXPECT_EQ(Told(), Texts{"Done !"});
}

TEST_F(WalkTest, DeletedBoxesAndMarkedBoxesAreNotWritten) {
    Draw({{"Constant Input", "Deleted", {}, {2}}, {"Sin", "", {1}}, {"Constant Input", "3"}});
    Boxes[3].BoxMark = "OK";
    screen.MessageAnswers = {Answer::Ignore};
    EXPECT_EQ(Compile(), "");
    EXPECT_EQ(Told(), (Texts{StallText("box1 (Constant Input)"), "Done !"}));
    ExpectNoMarks();
}

TEST_F(WalkTest, ArrowsLeadIntoOtherDocuments) {
    Draw({{"Constant Input", "1", {}, {2}}});
    Draw({{"Sin", "", {1}}, {"Constant Input", "3"}}, 2);
    EXPECT_EQ(Compile(), Crlf("box1=1;\nbox2=sin(box1);\n"));
    EXPECT_EQ(CompileDocument(1, "2"), "box3=3;\r\n");
}

TEST_F(WalkTest, APickupWritesItsLineForEachBox) {
    Draw({{"Constant Input", "1", {}, {2, 3}},
          {"+", "", {1, 4, 0}},
          {"-", "", {4, 1}},
          {"Pickup", "x", {}, {2, 3}}});
    EXPECT_EQ(Compile(), Crlf("box1=1;\nbox4=x;\nbox3=box4-box1;\nbox4=x;\nbox2=box1+box4;\n"));
    ExpectNoMarks();
}

TEST_F(WalkTest, OnlyTheFirstLineOfABoxIsIndented) {
    Draw({{"For", "1:2", {6}, {2}},
          {"+", "", {1, 3, 0}, {4}},
          {"Pickup", "x"},
          {"Pause", "", {2}, {5}},
          {"Next", "", {4}},
          {"Dummy Input", "", {}, {1}}});
    EXPECT_EQ(Compile(), Crlf("for box1=1:2\n   box3=x;\nbox2=box1+box3;\n   box4=box2;\npause;\n"
                              "end;\nbox5=box4;\n"));
}

TEST_F(WalkTest, PointerAndGaugeOfAllWindows) {
    NewDocument();
    Draw({{"Constant Input", "1"}, {"Constant Input", "2"}, {"Matrix Input"}});
    std::vector<double> seen;
    screen.Forms["frmMatrix"] = [&] {
        for (const int i : {1, 2}) {
            EXPECT_EQ(DocumentWindow(i).MousePointer, PointerHourglass);
            seen.push_back(DocumentWindow(i).pnlResource.Value);
        }
        EXPECT_EQ(Boxes[1].BoxMark, "OK");
        EXPECT_EQ(EditMode, 0);
        EXPECT_EQ(lastRunEnd, RunEnd::None);
    };
    Compile();
    EXPECT_EQ(seen, (std::vector<double>{33, 33}));  // one of three boxes, as a whole number
    for (const int i : {1, 2}) {
        EXPECT_EQ(DocumentWindow(i).MousePointer, PointerDefault);
        EXPECT_DOUBLE_EQ(DocumentWindow(i).pnlResource.Value, 3 / 350.0 * 100);
    }
}

TEST_F(WalkTest, NumbersOutsideTheTable) {
    // Fatal: the run ends with error 9. Under the ignore policy, which a cancelled file input turns
    // on, the box is one that can't be processed.
    const std::vector<std::pair<TestBox, const char*>> cases = {
        {{"Sin", "", {1}, {351}}, "box351 ()"},
        {{"Sin", "", {1}, {32767}}, "box32767 ()"},
        {{"Sin", "", {351}}, "box2 (Sin)"},
        {{"If", "c", {1}, {351}}, "box351 ()"},
    };
    for (const auto& [box, suspect] : cases) {
        SCOPED_TRACE(suspect);
        Restart();
        Draw({{"Dummy Input", "", {}, {2}}, box});
        EXPECT_EQ(ErrorOf([&] { Compile(); }), 9);
        EXPECT_TRUE(screen.Messages.empty());
        EXPECT_EQ(lastRunEnd, RunEnd::None);
        EXPECT_EQ(DocumentWindow(1).MousePointer, PointerDefault);
        ExpectNoMarks();
        Boxes[1].BoxType = "Ascii File Input";
        EXPECT_EQ(Compile(), "");
        EXPECT_EQ(Told(), Texts{StallText(suspect)});
        EXPECT_EQ(lastRunEnd, RunEnd::Aborted);
    }
}

TEST_F(WalkTest, NegativeExits) {
    Draw({{"Constant Input", "1", {}, {-1, -5, 2}}, {"Screen Output", "", {1}}});
    EXPECT_EQ(Compile(), Crlf("box1=1;\nbox2=box1\n"));
    // An arm that starts nowhere would never empty the front.
    for (const char* source : {"Dummy Input", "Ascii File Input"}) {
        Restart();
        Draw({{source, "", {}, {2}}, {"If", "c", {1}, {-1}}});
        EXPECT_EQ(ErrorOf([&] { Compile(); }), 9) << source;
        ExpectNoMarks();
    }
}

}  // namespace quorvane::testing
