// SPDX-License-Identifier: MIT
#include "diagram/worksheet.h"

#include "support/diagram_fixture.h"

using namespace quorvane;

namespace {

using Sheets = quorvane::testing::DiagramTest;

TEST_F(Sheets, ClosedNumbersAreGivenOutAgain) {
    EXPECT_EQ(NewDocument(), 2);
    EXPECT_EQ(NewDocument(), 3);
    DocumentStates[1].Closed = -1;
    DocumentStates[2].Closed = -1;
    DocumentStates[2].Modified = -1;
    Documents[2].reset();
    EXPECT_EQ(AllocateDocument(), 1);
    EXPECT_EQ(AllocateDocument(), 2);
    EXPECT_EQ(DocumentStates[2].Modified, -1) << "a reused number counts as changed";
    EXPECT_EQ(DocumentStates[2].Closed, 0);
    EXPECT_EQ(AllocateDocument(), 4);
    EXPECT_EQ(Documents.UpperBound(), 4);
    EXPECT_EQ(DocumentStates.UpperBound(), 4);
    EXPECT_EQ(Documents[3]->Tag, "3") << "growing lost a window";
}

TEST_F(Sheets, PointerAndGaugeReachTheOpenOnesOnly) {
    NewDocument();
    NewDocument();
    DocumentStates[2].Closed = -1;
    SetPointerAll(PointerHourglass);
    UpdateBoxGauge(40);
    const double gauges[] = {40, 0, 40};
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(Documents[i]->MousePointer, i == 2 ? PointerDefault : PointerHourglass) << i;
        EXPECT_EQ(Documents[i]->pnlResource.Value, gauges[i - 1]) << i;
    }
    EXPECT_EQ(BoxTableFill(), 0);
    NextBox = 351;
    EXPECT_EQ(BoxTableFill(), 100);
    NextBox = 8;
    EXPECT_DOUBLE_EQ(BoxTableFill(), 2);
}

TEST_F(Sheets, TheSelectionRectangleIsClearedInItsOwnDocument) {
    NewDocument();
    for (const int i : {1, 2}) Documents[i]->shpCopy = {10, 20, 30, 40, true};
    ClearSelectionRect("");
    ClearSelectionRect("2");
    EXPECT_TRUE(Documents[1]->shpCopy.Visible);
    EXPECT_EQ(Documents[1]->shpCopy.Width, 30);
    EXPECT_FALSE(Documents[2]->shpCopy.Visible);
    EXPECT_EQ(Documents[2]->shpCopy.Width + Documents[2]->shpCopy.Height, 0);
}

TEST_F(Sheets, FacesGoByTheIconKey) {
    struct Row {
        const char *Type, *Text, *Key;
    };
    const Row rows[] = {
        {"Sin", "", "Sin"},
        {"Plot Output", "Plot2d;plot(Input1);", "Plot2d"},
        {"Plot Output", "Plot2d", ""},
        {"Plot Output", ";plot(Input1);", ""},
        {"Matrix Manipulation", "Diag|3", "Diag"},
        {"Matrix Manipulation", "diag|3", "Matrix Manipulation"},
        {"Matrix Manipulation", "Fliplr", "Matrix Manipulation"},
        {"Double Subroutine", "Subroutine", "Subroutine"},
        {"Plot Output", "Subroutine", "Subroutine"},
        {"Comment", "Subroutine ", "Comment"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(BoxIconKey(Draw({{row.Type, row.Text}})), row.Key) << row.Type << row.Text;
    }
}

}  // namespace
