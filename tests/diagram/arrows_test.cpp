// SPDX-License-Identifier: MIT
#include "diagram/arrows.h"

#include <vector>

#include "support/diagram_fixture.h"

using namespace quorvane;

namespace {

class Arrows : public quorvane::testing::DiagramTest {
protected:
    /// Gives a box a control on a sheet.
    static BoxControl& Place(int number, double left, double top, int document = 1) {
        auto& control = Documents[document]->box.Load(number);
        control.Left = left;
        control.Top = top;
        return control;
    }

    static std::vector<DrawnShape>& Painted() { return Documents[1]->Surface; }

    static void ExpectLine(const DrawnShape& shape, double x1, double y1, double x2, double y2) {
        EXPECT_EQ(shape.Shape, DrawnShape::Kind::Line);
        EXPECT_DOUBLE_EQ(shape.X1, x1);
        EXPECT_DOUBLE_EQ(shape.Y1, y1);
        EXPECT_DOUBLE_EQ(shape.X2, x2);
        EXPECT_DOUBLE_EQ(shape.Y2, y2);
    }
};

/// Two boxes of 495 by 495; the destination's corner is (2000, 1000).
TEST_F(Arrows, TheHeadGoesByTheRelativePosition) {
    struct Row {
        const char* Case;
        double Left, Top;  ///< Source
        int Entry;
        double X, Y, Radius, Start, End;  ///< Head
    };
    const Row rows[] = {
        {"above", 500, 100, 1, 2099, 990, 100, -0.95, -2.2},
        {"above, third entry", 500, 100, 3, 2297, 990, 100, -0.95, -2.2},
        {"just above", 500, 752.25, 2, 2198, 990, 100, -0.95, -2.2},
        {"not above yet", 500, 752.5, 2, 2000, 1000, 150, -2.969, -3.555},
        {"level, going right", 1999, 1000, 3, 2000, 1247.5, 150, -2.969, -3.555},
        {"level, equal left", 2000, 1100, 3, 2495, 1347.5, 100, -5.76, -0.7},
        {"level, going left", 3000, 900, 1, 2495, 1147.5, 100, -5.76, -0.7},
        {"last level one", 3000, 1247.25, 1, 2495, 1494.75, 100, -5.76, -0.7},
        {"below at once", 3000, 1247.5, 1, 2099, 1505, 100, -4.09, -5.34},
        {"below", 500, 5000, 2, 2198, 1505, 100, -4.09, -5.34},
    };
    Draw({{"Sin", ""}, {"Cos", ""}});
    auto& source = Place(1, 0, 0);
    Place(2, 2000, 1000);
    Boxes[1].BoxLineColor[1] = 0x0000FF;
    Boxes[1].BoxLineColor[2] = 0x00FF00;
    Boxes[1].BoxLineColor[3] = 0xFF0000;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Case);
        source.Left = row.Left;
        source.Top = row.Top;
        Painted().clear();
        DrawArrow(1, 2, row.Entry, "b", 1);
        ASSERT_EQ(Painted().size(), 3U);
        const double x = 2000 + row.Entry * 99;
        const double y = row.Top + 247.5;
        ExpectLine(Painted()[0], row.Left + row.Entry * 99, y, x, y);
        ExpectLine(Painted()[1], x, y, x, 1000);
        const auto& head = Painted()[2];
        EXPECT_EQ(head.Shape, DrawnShape::Kind::Pie);
        EXPECT_DOUBLE_EQ(head.X1, row.X);
        EXPECT_DOUBLE_EQ(head.Y1, row.Y);
        EXPECT_DOUBLE_EQ(head.Radius, row.Radius);
        EXPECT_DOUBLE_EQ(head.StartAngle, row.Start);
        EXPECT_DOUBLE_EQ(head.EndAngle, row.End);
        for (const auto& shape : Painted()) EXPECT_EQ(shape.Color, 0xFF << 8 * (row.Entry - 1));
    }
}

