// SPDX-License-Identifier: MIT
#include "diagram/selection.h"

#include "diagram/editor_fixture.h"
#include "diagram/layout.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

using Selection = EditorTest;

TEST_F(Selection, TheRubberBandForgetsWhereItBegan) {
    struct Row {
        const char* Case;
        std::vector<Point> Moves;
        double Left, Top, Width, Height;
    };
    const Row rows[] = {
        {"a first move", {{100, 200}}, 100, 200, 0, 0},
        {"down and right", {{100, 200}, {400, 600}}, 100, 200, 300, 400},
        {"and back a little", {{100, 200}, {400, 600}, {300, 500}}, 100, 200, 200, 300},
        {"up and left", {{400, 600}, {100, 200}}, 100, 200, 300, 400},
        {"and the edge stays", {{400, 600}, {100, 200}, {150, 250}}, 100, 200, 50, 50},
        {"on the edge itself", {{100, 200}, {400, 600}, {100, 200}}, 100, 200, 300, 400},
        {"over to the other side", {{100, 200}, {400, 600}, {50, 150}}, 50, 150, 350, 450},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Case);
        Press(0, 0);
        for (const auto& [x, y] : row.Moves) main_MouseMove(Sheet(), LeftButton, 0, x, y);
        main_MouseMove(Sheet(), RightButton, 0, 5000, 5000);
        const auto& shape = Sheet().shpCopy;
        EXPECT_TRUE(shape.Visible);
        EXPECT_EQ(shape.Left, row.Left);
        EXPECT_EQ(shape.Top, row.Top);
        EXPECT_EQ(shape.Width, row.Width);
        EXPECT_EQ(shape.Height, row.Height);
    }
}

TEST_F(Selection, OnlyCornersInsideCount) {
    NewDocument();
    Sheet().scrH.Value = 1000;
    Sheet().scrV.Value = 2000;
    const Point corners[] = {{101, 101}, {100, 150}, {150, 100}, {299, 399},
                             {300, 150}, {150, 400}, {150, 150}};
    for (const auto& [x, y] : corners) Place("Sin", x, y);
    Place("Sin", 1150, 2150, 2);
    for (const bool backwards : {false, true}) {
        SelectNumbers({4});
        backwards ? Select(300, 400, 100, 100) : Select(100, 100, 300, 400);
        EXPECT_EQ(Selected(), (Numbers{1, 4, 7}));
        EXPECT_EQ(SelectionLeft, 1100);
        EXPECT_EQ(SelectionTop, 2100);
        EXPECT_TRUE(Sheet().shpCopy.Visible) << "the rectangle marks the selection";
    }
    scrH_Change(Sheet());
    EXPECT_FALSE(Sheet().shpCopy.Visible);
    EXPECT_EQ(Selected(), (Numbers{1, 4, 7})) << "scrolling keeps the selection";
    main_MouseUp(Sheet(2), LeftButton, 0, 0, 0);
    EXPECT_EQ(Selected(), Numbers()) << "a release without a rectangle empties it";
}

TEST_F(Selection, APlainClickThatDismissesItIsAChange) {
    Press(10, 10);
    EXPECT_EQ(DocumentStates[1].Modified, 0);
    Select(10, 10, 20, 20);
    EXPECT_EQ(DocumentStates[1].Modified, 0);
    SetPointerAll(PointerCross);
    Press(10, 10);
    EXPECT_EQ(DocumentStates[1].Modified, -1);
    EXPECT_FALSE(Sheet().shpCopy.Visible);
    EXPECT_EQ(Sheet().shpCopy.Width, 0);
    EXPECT_EQ(Sheet().MousePointer, PointerDefault);
}

TEST_F(Selection, AGroupMovesWithTheCornerToTheClick) {
    Sheet().scrH.Value = 100;
    Place("Sin", 1000, 1000);
    Place("Cos", 2000, 1500);
    Place("Tan", 9000, 9000);
    Join(1, 2);
    Select(900, 800, 2100, 1600);
    Sheet().scrV.Value = 50;
    mnuEditMove_Click(Sheet());
    EXPECT_EQ(EditMode, 5);
    Press(3000, 4000);
    EXPECT_EQ(Corner(1), Point(3100, 4200));
    EXPECT_EQ(Corner(2), Point(4100, 4700));
    EXPECT_EQ(Corner(3), Point(9000, 9000));
    EXPECT_EQ(SheetCorner(1), WholePoint(3200, 4250));
    EXPECT_EQ(SheetCorner(2), WholePoint(4200, 4750));
    EXPECT_EQ(EditMode, 1);
    EXPECT_EQ(Sheet().Surface.size(), 3U);
    EXPECT_EQ(Sheet().Surface[1].Y2, 4700) << "the arrow was painted before the move";
    EXPECT_FALSE(Sheet().shpCopy.Visible);
}

TEST_F(Selection, AMoveElsewhereOrOfNothingIsStillAChange) {
    NewDocument();
    Place("Sin", 1000, 1000);
    for (const bool selected : {true, false}) {
        if (!selected) SelectNumbers({});
        if (selected) SelectNumbers({1});
        DocumentStates[2].Modified = 0;
        EditMode = 5;
        Press(3000, 3000, 2);
        EXPECT_EQ(DocumentStates[2].Modified, -1);
        EXPECT_EQ(EditMode, 1);
        EXPECT_EQ(SheetCorner(1), WholePoint(1000, 1000));
        EXPECT_EQ(Corner(1), Point(1000, 1000));
    }
}

