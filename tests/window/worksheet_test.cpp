// SPDX-License-Identifier: MIT
#include "diagram/layout.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

namespace {

/// The smallest rectangle that holds all that isn't white within `area`.
QRect Inked(const QImage& picture, const QRect& area) {
    QRect inked;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (picture.pixelColor(x, y) != Qt::white) inked |= QRect(x, y, 1, 1);
        }
    }
    return inked;
}

/// True for a picture of blocks of 2 by 2 pixels.
bool IsMagnified(const QImage& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(x & ~1, y & ~1)) return false;
        }
    }
    return true;
}

}  // namespace

/// What a worksheet shows, down to the pixel.
struct WorksheetWindow : WindowTest {
    void SetUp() override {
        WindowTest::SetUp();
        Choose("mnuFileNew");
    }
};

TEST_F(WorksheetWindow, PicturesAreDrawnForTheScreen) {
    Place("mnuTrigSin", {60, 50});
    const auto face = Screen(Box(1));
    EXPECT_EQ(face.devicePixelRatio(), qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble());
    // The icon within the outline, where it isn't the box that makes it sharp.
    const auto icon = face.copy(face.rect().adjusted(9, 9, -9, -9));
    EXPECT_TRUE(face.devicePixelRatio() == 1 || !IsMagnified(icon));
}

TEST_F(WorksheetWindow, NoArrowLooksOutBehindABoxBetweenTwoPixels) {
    Place("mnuTrigSin", {60, 50});
    Place("mnuTrigCos", {60, 250});
    auto* box = Box(1);
    QTest::mouseClick(box, Qt::RightButton);
    Drag(box, Surface(), {200, 150});
    QTest::mouseClick(box, Qt::RightButton);
    Join(2, 1);
    auto picture = Screen(Surface());
    const int ratio = qRound(picture.devicePixelRatio());
    picture.setDevicePixelRatio(1);
    EXPECT_EQ(ColoredIn(picture, box->y() * ratio - 1, {184 * ratio, 217 * ratio}, NewArrow), 0.0);
}

TEST_F(WorksheetWindow, AnotherProgramsBoxIsNoneOfThisOnes) {
    Place("mnuTrigSin", {60, 50});
    QMimeData theirs;
    theirs.setData("application/x-quorvane-box", "1");
    QDropEvent drop({300, 300}, Qt::MoveAction, &theirs, Qt::LeftButton, {});
    QCoreApplication::sendEvent(Surface(), &drop);
    EXPECT_EQ(Box(1)->pos(), QPoint(60, 50));
}

TEST_F(WorksheetWindow, APageKeyScrollsByWhatShows) {
    Type(Qt::Key_PageDown);
    EXPECT_EQ(DocumentWindow(1).scrV.Value, qMin(Surface()->height() * 15 - 600, 7000));
    Type(Qt::Key_PageUp);
    Type(Qt::Key_PageDown, Qt::ShiftModifier);
    EXPECT_EQ(DocumentWindow(1).scrV.Value, 0);
    EXPECT_EQ(DocumentWindow(1).scrH.Value, Surface()->width() * 15 - 600);
}

TEST_F(WorksheetWindow, ThePageViewShowsTheSheetAtSmallScale) {
    Place("mnuTrigSin", {150, 90});
    Place("mnuTrigCos", {150, 300});
    Join(1, 2);
    Answers = {[&](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Quorvane Page View");
        const auto picture = dialog.grab().toImage();
        const auto ratio = picture.devicePixelRatio();
        EXPECT_EQ(ColoredIn(picture, 180, {110, 130}, NewArrow), 1.0);
        // The scales by the design size of the dialog and the extent of the page.
        const double x = ratio * (9600 - 2400.0) / PageRight;
        const double y = ratio * (7800 - 600 - 1800.0) / PageBottom;
        const QRectF expected(150 * x, 90 * y, 33 * x, 33 * y);
        const QRectF inked = Inked(picture, expected.adjusted(-9, -9, 9, 0).toRect());
        // The outline is a line on these edges, smoothed.
        EXPECT_NEAR(inked.left(), expected.left(), 2);
        EXPECT_NEAR(inked.top(), expected.top(), 2);
        EXPECT_NEAR(inked.right(), expected.right(), 2);
        EXPECT_NEAR(inked.bottom(), expected.bottom(), 2);
        const auto* box = dialog.findChild<QWidget*>("box(2)");
        EXPECT_TRUE(box && box->accessibleName() == "box2 Cos");
        Play("cmdOK")(dialog);
    }};
    Choose("mnuPageView");
    EXPECT_FALSE(QApplication::activeModalWidget());
}

}  // namespace quorvane::testing
