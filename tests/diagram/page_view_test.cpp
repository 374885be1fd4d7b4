// SPDX-License-Identifier: MIT
#include "diagram/page_view.h"

#include "diagram/editor_fixture.h"
#include "diagram/layout.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

using PageView = EditorTest;

TEST_F(PageView, AllDocumentsAreShownAtScale) {
    NewDocument();
    Place("Sin", 1000, 2000);
    Place("Plot Output", 2000, 3500, 2);
    Boxes[2].BoxText = "Polar;";
    Boxes[1].BoxOut[3] = 2;
    Boxes[1].BoxOut[4] = 99;
    Boxes[2].BoxIn[2] = 1;
    Boxes[1].BoxLineColor[2] = 0xABCDEF;
    PageRight = 3600;
    PageBottom = 10800;
    screen.Forms["frmPageView"] = [] {
        EXPECT_EQ(frmPageView.Form.Caption, "Quorvane Page View");
        // 9600 by 7800 less the left of scrH, 2400, or less pnl, 600, and 1800
        const double SX = 2;
        const double SY = 0.5;
        const auto& one = frmPageView.box[1];
        const auto& two = frmPageView.box[2];
        EXPECT_DOUBLE_EQ(one.Left, 1000 * SX);
        EXPECT_DOUBLE_EQ(one.Top, 2000 * SY);
        EXPECT_DOUBLE_EQ(one.Width, 495 * SX);
        EXPECT_DOUBLE_EQ(one.Height, 495 * SY);
        EXPECT_EQ(one.Picture, 118);
        EXPECT_EQ(two.Picture, 96);
        EXPECT_TRUE(two.Visible);
        EXPECT_FALSE(frmPageView.box.Has(3));
        ASSERT_EQ(frmPageView.Surface.size(), 2U) << "two legs and no head";
        const auto& leg = frmPageView.Surface[0];
        EXPECT_DOUBLE_EQ(leg.X1, one.Left + 2 * one.Width / 5);
        EXPECT_DOUBLE_EQ(leg.Y1, one.Top + one.Height / 2);
        EXPECT_DOUBLE_EQ(leg.X2, two.Left + 2 * two.Width / 5);
        EXPECT_DOUBLE_EQ(frmPageView.Surface[1].Y2, two.Top);
        EXPECT_EQ(leg.Color, 0xABCDEF);
        EXPECT_EQ(frmPageView.pnl.Top, 6780);
        EXPECT_EQ(frmPageView.pnl.Width, 9480);
        EXPECT_EQ(frmPageView.cmdOK.Left, 8292);
        frmPageView_cmdOK_Click();
    };
    for (int i = 1; i <= 2; ++i) mnuPageView_Click(Sheet(i));
    EXPECT_EQ(screen.FormsShown.size(), 2U);
    EXPECT_FALSE(frmPageView.Form.Loaded);
    EXPECT_EQ(frmPageView.box.Size(), 0);
}

TEST_F(PageView, EmptyAndFullTables) {
    mnuPageView_Click(Sheet());
    EXPECT_EQ(frmPageView.box.Size(), 0);
    EXPECT_TRUE(frmPageView.Surface.empty());
    while (NextBox <= MaxBoxes) Place("Sin", 0, 0);
    Join(350, 1);
    mnuPageView_Click(Sheet());
    EXPECT_TRUE(frmPageView.box.Has(350));
    EXPECT_EQ(frmPageView.Surface.size(), 2U);
}

}  // namespace