/// 1 leads to 2 twice over and to itself; 3 lies outside and leads to 1; 2 leads to 3.
TEST_F(Selection, AGroupCopyTakesTheArrowsInsideAlong) {
    Place("Plot Output", 1000, 1000);
    Place("Cos", 2000, 1500);
    Place("Tan", 5000, 5000);
    Join(3, 1);
    Join(1, 2);
    Join(1, 1);
    Join(2, 3);
    Boxes[1].BoxText = "Polar;polar(Input1);";
    Boxes[1].BoxMark = "OK";
    Boxes[1].BoxIn[3] = LockedSlot;
    Boxes[1].BoxLineColor[4] = 77;
    NewDocument();
    Select(900, 900, 2100, 1600);
    DocumentStates[2].Modified = 0;
    mnueditcopy_Click(Sheet());
    Press(100, 200, 2);
    EXPECT_EQ(NextBox, 6);
    EXPECT_EQ(Boxes[4].BoxType, "Plot Output");
    EXPECT_EQ(Boxes[4].BoxText, "Polar;polar(Input1);");
    EXPECT_EQ(Boxes[4].BoxMark, "OK");
    EXPECT_EQ(Boxes[4].BoxDocument, 2);
    EXPECT_EQ(Boxes[4].BoxLineColor[4], 77);
    EXPECT_EQ(Sheet(2).box[4].Picture, 96);
    EXPECT_TRUE(Sheet(2).box[4].Visible);
    EXPECT_EQ(Corner(5, 2), Point(1200, 800));
    EXPECT_EQ(SheetCorner(5), WholePoint(1200, 800));
    EXPECT_EQ(Entries(4), (Numbers{0, 4, -1})) << "the arrow from outside isn't copied";
    EXPECT_EQ(Exits(4), (Numbers{5, 4, 0, 0, 0}));
    EXPECT_EQ(Entries(5), (Numbers{4, 0, 0}));
    EXPECT_EQ(Exits(5), (Numbers{0, 0, 0, 0, 0}));
    EXPECT_EQ(Exits(1), (Numbers{2, 1, 0, 0, 0})) << "the model changed";
    EXPECT_EQ(EditMode, 1);
    EXPECT_EQ(Sheet(2).Surface.size(), 6U);
    EXPECT_EQ(Selected(), (Numbers{1, 2}));
    EXPECT_EQ(DocumentStates[2].Modified, 0) << "no rectangle was dismissed there";
    mnueditcopy_Click(Sheet());
    Press(100, 200);
    EXPECT_EQ(DocumentStates[1].Modified, -1);
}

TEST_F(Selection, CopiesAtTheLimitGoOverTheLastBoxes) {
    while (NextBox < MaxBoxes) Place("Sin", 1000, 1000);
    Place("Cos", 5000, 5000);
    Boxes[349].BoxOut[2] = 7;
    Boxes[1].BoxOut[2] = 8;
    SelectNumbers({1});
    EditMode = 6;
    Press(0, 0);
    ASSERT_EQ(screen.Messages.size(), 1U);
    EXPECT_EQ(NextBox, 350);
    EXPECT_EQ(Boxes[349].BoxOut[2], 7) << "a connected slot isn't written";
    EXPECT_EQ(SheetCorner(349), WholePoint(1000, 1000));
    EXPECT_EQ(Boxes[350].BoxType, "Cos");
}

/// The copy of one box names the far ends, and nobody names it.
TEST_F(Selection, ASingleCopyKeepsItsModelsSlots) {
    Place("Sin", 0, 0);
    Place("Matrix Manipulation", 1000, 1000);
    Join(1, 2);
    Boxes[2].BoxText = "Diag|3";
    Boxes[2].BoxIn[3] = LockedSlot;
    Boxes[2].BoxLineColor[2] = 5;
    mnueditcopy_Click(Sheet());
    box_Click(Sheet(), 2);
    EXPECT_EQ(EditMode, 2);
    EXPECT_EQ(Entries(3), (Numbers{1, 0, -1}));
    EXPECT_EQ(Exits(1), (Numbers{2, 0, 0, 0, 0}));
    EXPECT_EQ(Boxes[3].BoxText, "Diag|3");
    EXPECT_EQ(Boxes[3].BoxLineColor[2], 5);
    EXPECT_EQ(Sheet().box[3].Picture, 85) << "the picture is that of the plain type";
    EXPECT_FALSE(Sheet().box[3].Visible);
    Press(4000, 4000);
    EXPECT_TRUE(Sheet().box[3].Visible);
}

TEST_F(Selection, ADroppedBoxRemembersTheDropPoint) {
    Place("Sin", 1000, 1000);
    Place("Cos", 3000, 3000);
    Join(1, 2);
    Sheet().scrH.Value = 100;
    Sheet().scrV.Value = 200;
    box_MouseMove(Sheet(), 1);
    EXPECT_TRUE(Sheet().txtboxname.Visible);
    DocumentStates[1].Modified = 0;
    main_DragDrop(Sheet(), 1, 2000, 2500);
    EXPECT_EQ(Corner(1), Point(1752.5, 2252.5));
    EXPECT_EQ(SheetCorner(1), WholePoint(2100, 2700));
    EXPECT_FALSE(Sheet().txtboxname.Visible);
    EXPECT_EQ(Sheet().txtboxname.Caption, "");
    EXPECT_EQ(Sheet().Surface.size(), 3U);
    EXPECT_EQ(DocumentStates[1].Modified, -1);
    scrH_Change(Sheet());
    EXPECT_EQ(Corner(1).first, 2000) << "a scroll puts it where the record says";
}

}  // namespace
