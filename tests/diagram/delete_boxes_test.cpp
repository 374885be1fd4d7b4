// SPDX-License-Identifier: MIT
#include "diagram/delete_boxes.h"

#include "diagram/editor_fixture.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

class Deleting : public EditorTest {
protected:
    static void Delete(std::initializer_list<std::int16_t> numbers, bool silent = true) {
        SelectNumbers(numbers);
        DeleteBoxes(silent);
    }
};

TEST_F(Deleting, TheLastBoxLeavesNoTrace) {
    Place("Sin", 1000, 1000);
    Place("Cos", 2000, 2000);
    Join(1, 2);
    Join(2, 1);
    Join(2, 2);
    Boxes[1].BoxText = "box2";
    EditMode = 5;
    DocumentStates[1].Modified = 0;
    Sheet().shpCopy.Visible = true;
    Delete({2});
    EXPECT_EQ(NextBox, 2);
    EXPECT_EQ(Exits(1), Numbers(5, 0));
    EXPECT_EQ(Entries(1), Numbers(3, 0));
    EXPECT_EQ(Boxes[1].BoxText, "box2") << "no number took the place of this one";
    EXPECT_EQ(Boxes[2], Box());
    EXPECT_FALSE(Sheet().box.Has(2));
    EXPECT_TRUE(Sheet().Surface.empty());
    EXPECT_EQ(EditMode, 1);
    EXPECT_EQ(DocumentStates[1].Modified, -1);
    EXPECT_DOUBLE_EQ(Sheet().pnlResource.Value, 100.0 / 350);
    EXPECT_FALSE(Sheet().shpCopy.Visible);
    EXPECT_EQ(Selected(), Numbers());
}

TEST_F(Deleting, TheLastBoxTakesTheFreeNumberOver) {
    Place("Sin", 1000, 1000);
    Place("Cos", 2000, 2000);
    Place("Plot Output", 3000, 3500);
    Join(1, 3);
    Join(2, 3);
    Join(1, 2);
    Boxes[3].BoxText = "Polar;box3";
    Boxes[3].BoxMark = "OK";
    Boxes[3].BoxLineColor.Fill(9);
    Boxes[3].BoxIn[3] = LockedSlot;
    Delete({2});
    EXPECT_EQ(NextBox, 3);
    EXPECT_EQ(Boxes[2].BoxType, "Plot Output");
    EXPECT_EQ(Boxes[2].BoxText, "Polar;box2");
    EXPECT_EQ(Boxes[2].BoxMark, "OK");
    EXPECT_EQ(Boxes[2].BoxLineColor[5], 9);
    EXPECT_EQ(SheetCorner(2), WholePoint(3000, 3500));
    EXPECT_EQ(Corner(2), Point(3000, 3500));
    EXPECT_EQ(Sheet().box[2].Picture, 96);
    EXPECT_TRUE(Sheet().box[2].Visible);
    EXPECT_FALSE(Sheet().box.Has(3));
    EXPECT_EQ(Exits(1), (Numbers{2, 0, 0, 0, 0}));
    EXPECT_EQ(Entries(2), (Numbers{1, 0, -1})) << "the arrow from the deleted box is gone";
    EXPECT_EQ(Sheet().Surface.size(), 3U);
}

TEST_F(Deleting, ReferencesFollowAsPlainText) {
    struct Row {
        int Boxes;
        std::int16_t Deleted;
        const char *Before, *After;
    };
    const Row rows[] = {
        {12, 3, "box12", "box3"},
        {12, 3, "a=box12+box1-box12;", "a=box3+box1-box3;"},
        {12, 3, "box121", "box31"},
        {12, 3, "Box12 xbox12", "Box12 xbox3"},
        {12, 3, "box1", "box1"},
        {12, 3, "", ""},
        {11, 1, "box11box11box111", "box1box1box11"},
    };
    for (const auto& row : rows) {
        SetUp();
        while (NextBox <= row.Boxes) Place("Sin", 0, 0);
        Boxes[2].BoxText = row.Before;
        Delete({row.Deleted});
        EXPECT_EQ(Boxes[2].BoxText, row.After) << row.Before;
    }
}

