// SPDX-License-Identifier: MIT
#include "diagram/placement.h"

#include "catalogue/icon_table.h"
#include "diagram/editor_fixture.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

using Placement = EditorTest;

TEST_F(Placement, AnArmedBoxIsCountedAndHidden) {
    NewDocument();
    Boxes[1].BoxType = "left over";
    Boxes[1].BoxText = "left over";
    Boxes[1].BoxMark = "OK";
    Boxes[1].BoxIn.Fill(7);
    Boxes[1].BoxOut.Fill(7);
    Sheet(2).pnlArrow.BackColor = 0x123456;
    AddBox(Sheet(2));
    Box cleared;
    cleared.BoxDocument = 2;
    cleared.BoxLineColor.Fill(0x123456);
    EXPECT_EQ(Boxes[1], cleared);
    EXPECT_EQ(NextBox, 2);
    EXPECT_EQ(EditMode, 2);
    EXPECT_FALSE(Sheet(2).box[1].Visible);
    EXPECT_FALSE(Sheet(1).box.Has(1));
    for (const int i : {1, 2}) {
        EXPECT_EQ(Sheet(i).MousePointer, PointerCross);
        EXPECT_DOUBLE_EQ(Sheet(i).pnlResource.Value, 100.0 / 350);
    }
}

/// Three boxes are in use; the mode decides which record is cleared and on which the writes fall.
TEST_F(Placement, TheModeDecidesWhatACommandWrites) {
    struct Row {
        int Mode, Next, Cleared;
    };
    const Row rows[] = {{0, 4, 4}, {1, 5, 4}, {2, 4, 0}, {3, 3, 3},
                        {4, 3, 3}, {5, 4, 4}, {6, 5, 4}, {7, 5, 4}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Mode);
        SetUp();
        for (const int n : {1, 2, 3, 4}) Place("Sin", 1000.0 * n, 500);
        NextBox = 4;
        EditMode = static_cast<std::int16_t>(row.Mode);
        AddBox(Sheet());
        EXPECT_EQ(NextBox, row.Next);
        EXPECT_EQ(EditMode, 2);
        for (const int n : {1, 2, 3, 4}) {
            EXPECT_EQ(Boxes[n].BoxType, n == row.Cleared ? "" : "Sin") << n;
            EXPECT_TRUE(n == 4 || Sheet().box[n].Visible == (n != row.Cleared)) << n;
        }
        EXPECT_EQ(Sheet().box.Has(4), row.Cleared != 3) << "a pending arrow takes it back";
        EXPECT_EQ(Sheet().MousePointer, row.Mode == 2 ? PointerDefault : PointerCross);
    }
}

TEST_F(Placement, WithAllBoxesInUseTheLastButOneIsOverwritten) {
    while (NextBox <= MaxBoxes) Place("Sin", 0, 0);
    EXPECT_TRUE(screen.Messages.empty()) << "350 boxes are allowed";
    EXPECT_EQ(NextBox, 351);
    const auto boxes = Boxes;
    AddBox(Sheet());
    ASSERT_EQ(screen.Messages.size(), 1U);
    EXPECT_EQ(screen.Messages[0].Text, "The maximum number of boxes (350) has been exceeded.");
    EXPECT_EQ(screen.Messages[0].Title, "Quorvane,vbCritical");
    EXPECT_EQ(screen.Messages[0].Choice, Buttons::Ok);
    EXPECT_EQ(NextBox, 350);
    EXPECT_FALSE(Sheet().box[351].Visible);
    EXPECT_TRUE(Boxes == boxes) << "a record changed";
    Press(700, 800);
    EXPECT_EQ(SheetCorner(349), WholePoint(700, 800));
    AddBox(Sheet());
    EXPECT_EQ(screen.Messages.size(), 1U) << "the next command takes number 350 again";
    EXPECT_EQ(NextBox, 351);
    EXPECT_EQ(Boxes[350].BoxType, "");
    Press(0, 0);
    AddBox(Sheet());
    EXPECT_EQ(screen.Messages.size(), 2U) << "element 351 was loaded already";
}

TEST_F(Placement, TheClickMarksTheCornerOnTheSheet) {
    struct Row {
        double X, Y;
        int Left, Top;
    };
    const Row rows[] = {{100, 200, 400, 700},
                        {0.5, 1.5, 300, 502},
                        {2.5, -0.4, 302, 500},
                        {-900, 99999, -600, 100499}};
    Sheet().scrH.Value = 300;
    Sheet().scrV.Value = 500;
    for (const auto& row : rows) {
        DocumentStates[1].Modified = 0;
        const int n = Place("Sin", row.X, row.Y);
        EXPECT_EQ(Corner(n), Point(row.X, row.Y));
        EXPECT_EQ(SheetCorner(n), WholePoint(row.Left, row.Top));
        EXPECT_TRUE(Sheet().box[n].Visible);
        EXPECT_EQ(EditMode, 1);
        EXPECT_EQ(Sheet().MousePointer, PointerDefault);
        EXPECT_EQ(DocumentStates[1].Modified, -1);
    }
}

TEST_F(Placement, AnArmedBoxGoesToTheDocumentThatIsClicked) {
    struct Row {
        const char *Type, *Text;
        int Cell;
    };
    const Row rows[] = {{"Matrix Manipulation", "Diag|3", 35},
                        {"Matrix Manipulation", "Fliplr", 54},
                        {"Sin", "", FallbackCell},
                        {"Comment", "Diagonal", 35},
                        {"Plot Output", "Plot2d;plot(Input1);", FallbackCell}};
    NewDocument();
    for (const auto& row : rows) {
        AddBox(Sheet(1));
        const int n = NextBox - 1;
        Boxes[n].BoxType = row.Type;
        Boxes[n].BoxText = row.Text;
        Press(10, 20, 2);
        EXPECT_EQ(NextBox, n + 1);
        EXPECT_EQ(Boxes[n].BoxDocument, 2);
        EXPECT_FALSE(Sheet(1).box.Has(n));
        EXPECT_TRUE(Sheet(2).box[n].Visible);
        EXPECT_EQ(Sheet(2).box[n].Picture, row.Cell) << row.Text;
    }
    EXPECT_EQ(DocumentStates[1].Modified, 0);
    EXPECT_EQ(DocumentStates[2].Modified, -1);
}

/// With no box in use a pending arrow leads below the table.
TEST_F(Placement, PlacingABoxThatIsNotThereIsPassedOver) {
    for (const int mode : {0, 3}) {
        EditMode = static_cast<std::int16_t>(mode);
        NextBox = 1;
        AddBox(Sheet());
        EXPECT_EQ(NextBox, mode == 0 ? 1 : 0);
        EXPECT_NO_THROW(Press(100, 100));
        EXPECT_EQ(EditMode, 1);
        EXPECT_TRUE(Sheet().box.Has(0));
    }
}

TEST_F(Placement, TheToolboxKeyGoesToTheWorksheetUnderTheMouse) {
    NewDocument();
    EditMode = 1;
    frmMDI.txtEvent = "Sin";
    main_MouseMove(Sheet(2), 0, 0, 10, 10);
    EXPECT_EQ(frmMDI.txtEvent, "");
    EXPECT_EQ(Sheet(2).cmdEventFire, "Sin");
    EXPECT_EQ(Boxes[1].BoxType, "Sin");
    EXPECT_EQ(Boxes[1].BoxDocument, 2);
    main_MouseMove(Sheet(1), 0, 0, 10, 10);
    EXPECT_EQ(Sheet(1).cmdEventFire, "");
    EXPECT_EQ(NextBox, 2) << "the key fired twice";
}

}  // namespace