TEST_F(Arrows, EachFormulaTakesItsOwnSize) {
    Draw({{"Sin", ""}, {"Cos", ""}});
    auto& source = Place(1, 100, 3000);
    source.Width = 500;
    source.Height = 400;
    auto& destination = Place(2, 1000, 600);
    destination.Width = 1000;
    destination.Height = 800;
    DrawArrow(1, 2, 2, "b", 1);
    ASSERT_EQ(Painted().size(), 3U);
    ExpectLine(Painted()[0], 300, 3200, 1400, 3400);
    ExpectLine(Painted()[1], 1400, 3200, 1400, 600);
    EXPECT_DOUBLE_EQ(Painted()[2].X1, 1400);
    EXPECT_DOUBLE_EQ(Painted()[2].Y1, 1410);
}

TEST_F(Arrows, AnArrowToItselfGoesLeft) {
    Draw({{"Sin", "", {1}, {1}}});
    Place(1, 700, 300);
    RedrawDocument("1");
    ASSERT_EQ(Painted().size(), 3U);
    EXPECT_DOUBLE_EQ(Painted()[2].X1, 1195);
    EXPECT_DOUBLE_EQ(Painted()[2].Y1, 547.5);
}

TEST_F(Arrows, WhatIsNotThereIsNotPainted) {
    Draw({{"Sin", ""}, {"Cos", ""}});
    Place(1, 0, 0);
    for (const int destination : {0, -1, -32768, 2, 350, 351}) {
        EXPECT_NO_THROW(DrawArrow(1, destination, 1, "b", 1)) << destination;
    }
    EXPECT_NO_THROW(DrawArrow(1, 1, 1, "b", 7));
    EXPECT_TRUE(Painted().empty());
}

TEST_F(Arrows, TheLowestEntryIsFound) {
    Draw({{"Sin", "", {0, 5, 5}}, {"Sin", "", {-1, 3, 5}}, {"Sin", "", {0, 0, 0}}});
    struct Row {
        int Source, Destination, Entry;
    };
    const Row rows[] = {{5, 1, 2}, {5, 2, 3}, {3, 2, 2}, {9, 2, 1}, {5, 3, 1}};
    for (const auto& row : rows) {
        EXPECT_EQ(FindEntrySlot(row.Source, row.Destination), row.Entry)
            << row.Source << " to " << row.Destination;
    }
}

TEST_F(Arrows, RedrawGoesByBoxAndExit) {
    NewDocument();
    // Box 1 names box 3 although that one does not know it; box 4 lies in the other document.
    Draw({{"a", "", {0, 0, 0}, {2, 0, -1, 3, 3}}, {"b", "", {1, 0, 0}, {1}}, {"c", "", {0, 0, 2}}});
    Draw({{"d", "", {}, {1}}}, 2);
    Draw({{"e", "", {}, {3, 4}}});
    for (const int number : {1, 2, 3, 5}) Place(number, 1000.0 * number, 0);
    Place(4, 0, 0, 2);
    // Behind the last box stands a record that a broken-off load left; it is looked at too.
    Boxes[6] = Boxes[2];
    Place(6, 6000, 0);
    for (int i = 1; i <= 6; ++i) Boxes[i].BoxLineColor.Fill(i);
    Painted().emplace_back();
    Documents[2]->Surface.emplace_back();
    RedrawDocument("1");
    std::vector<int> colors;
    std::vector<double> ends;
    for (std::size_t i = 0; i < Painted().size(); i += 3) {
        colors.push_back(Painted()[i].Color);
        ends.push_back(Painted()[i].X2);
    }
    EXPECT_EQ(colors, (std::vector<int>{1, 1, 1, 2, 5, 6}));
    EXPECT_EQ(ends, (std::vector<double>{2099, 3099, 3099, 1099, 3099, 1099}));
    EXPECT_EQ(Documents[2]->Surface.size(), 1U) << "the other sheet was touched";
    RedrawDocument("");
    EXPECT_EQ(Painted().size(), 18U);
    EXPECT_EQ(Documents[2]->Surface.size(), 1U);
}

TEST_F(Arrows, AFullTableIsRedrawn) {
    for (int i = 1; i <= MaxBoxes; ++i) Draw({{"a", ""}});
    Boxes[350].BoxOut[5] = 349;
    Place(349, 0, 0);
    Place(350, 1000, 0);
    EXPECT_NO_THROW(RedrawDocument("1"));
    EXPECT_EQ(Painted().size(), 3U);
}

}  // namespace
