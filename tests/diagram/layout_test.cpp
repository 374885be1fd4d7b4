// SPDX-License-Identifier: MIT
#include "diagram/layout.h"

#include "diagram/editor_fixture.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

class Layout : public EditorTest {
protected:
    static void Resize(double width, double height) {
        Sheet().ScaleWidth = width;
        Sheet().ScaleHeight = height;
        main_Resize(Sheet());
    }
};

TEST_F(Layout, BarsLieAlongTheLowerAndRightEdge) {
    EXPECT_EQ(PageRight, Sheet().scrH.Place.Left + Sheet().scrH.Place.Width);
    EXPECT_GT(PageRight, 0);
    EXPECT_EQ(PageBottom, 7000);
    Resize(6000, 4000);
    EXPECT_EQ(Sheet().pnlResource.Place, (Area{0, 3610, 1800, 390}));
    EXPECT_EQ(Sheet().pnlArrow.Place, (Area{1800, 3610, 600, 390}));
    EXPECT_EQ(Sheet().pctblank, (Area{5745, 3610, 255, 390}));
    EXPECT_EQ(Sheet().scrH.Place, (Area{2400, 3610, 3345, 390}));
    EXPECT_EQ(Sheet().scrV.Place, (Area{5745, 0, 255, 3610}));
    EXPECT_EQ(CurrentDocument, 1);
}

TEST_F(Layout, TooSmallMinimisedAndTemplateWindows) {
    Resize(6000, 4000);
    Resize(1000, 200);
    EXPECT_EQ(Sheet().scrH.Place.Width, 3345) << "a negative width is refused";
    EXPECT_EQ(Sheet().scrV.Place.Height, 3610);
    EXPECT_EQ(Sheet().pctblank.Left, 745);
    NewDocument();
    const auto before = Sheet(2).scrH.Place;
    Sheet(2).Minimized = true;
    Sheet(2).ScaleWidth = 3000;
    main_Resize(Sheet(2));
    EXPECT_EQ(CurrentDocument, 2);
    EXPECT_EQ(Sheet(2).scrH.Place, before);
    Worksheet templateSheet;
    templateSheet.ScaleWidth = 3000;
    main_Resize(templateSheet);
    EXPECT_EQ(CurrentDocument, 2);
    EXPECT_EQ(templateSheet.scrH.Place, before);
}

TEST_F(Layout, ScrollingMovesTheBoxesOfTheDocument) {
    NewDocument();
    Place("Sin", 1000, 2000);
    Place("Cos", 3000, 3000);
    Place("Tan", 500, 600, 2);
    Join(1, 2);
    Sheet().box.Unload(2);
    Sheet().shpCopy.Visible = true;
    SelectNumbers({1});
    Sheet().scrH.Value = 300;
    scrH_Change(Sheet());
    Sheet().scrV.Value = 400;
    scrV_Change(Sheet());
    EXPECT_EQ(Corner(1), Point(700, 1600));
    EXPECT_EQ(Corner(3, 2), Point(500, 600));
    EXPECT_EQ(SheetCorner(1), WholePoint(1000, 2000));
    EXPECT_FALSE(Sheet().shpCopy.Visible);
    EXPECT_EQ(Selected(), Numbers{1});
    EXPECT_TRUE(Sheet().Surface.empty()) << "box 2 has no control, so there is no arrow to paint";
}

TEST_F(Layout, TheSheetGrowsAtItsEndUpToSixteenBits) {
    auto& bar = Sheet().scrV;
    for (const int grown : {8000, 9000, 10000}) {
        bar.Value = bar.Max;
        scrV_Change(Sheet());
        EXPECT_EQ(bar.Max, grown);
        EXPECT_EQ(PageBottom, grown);
    }
    bar.Value = 9999;
    scrV_Change(Sheet());
    EXPECT_EQ(bar.Max, 10000);
    bar.Max = 31767;
    for (int i = 0; i < 2; ++i) {
        bar.Value = bar.Max;
        scrV_Change(Sheet());
        EXPECT_EQ(bar.Max, 32767);
    }
    Place("Sin", 1000, 1000);
    Sheet().scrH.Value = 32767;
    scrH_Change(Sheet());
    EXPECT_EQ(Sheet().scrH.Max, 32767);
    EXPECT_EQ(PageRight, 32767);
    EXPECT_EQ(Corner(1).first, 33767 - 2 * 32767 + 0.0);
}

}  // namespace