TEST_F(Deleting, TheListFollowsTheTable) {
    struct Row {
        std::vector<std::int16_t> Selected;
        std::string Left;
    };
    const Row rows[] = {
        {{1, 5}, "DBC"}, {{2, 4, 5}, "AC"},     {{4, 5}, "ABC"},
        {{3}, "ABED"},   {{1, 2, 3, 4, 5}, ""}, {{5, 1}, "DBC"},
    };
    for (const auto& row : rows) {
        SetUp();
        for (const char* type : {"A", "B", "C", "D", "E"}) Place(type, 0, 0);
        SelectedBoxes.Resize(0);
        for (const auto n : row.Selected) SelectedBoxes.Append(n);
        bool silent = true;
        DeleteBoxes(silent);
        std::string left;
        for (int i = 1; i < NextBox; ++i) left += Boxes[i].BoxType;
        EXPECT_EQ(left, row.Left);
        for (int i = 1; i <= 5; ++i) EXPECT_EQ(Sheet().box.Has(i), i < NextBox) << i;
    }
}

TEST_F(Deleting, ABoxOfAnotherDocumentTakesTheNumberAndStaysWhereItIs) {
    NewDocument();
    Place("Sin", 1000, 1000);
    Place("Cos", 2000, 2000);
    const int moved = Place("Tan", 700, 800, 2);
    Sheet(2).scrV.Value = 100;
    Sheet(2).box[moved].Top = 700;
    for (const int i : {1, 2}) DocumentStates[i].Modified = 0;
    for (const int i : {1, 2}) Sheet(i).shpCopy.Visible = true;
    Delete({1});
    EXPECT_EQ(Boxes[1].BoxType, "Tan");
    EXPECT_EQ(Boxes[1].BoxDocument, 2);
    EXPECT_FALSE(Sheet(1).box.Has(1));
    EXPECT_EQ(SheetCorner(1), WholePoint(700, 800));
    EXPECT_TRUE(Sheet(2).box.Has(1) && Sheet(2).box[1].Visible);
    EXPECT_EQ(Corner(1, 2), Point(700, 700));
    EXPECT_EQ(Sheet(2).box[1].Picture, 133);
    EXPECT_FALSE(Sheet(2).box.Has(3));
    for (const int i : {1, 2}) {
        EXPECT_EQ(DocumentStates[i].Modified, -1) << i;
        EXPECT_FALSE(Sheet(i).shpCopy.Visible) << i;
    }
}

TEST_F(Deleting, EveryReferenceIsWarnedOf) {
    for (int i = 0; i < 3; ++i) Place("Sin", 0, 0);
    Boxes[1].BoxText = "box1";
    Boxes[2].BoxText = "box1+box12";
    Boxes[3].BoxText = "box";
    Delete({1}, false);
    ASSERT_EQ(screen.Messages.size(), 3U);
    EXPECT_EQ(screen.Messages[0].Text,
              "Warning: Box1 is about to be deleted.\r\n"
              "This box is used as an operator for box1.\r\n");
    for (const int i : {1U, 2U}) {
        const auto& message = screen.Messages[static_cast<std::size_t>(i)];
        EXPECT_EQ(message.Text,
                  "Warning: Box1 is about to be deleted.\r\n"
                  "This box is used as an operator for box2.\r\n");
        EXPECT_EQ(message.Picture, Icon::Exclamation);
        EXPECT_EQ(message.Title, "Quorvane");
    }
    EXPECT_EQ(NextBox, 3) << "it warns and doesn't ask";
    Boxes[1].BoxText = "box2";
    Delete({2});
    EXPECT_EQ(screen.Messages.size(), 3U);
}

/// Links beyond the table, controls that are gone, a number that a trap has put out of use.
TEST_F(Deleting, NothingFailsForTheUser) {
    for (int i = 0; i < 4; ++i) Place("Sin", 0, 0);
    Boxes[1].BoxIn[1] = 9999;
    Boxes[1].BoxOut[1] = 351;
    Sheet().box.Unload(1);
    Sheet().box.Unload(4);
    EXPECT_NO_THROW(Delete({1}));
    EXPECT_EQ(NextBox, 4);
    Boxes[2].BoxDocument = 7;
    EXPECT_NO_THROW(Delete({2, 3, 1}));
    EXPECT_EQ(NextBox, 1);
    EXPECT_NO_THROW(Delete({5}));
    EditMode = 6;
    mnuEditClear_Click(Sheet());
    EXPECT_EQ(EditMode, 6) << "with nothing selected the mode stays";
}

}  // namespace
