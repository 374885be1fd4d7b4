// SPDX-License-Identifier: MIT
#include <optional>

#include "generator/generator_fixture.h"

namespace quorvane::testing {

/// The policy under which a run begins: behind a dummy input failures are fatal, behind a cancelled
/// file input they are ignored.
constexpr const char* Fatal = "Dummy Input";
constexpr const char* Ignoring = "Ascii File Input";

class ControlFlowTest : public GeneratorTest {
protected:
    void ExpectScript(std::string_view lines, const Texts& told = {"Done !"}) {
        screen.Messages.clear();
        EXPECT_EQ(Compile(), Crlf(lines));
        EXPECT_EQ(Told(), told);
        ExpectNoMarks();
    }
};

TEST_F(ControlFlowTest, ALoop) {
    Draw({{"Dummy Input", "", {}, {2}},
          {"For", "1:3", {1}, {3}},
          {"Matlab Command", "Output=Input1*2;", {2}, {4}},
          {"Next", "", {3}}});
    ExpectScript("for box2=1:3\n   box3=box2*2;\nend;\nbox4=box3;\n");
    EXPECT_EQ(nestingDepth, 0);
}

TEST_F(ControlFlowTest, ABranch) {
    Draw({{"Constant Input", "2", {}, {2}},
          {"If", "box1>1", {1}, {3}},
          {"Matlab Command", "disp(1);", {2}, {4}},
          {"End If", "", {3}}});
    ExpectScript("box1=2;\nbox2=box1;\nif (box1>1),\n   box3=0;disp(1);\nend;\n");
}

TEST_F(ControlFlowTest, NestedLoopsAndABreak) {
    Draw({{"Dummy Input", "", {}, {2}},
          {"For", "1:2", {1}, {3}},
          {"While", "box2<9", {2}, {4}},
          {"Break", "", {3}, {5}},
          {"Next", "", {4}, {6}},
          {"Next", "", {5}, {7}},
          {"Screen Output", "", {6}}});
    ExpectScript(
        "for box2=1:2\n   while box2<9\n      box4=box3;\nbreak;\n   end;\nbox5=box4;\n"
        "end;\nbox6=box5;\nbox7=box6\n");
}

TEST_F(ControlFlowTest, BoxesBesideALoopWait) {
    Draw({{"Constant Input", "5", {}, {2, 5}},
          {"For", "1:3", {1}, {3}},
          {"Sin", "", {2}, {4}},
          {"Next", "", {3}, {6}},
          {"Cos", "", {1}, {6}},
          {"+", "", {4, 5, 0}}});
    ExpectScript(
        "box1=5;\nbox5=cos(box1);\nfor box2=1:3\n   box3=sin(box2);\nend;\nbox4=box3;\n"
        "box6=box4+box5;\n");
}

TEST_F(ControlFlowTest, NextTakesTheSlotOfAWaitingBoxAndDropsThoseOfItsBlock) {
    // Box 5 waits outside in slot 2, where Next is visited; box 3 waits inside and comes back only
    // as an exit of Next.
    Draw({{"Constant Input", "5", {}, {2, 5}},
          {"For", "1:3", {1}, {3, 6}},
          {"+", "", {2, 4, 0}},
          {"Next", "", {6}, {3}},
          {"+", "", {1, 4, 0}},
          {"Tan", "", {2}, {4}}});
    ExpectScript(
        "box1=5;\nfor box2=1:3\n   box6=tan(box2);\nend;\nbox4=box6;\nbox5=box1+box4;\n"
        "box3=box2+box4;\n");
}

TEST_F(ControlFlowTest, OpeningBoxesLetTheOthersGoFirstButACallDoesNot) {
    const std::vector<std::pair<TestBox, const char*>> cases = {
        {{"For", "1:2", {1}}, "box1=1;\nbox2=2;\nfor box3=1:2\n"},
        {{"While", "x", {1}}, "box1=1;\nbox2=2;\nwhile x\n"},
        {{"If", "x", {1}}, "box1=1;\nbox2=2;\nbox3=box1;\nif (x),\n"},
        {{"Insert Subroutine A", "", {1}}, "box1=1;\n   box4=box1;\n   box3=box4;\nbox2=2;\n"},
    };
    for (const auto& [box, expected] : cases) {
        SCOPED_TRACE(box.Type);
        Restart();
        Draw({{"Constant Input", "1", {}, {3}}, {"Constant Input", "2"}, box});
        Draw({{"A Subroutine", "", {}, {5}}, {"End Subroutine", "", {4}}});
        ExpectScript(expected);
    }
}

TEST_F(ControlFlowTest, ACallDuringAStallLetsTheOthersGoFirst) {
    // Box 1 counts as able to run and never does; box 4 has failed before the call is visited.
    Draw({{"Constant Input", "Deleted"},
          {"Constant Input", "1", {}, {3, 4}},
          {"Insert Subroutine A", "", {2}},
          {"Sin", "", {7}},
          {"A Subroutine", "", {}, {6}},
          {"End Subroutine", "", {5}},
          {"Cos"}});
    screen.MessageAnswers.assign(3, Answer::Ignore);
    const auto deleted = StallText("box1 (Constant Input)");
    ExpectScript("box2=1;\n", {StallText("box4 (Sin)"), deleted, deleted, "Done !"});
}

TEST_F(ControlFlowTest, BothArmsOfABranchAndItsContinuation) {
    for (const std::string condition : {"box1>1", ""}) {
        Restart();
        Draw({{"Constant Input", "2", {}, {2}},
              {"If", "else" + condition, {1}, {3, 5, 7, 8}},
              {"Matlab Command", "a;", {2}, {4}},
              {"End If", "", {3}, {9}},
              {"Matlab Command", "b;", {2}, {6}},
              {"End If", "", {5}, {9}},
              {"Screen Output", "", {2}},
              {"Screen Output", "", {1}},
              {"Screen Output", "", {1}}});
        ExpectScript("box1=2;\nbox2=box1;\nif (" + condition +
                     "),\n      box5=0;b;\n   else\n   box3=0;a;\nend;\nbox8=box1\nbox7=box2\n");
    }
}

TEST_F(ControlFlowTest, WithoutElseTheSecondExitGoesOn) {
    Draw({{"Constant Input", "2", {}, {2}},
          {"If", "Else", {1}, {3, 5, 0, 0, 6}},
          {"Matlab Command", "a;", {2}, {4}},
          {"End If", "", {3}},
          {"Screen Output", "", {2}},
          {"Screen Output", "", {1}}});
    ExpectScript("box1=2;\nbox2=box1;\nif (Else),\n   box3=0;a;\nend;\nbox6=box1\nbox5=box2\n");
}

TEST_F(ControlFlowTest, ABranchThatClosesInAnotherSlotDoesNotGoOn) {
    Draw({{"Constant Input", "2", {}, {2, 3}},
          {"+", "", {1, 6, 0}},
          {"If", "c", {1}, {4, 6}},
          {"Matlab Command", "a;", {3}, {5}},
          {"End If", "", {4}},
          {"Screen Output", "", {3}}});
    screen.MessageAnswers = {Answer::Ignore};
    ExpectScript("box1=2;\nbox3=box1;\nif (c),\n   box4=0;a;\nend;\n",
                 {StallText("box2 (+)"), "Done !"});
}

TEST_F(ControlFlowTest, OneEndIfForBothArmsStalls) {
    Draw({{"Constant Input", "2", {}, {2}},
          {"If", "elsec", {1}, {3, 4}},
          {"Matlab Command", "a;", {2}, {5}},
          {"Matlab Command", "b;", {2}, {5}},
          {"End If", "", {3, 4}}});
    screen.MessageAnswers = {Answer::Ignore};
    ExpectScript("box1=2;\nbox2=box1;\nif (c),\n      box4=0;b;\n      ",
                 {StallText("box5 (End If)"), "Done !"});
    EXPECT_EQ(nestingDepth, 2);
    ExpectScript("", {StallText("box5 (End If)")});
    EXPECT_EQ(nestingDepth, 2);
}

TEST_F(ControlFlowTest, ABoxThatCouldRunKeepsABlockShut) {
    Draw({{"Dummy Input", "", {}, {2}}, {"If", "c", {1}}, {"Constant Input", "Deleted"}});
    ExpectScript("", {StallText("box2 (If)")});
    Restart();
    Draw({{"Dummy Input", "", {}, {2, 3}}, {"If", "c", {1}}, {"Sin", "Deleted", {1, 0}}});
    ExpectScript("", {StallText("box3 (Sin)")});
}

TEST_F(ControlFlowTest, ASubroutineCall) {
    Draw({{"Constant Input", "4", {}, {2}},
          {"Insert Subroutine Foo", "Subroutine", {1}, {5}},
          {"Foo Subroutine", "Subroutine", {}, {4}},
          {"End Subroutine", "Subroutine", {3}},
          {"Screen Output", "", {2}}});
    ExpectScript("box1=4;\n   box3=box1;\n   box2=box3;\nbox5=box2\n");
}

TEST_F(ControlFlowTest, ASecondCallEndsTheRun) {
    Draw({{"Constant Input", "4", {}, {2}},
          {"Insert Subroutine Foo", "", {1}, {3}},
          {"Insert Subroutine Foo", "", {2}, {6}},
          {"Foo Subroutine", "", {}, {5}},
          {"End Subroutine", "", {4}},
          {"Screen Output", "", {3}}});
    for (int run = 1; run <= 2; ++run) ExpectScript("box1=4;\n   box4=box1;\n   box2=box4;\n");
}

TEST_F(ControlFlowTest, ACallReachesEveryHeadOfItsName) {
    Draw({{"Constant Input", "4", {}, {2}},
          {"Insert Subroutine Foo", "", {1}, {6}},
          {"Foo Subroutine", "", {}, {5}},
          {"Foo Subroutine"},
          {"End Subroutine", "", {3}},
          {"Screen Output", "", {2}},
          {"foo Subroutine"}});
    ExpectScript("box1=4;\n   box4=box1;\n   box3=box1;\n   box2=box3;\nbox6=box2\n");
    Boxes[2].BoxType = "Insert Subroutine Bar";
    ExpectScript("box1=4;\n");
}

TEST_F(ControlFlowTest, ACallInABranchMakesItsEndIfWriteElse) {
    // Slot 0 keeps the feeder of the call. The call writes nothing, so its indent serves the head.
    Draw({{"Constant Input", "4", {}, {2}},
          {"If", "c", {1}, {3}},
          {"Insert Subroutine Foo", "", {2}, {6}},
          {"Foo Subroutine", "", {}, {5}},
          {"End Subroutine", "", {4}},
          {"End If", "", {3}}});
    ExpectScript("box1=4;\nbox2=box1;\nif (c),\n   box4=box2;\n      box3=box4;\nelse\n");
}

TEST_F(ControlFlowTest, ClosingBoxesOutsideABlock) {
    struct Case {
        const char* Source;
        TestBox Closing;
        int Error;
        const char* Expected;
        std::optional<int> Depth;
    };
    const std::vector<Case> cases = {
        {Fatal, {"Next", "", {1}, {3}}, 0, "end;\nbox2=box1;\nbox3=box2\n", -1},
        {Ignoring, {"Next", "", {1}, {3}}, 0, "end;\nbox2=box1;\nbox3=box2\n", -1},
        {Fatal, {"End Subroutine", "", {1}, {3}}, 9, "", {}},
        {Ignoring, {"End Subroutine", "", {1}, {3}}, 0, "box0=box1;\nbox3=box2\n", -1},
        {Fatal, {"A Subroutine", "", {}, {3}}, 9, "", {}},
        {Ignoring, {"A Subroutine", "", {}, {3}}, 0, "box3=box2\n", 0},
        {Fatal, {"End If", "", {1}, {3}}, 9, "", {}},
        {Ignoring, {"End If", "", {1}, {3}}, 0, "end;\nend;\nend;\nend;\n", -4},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(std::string(row.Source) + ", " + row.Closing.Type);
        Restart();
        screen.MessageAnswers = {Answer::Ignore};
        Draw({{row.Source, "", {}, {2}}, row.Closing, {"Screen Output", "", {2}}});
        std::string script;
        EXPECT_EQ(ErrorOf([&] { script = Compile(); }), row.Error);
        EXPECT_EQ(script, Crlf(row.Expected));
        if (row.Depth) {
            EXPECT_EQ(nestingDepth, *row.Depth);
        }
        ExpectNoMarks();
    }
}

TEST_F(ControlFlowTest, ASparedSlotKeepsWhatAnOldFrameHeld) {
    const std::vector<int> first = {5, 7, 8, 0, 0, 9};
    for (int i = 0; i <= 5; ++i) Front[i] = static_cast<std::int16_t>(first[i]);
    PushFront(ErrorPolicy::Fatal, -1);
    EXPECT_TRUE(IsFrontEmpty());
    EXPECT_EQ(Front[0], 0);
    PopFront();
    for (int i = 0; i <= 5; ++i) EXPECT_EQ(Front[i], first[i]) << i;
    Front[0] = 6;
    Front[2] = 4;
    Front[5] = 3;
    PushFront(ErrorPolicy::Fatal, 2);
    EXPECT_EQ(Front[2], 4);
    Front[1] = 1;
    PopFront();
    const std::vector<int> second = {6, 7, 8, 0, 0, 3};
    for (int i = 0; i <= 5; ++i) EXPECT_EQ(Front[i], second[i]) << i;
    EXPECT_EQ(nestingDepth, 0);
}

}  // namespace quorvane::testing
