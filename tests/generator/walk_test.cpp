// SPDX-License-Identifier: MIT
#include "commands/matrix_input.h"
#include "files/settings.h"
#include "generator/generator_fixture.h"

namespace quorvane::testing {

using WalkTest = GeneratorTest;
using Slots = std::vector<std::int16_t>;

static Slots FrontSlots() { return {Front.Data(), Front.Data() + Front.UpperBound() + 1}; }

TEST_F(WalkTest, Diagrams) { CheckDiagrams("generator/walk.tsv"); }

TEST_F(WalkTest, ControlFlow) { CheckDiagrams("generator/control_flow.tsv"); }

TEST_F(WalkTest, StartBoxes) {
    // clang-format off
    Draw({{"Sin", "", {0, 0, 0}}, {"Constant Input", "2", {0, 0, 0}},
          {"Constant Input", "3", {-1, -1, 0}}, {"Constant Input", "4", {5, 0, 0}},
          {"Sin", "", {0, 0, -1}}, {"Constant Input", "6", {}, {10}}, {"Constant Input2", "7"}});
    // clang-format on
    Draw({{"Constant Input", "8"}, {"Cos", "", {0, 0, 0}}, {"Sin", "", {6}}}, 2);
    Draw({{"Sin", "", {11}, {11}}}, 3);
    EXPECT_EQ(Compile(), Crlf("box6=6;\nbox10=sin(box6);\n"));
    frmPrefs.chkInput.Value = 1;
    EXPECT_EQ(Compile(), Crlf("box6=6;\nbox2=2;\nbox1=sin(box0);\nbox10=sin(box6);\n"));
    frmPrefs.chkInput.Value = 0;
    EXPECT_EQ(CompileDocument(1, "2"), Crlf("box8=8;\n"));
    Boxes[6].BoxMark = "OK";
    EXPECT_EQ(Compile(), "") << "what is marked is done";
    EditMode = 5;
    EXPECT_EQ(CompileDocument(1, "3"), "");
    EXPECT_EQ(Told().back(), "There are no inputs !");
    EXPECT_EQ(EditMode, 5);
    ExpectAtRest(RunEnd::Refused);
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
    // clang-format off
    Draw({{"Constant Input", "0", {}, {3, 4, 5, 6, 7}}, {"Constant Input", "0"},
          {"Screen Output", "", {2}}, {"Screen Output", "", {2}}, {"Screen Output", "", {2}},
          {"Sin", "", {1}, {8}}, {"Screen Output", "", {1}}, {"Screen Output", "", {6}}});
    // clang-format on
    EXPECT_EQ(Compile(), Crlf("box1=0;\nbox6=sin(box1);\nbox2=0;\nbox4=box2\nbox7=box1\nbox3=box2\n"
                              "box8=box6\nbox5=box2\n"));
    // The next run finds them there.
    EXPECT_EQ(Compile(), Crlf("box1=0;\nbox6=sin(box1);\nbox8=box6\nbox2=0;\nbox4=box2\nbox7=box1\n"
                              "box3=box2\nbox5=box2\n"));
}

TEST_F(WalkTest, TheFrontTakesEachBoxOnce) {
    for (const auto box : Slots{7, 0, -1, 8, 7, 9}) AddToFront(box);
    RemoveFromFront(2);
    AddToFront(0);
    EXPECT_EQ(frontWidth, 5);
    for (const auto box : Slots{1, 2, 3, 0}) AddToFront(box);
    EXPECT_EQ(frontWidth, 10);
    AddToFront(4);
    EXPECT_EQ(FrontSlots(), (Slots{0, 7, 9, 1, 2, 3, 4, 0, 0, 0, 0}));
}

TEST_F(WalkTest, ASparedSlotKeepsWhatAnOldFrameHeld) {
    const auto fill = [](const Slots& slots) {
        for (int i = 0; i <= 5; ++i) Front[i] = slots[static_cast<std::size_t>(i)];
    };
    fill({5, 7, 8, 0, 0, 9});
    PushFront(ErrorPolicy::Fatal, -1);
    EXPECT_TRUE(IsFrontEmpty());
    EXPECT_EQ(FrontSlots(), Slots(6));
    PopFront();
    EXPECT_EQ(FrontSlots(), (Slots{5, 7, 8, 0, 0, 9}));
    fill({6, 7, 4, 0, 0, 3});
    PushFront(ErrorPolicy::Fatal, 2);
    EXPECT_EQ(FrontSlots(), (Slots{0, 0, 4, 0, 0, 0}));
    Front[1] = 1;
    PopFront();
    EXPECT_EQ(FrontSlots(), (Slots{6, 7, 8, 0, 0, 3}));
}

TEST_F(WalkTest, PointerAndGaugeOfAllWindows) {
    NewDocument();
    Draw({{"Constant Input", "1"}, {"Constant Input", "2"}, {"Matrix Input"}});
    lastRunEnd = RunEnd::Done;
    screen.Forms["frmMatrix"] = [] {
        for (const int i : {1, 2}) {
            EXPECT_EQ(DocumentWindow(i).MousePointer, PointerHourglass);
            // One of three boxes, as a whole number
            EXPECT_EQ(DocumentWindow(i).pnlResource.Value, 33);
        }
        EXPECT_EQ(lastRunEnd, RunEnd::None);
    };
    Compile();
    EXPECT_EQ(screen.FormsShown.size(), 1U);
    for (const int i : {1, 2}) {
        EXPECT_EQ(DocumentWindow(i).MousePointer, PointerDefault);
        EXPECT_DOUBLE_EQ(DocumentWindow(i).pnlResource.Value, 3 / 350.0 * 100);
    }
}

}  // namespace quorvane::testing
