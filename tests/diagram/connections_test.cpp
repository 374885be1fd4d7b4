// SPDX-License-Identifier: MIT
#include "diagram/connections.h"

#include "diagram/editor_fixture.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

using Connections = EditorTest;

TEST_F(Connections, TwoClicksJoinByTheLowestEmptySlots) {
    Place("Sin", 0, 0);
    Place("Cos", 2000, 2000);
    Boxes[1].BoxOut[1] = 9;
    Boxes[1].BoxOut[2] = LockedSlot;
    Boxes[2].BoxIn[1] = LockedSlot;
    Boxes[2].BoxIn[2] = 9;
    Boxes[1].BoxLineColor[3] = 0xFF;
    Sheet().Surface.resize(1);
    DocumentStates[1].Modified = 0;
    mnuArrow_Click(Sheet());
    EXPECT_EQ(EditMode, 3);
    EXPECT_EQ(Sheet().MousePointer, PointerNoDrop);
    Press(5000, 5000);
    EXPECT_EQ(EditMode, 3) << "a press on the surface left the arrow mode";
    box_Click(Sheet(), 1);
    EXPECT_EQ(EditMode, 4);
    EXPECT_EQ(ArrowSource, 1);
    box_Click(Sheet(), 2);
    EXPECT_EQ(EditMode, 1);
    EXPECT_EQ(Exits(1), (Numbers{9, -1, 2, 0, 0}));
    EXPECT_EQ(Entries(2), (Numbers{-1, 9, 1}));
    EXPECT_EQ(Sheet().MousePointer, PointerDefault);
    EXPECT_EQ(Sheet().box[1].MousePointer, PointerArrow) << "a box keeps its arrow pointer";
    ASSERT_EQ(Sheet().Surface.size(), 4U) << "two legs and a head, over what was there";
    EXPECT_EQ(Sheet().Surface[1].Color, 0xFF) << "the colour goes by the entry";
    EXPECT_EQ(DocumentStates[1].Modified, 0) << "an arrow is no change to be saved";
    EXPECT_TRUE(screen.Messages.empty());
}

TEST_F(Connections, RefusalsLeaveBothBoxesAlone) {
    struct Row {
        const char* Case;
        int Document, Entry, Exit;  ///< Of the destination; in all its entries, the source's exits
        const char* Text;
    };
    const Row rows[] = {
        {"another document comes first", 2, 5, 5, "Boxes are not in the same document"},
        {"full entries come before full exits", 1, 5, 5, "No more entries for box2 !"},
        {"a source of data", 1, LockedSlot, 0, "No more entries for box2 !"},
        {"full exits", 1, 0, 5, "No more exits for box1 !"},
        {"an output", 1, 0, LockedSlot, "No more exits for box1 !"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Case);
        SetUp();
        screen.Messages.clear();
        NewDocument();
        Place("Sin", 0, 0);
        Place("Cos", 2000, 0, row.Document);
        Boxes[1].BoxOut.Fill(static_cast<std::int16_t>(row.Exit));
        Boxes[2].BoxIn.Fill(static_cast<std::int16_t>(row.Entry));
        Sheet().pnlArrow.HoldsArrow = true;
        const auto boxes = Boxes;
        BeginArrow();
        box_Click(Sheet(1), 1);
        EXPECT_TRUE(screen.Messages.empty());
        box_Click(Sheet(row.Document), 2);
        ASSERT_EQ(screen.Messages.size(), 1U);
        EXPECT_EQ(screen.Messages[0].Text, row.Text);
        EXPECT_EQ(screen.Messages[0].Picture, Icon::Exclamation);
        EXPECT_EQ(screen.Messages[0].Title, "Quorvane");
        EXPECT_EQ(EditMode, 1);
        EXPECT_TRUE(Boxes == boxes);
        EXPECT_TRUE(Sheet(row.Document).Surface.empty());
        for (const int i : {1, 2}) EXPECT_EQ(Sheet(i).MousePointer, PointerDefault);
    }
}

TEST_F(Connections, ABoxMayBeJoinedTwiceAndToItself) {
    Place("Sin", 0, 0);
    Place("Cos", 2000, 0);
    Join(1, 2);
    Join(1, 2);
    Join(1, 1);
    EXPECT_EQ(Exits(1), (Numbers{2, 2, 1, 0, 0}));
    EXPECT_EQ(Entries(1), (Numbers{1, 0, 0}));
    EXPECT_EQ(Entries(2), (Numbers{1, 1, 0}));
    EXPECT_EQ(Sheet().Surface.size(), 9U);
}

TEST_F(Connections, MultipleArrowsNeedNoCommand) {
    Place("Sin", 0, 0);
    Place("Cos", 2000, 0);
    box_Click(Sheet(), 1);
    EXPECT_EQ(EditMode, 1) << "off, a click on a box does nothing";
    NewDocument();
    pnlArrow_Click(Sheet());
    EXPECT_TRUE(Sheet().mnuMultipleArrows.Checked);
    EXPECT_TRUE(Sheet().pnlArrow.HoldsArrow);
    EXPECT_FALSE(Sheet(2).pnlArrow.HoldsArrow) << "each worksheet has its own";
    for (const int n : {1, 2, 2, 1}) box_Click(Sheet(), n);
    EXPECT_EQ(Exits(1), (Numbers{2, 0, 0, 0, 0}));
    EXPECT_EQ(Exits(2), (Numbers{1, 0, 0, 0, 0}));
    for (const int mode : {0, 2, 5}) {
        EditMode = static_cast<std::int16_t>(mode);
        box_Click(Sheet(), 1);
        EXPECT_EQ(EditMode, mode) << "another command is under way";
    }
    mnuMultipleArrows_Click(Sheet());
    EXPECT_FALSE(Sheet().mnuMultipleArrows.Checked);
    EXPECT_FALSE(Sheet().pnlArrow.HoldsArrow);
}

TEST_F(Connections, TheLineColourIsForBoxesToCome) {
    Place("Sin", 0, 0);
    screen.Colors = {0x0000FF};
    mnuEditLineColor_Click(Sheet());
    mnuEditLineColor_Click(Sheet());
    EXPECT_EQ(screen.ColorStarts, (std::vector<std::int32_t>{0xE0E0E0, 0x0000FF}));
    EXPECT_EQ(Sheet().pnlArrow.BackColor, 0x0000FF) << "the second dialog was cancelled";
    Place("Cos", 0, 0);
    EXPECT_EQ(Boxes[1].BoxLineColor[1], 0xE0E0E0);
    EXPECT_EQ(Boxes[2].BoxLineColor[5], 0x0000FF);
}

}  // namespace
