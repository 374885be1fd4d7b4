// SPDX-License-Identifier: MIT
#include "diagram/box_table.h"
#include "diagram/layout.h"
#include "diagram/selection.h"
#include "qt/sheet/worksheet_view.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

/// A worksheet at each scale, in per cent. Records hold screen units, 15 to a pixel at 100 %.
struct ZoomWindow : WindowTest, ::testing::WithParamInterface<int> {
    void SetUp() override {
        WindowTest::SetUp();
        Choose("mnuFileNew");
        Window()->showMaximized();
        QCoreApplication::processEvents();
        view = static_cast<WorksheetView*>(Window()->widget());
    }
    void Turn(int by, QPoint at, Qt::KeyboardModifiers keys = {}) {
        QWheelEvent event(at, Surface()->mapToGlobal(QPointF(at)), {}, {0, by}, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(Surface(), &event);
    }
    int ZoomBy(int key) {
        QTest::keyClick(&Frame(), static_cast<Qt::Key>(key), Qt::ControlModifier);
        return view->Zoom();
    }
    /// How far the corner of a box is from a pixel of the surface.
    int Off(int box, QPoint at) { return (Box(box)->pos() - at).manhattanLength(); }

    WorksheetView* view = nullptr;
};

TEST_P(ZoomWindow, ADiagramIsDrawn) {
    const double factor = GetParam() / 100.0;
    const auto units = [&](int x, int y) {
        return QPoint(qRound(x * 15 / factor), qRound(y * 15 / factor));
    };
    const auto corner = [](int box) { return QPoint(Boxes[box].BoxLeft, Boxes[box].BoxTop); };
    view->SetZoom(GetParam());
    Place("mnuTrigSin", {101, 83});
    Place("mnuTrigCos", {407, 255});
    EXPECT_EQ(corner(1), units(101, 83));
    EXPECT_EQ(Box(1)->geometry(), QRect(QPoint(101, 83), QSize(1, 1) * qRound(33 * factor)));

    Join(1, 2);
    QTest::mouseClick(Box(1), Qt::RightButton);
    Drag(Box(1), Surface(), {150, 120});
    EXPECT_EQ(corner(1), units(150, 120));
    EXPECT_LE((Box(1)->geometry().center() - QPoint(150, 120)).manhattanLength(), 2);
    QTest::mouseMove(Surface(), {700, 20});
    const auto picture = Screen(Surface());
    const double ratio = picture.devicePixelRatio();
    const int leg = 407 + qRound(33 * factor / 5);
    EXPECT_EQ(ColoredIn(picture, 200, {leg - 15, leg + 15}, NewArrow),
              qMax(1, qRound(factor * ratio)) / ratio);

    Band({395, 240}, {440, 280});
    const QColor inverse(0xB3, 0xA7, 0x99);
    EXPECT_EQ(ColoredIn(Screen(Surface()), 260, {390, 400}, inverse), 1.0);
    ASSERT_EQ(SelectedBoxes.UpperBound(), 1);
    EXPECT_EQ(SelectedBoxes[1], 2);
    view->SetZoom(GetParam() == 100 ? 200 : 100);
    EXPECT_TRUE(DocumentWindow(1).shpCopy.Visible) << "zooming leaves the selection";
    view->SetZoom(GetParam());

    const auto before = Box(2)->pos();
    Turn(-120, {300, 300});
    EXPECT_LE(Off(2, before - QPoint(0, 40)), 1);
    Type(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(SelectedBoxes.UpperBound(), 2);
}

INSTANTIATE_TEST_SUITE_P(Scales, ZoomWindow, ::testing::Values(25, 33, 67, 100, 125, 300, 400));

TEST_F(ZoomWindow, TheWheelZoomsAtTheMouse) {
    Place("mnuTrigSin", {300, 200});
    for (int i = 0; i < 5; ++i) Turn(120, {300, 200}, Qt::ControlModifier);
    EXPECT_EQ(view->Zoom(), 200);
    EXPECT_LE(Off(1, {300, 200}), 1);
    for (int i = 0; i < 10; ++i) Turn(-60, {300, 200}, Qt::ControlModifier);
    EXPECT_EQ(view->Zoom(), 100);
    EXPECT_LE(Off(1, {300, 200}), 1);
}

TEST_F(ZoomWindow, KeysZoomAndKeepTheBoxesInView) {
    const auto all = Surface()->rect();
    Place("mnuTrigSin", {700, 500});
    Frame().menuBar()->setFocus();
    EXPECT_EQ(ZoomBy(Qt::Key_Plus), 110);
    EXPECT_EQ(ZoomBy(Qt::Key_Equal), 125);
    for (int i = 0; i < 20; ++i) ZoomBy(Qt::Key_Plus);
    EXPECT_EQ(view->Zoom(), 400);
    EXPECT_TRUE(all.contains(Box(1)->geometry()));
    EXPECT_EQ(ZoomBy(Qt::Key_0), 100);
    EXPECT_EQ(ZoomBy(Qt::Key_Minus), 90);
    Place("mnuTrigTan", {20, 20});
    for (const int percent : {50, 100}) view->SetZoom(percent);
    for (const int box : {1, 2}) EXPECT_TRUE(all.contains(Box(box)->geometry())) << box;
    // Below the end of the sheet, which grows.
    Place("mnuTrigCos", {100, 100});
    for (const int box : {1, 2, 3}) Boxes[box].BoxTop = 20000 + box * 3000;
    scrV_Change(DocumentWindow(1));
    EXPECT_GE(ZoomBy(Qt::Key_9), 75);
    for (const int box : {1, 2, 3}) EXPECT_TRUE(all.contains(Box(box)->geometry())) << box;
}

TEST_F(ZoomWindow, TheMiddleButtonPans) {
    const auto pan = [](QWidget* part) {
        QTest::mousePress(part, Qt::MiddleButton, {}, {20, 20});
        QTest::mouseMove(part, {18, 18});
        QTest::mouseMove(part, {-10, -20});
        QTest::mouseRelease(part, Qt::MiddleButton, {}, {-10, -20});
    };
    view->SetZoom(200);
    Place("mnuTrigSin", {300, 200});
    Choose("mnuTrigCos");
    pan(Surface());
    EXPECT_LE(Off(1, {270, 160}), 1);
    EXPECT_EQ(EditMode, 2) << "the armed box waits";
    QTest::mouseClick(Surface(), Qt::MiddleButton, {}, {500, 100});
    EXPECT_EQ(Box(2)->pos(), QPoint(500, 100));
    pan(Box(1));
    EXPECT_LE(Off(2, {470, 60}), 1);
    EXPECT_TRUE(Asked.isEmpty());
}

}  // namespace quorvane::testing
