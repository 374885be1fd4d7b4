// SPDX-License-Identifier: MIT
#include "window/window_fixture.h"

namespace quorvane::testing {

/// How windows lie in the frame, and what it keeps away from them.
struct FrameWindows : WindowTest {
    QRect Room() { return Frame().Area()->viewport()->rect(); }
    QRect Shape(int document) const { return Window(document)->geometry(); }
};

TEST_F(FrameWindows, NothingStartsBehindADialog) {
    WriteAll("quorvane.ini", "[Prefrences]\r\n");
    for (const char* command : {"mnuExeDDE", "mnuOptionsPrefs"}) {
        Start();
        Choose("mnuFileNew");
        auto* bar = static_cast<QAbstractSlider*>(Part("scrV"));
        Answers = {[&](QDialog& dialog) {
            Choose("mnuFileNew");
            Choose("mnuExit");
            Frame().close();
            bar->setValue(500);
            EXPECT_TRUE(QTest::qWaitFor([&] { return bar->value() == 0; }));
            Play(dialog.objectName() == "frmPrefs" ? "cmdOK" : "")(dialog);
            if (dialog.isVisible()) QTest::keyClick(&dialog, Qt::Key_Return);
        }};
        Choose(command);
        EXPECT_TRUE(Window(1) && !Window(2) && Frame().isVisible()) << command;
        Choose("mnuFileNew");
        EXPECT_TRUE(Window(2)) << command;
    }
}

/// The page that the manual is open at, "" when it isn't, or is blocked by a dialog.
std::string OpenPage(QWidget& frame) {
    const auto* dialog = QApplication::activeModalWidget();
    const auto* pages = frame.findChild<QTreeWidget*>("helpContents");
    const bool isOpen = pages && pages->window()->isVisible();
    if (!isOpen || (dialog && pages->window()->parentWidget() != dialog)) return "";
    return pages->currentItem()->text(0).toStdString();
}

TEST_F(FrameWindows, F1OpensThePageOfWhatHasTheFocus) {
    std::filesystem::copy(QUORVANE_SOURCE_DIR "/resources/help/QUORVANE.HLP", ".");
    WriteAll("quorvane.ini", "[Prefrences]\r\n");
    Start();
    Choose("mnuFileNew");
    Answers = {[&](QDialog& dialog) {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_F1);
        EXPECT_EQ(OpenPage(Frame()), "Rounding");
        Play("cmdOK")(dialog);
    }};
    Place("mnuOperatorsRound", {60, 50});
    EXPECT_EQ(OpenPage(Frame()), "") << "it closes with its dialog";
    Place("mnuTrigSin", {60, 150});
    Box(2)->setFocus();
    QTest::keyClick(Box(2), Qt::Key_F1);
    EXPECT_EQ(OpenPage(Frame()), "Trigonometric functions");
    QTest::keyClick(Frame().findChild<QWidget*>("Picture1"), Qt::Key_F1);
    EXPECT_EQ(OpenPage(Frame()), "The bar");
}

TEST_F(FrameWindows, WorksheetsAreArrangedButForIcons) {
    for (int i = 0; i < 3; ++i) Choose("mnuFileNew");
    Window(2)->showMinimized();
    Choose("mnuWindowsCascade");
    for (const int open : {1, 3}) {
        EXPECT_TRUE(Room().contains(Shape(open)) && Shape(open).width() > Room().width() / 2);
    }
    EXPECT_NE(Shape(1).topLeft(), Shape(3).topLeft());
    Choose("mnuWindowsTile");
    const auto both = Shape(1) | Shape(3);
    EXPECT_FALSE(Shape(1).intersects(Shape(3)));
    EXPECT_EQ(both, Room().adjusted(0, 0, 0, -Window(2)->height()));
    EXPECT_TRUE(Window(2)->isMinimized());
    Choose("mnuWindowsArrange");
    EXPECT_TRUE(Room().contains(Shape(2)) && !Shape(2).intersects(both));
    Choose("mnuWindowList(2)");
    EXPECT_FALSE(Window(2)->isMinimized());
    EXPECT_EQ(Frame().Area()->activeSubWindow(), Window(2));
}

TEST_F(FrameWindows, WorksheetsAreMinimisedAndMaximised) {
    Choose("mnuFileNew");
    Place("mnuTrigSin", {60, 50});
    // Where the corner between the scroll bars ends, which they and the panels follow.
    const auto corner = [&] {
        return Window()->findChild<QWidget*>("pctblank")->geometry().bottomRight();
    };
    const auto end = [&] { return Window()->widget()->rect().bottomRight(); };
    const auto design = corner();
    EXPECT_EQ(design, end());
    const auto* square = Part("pctblank");
    EXPECT_TRUE(square->width() == square->height() && square->width() > 0);
    Window()->showMinimized();
    EXPECT_EQ(corner(), design);
    Choose("mnuWindowsArrange");
    EXPECT_TRUE(Room().contains(Shape(1)));
    Window()->showNormal();
    EXPECT_EQ(corner(), design);
    Window()->showMaximized();
    EXPECT_GT(corner().x(), design.x());
    EXPECT_EQ(corner(), end());
    EXPECT_EQ(Surface()->width(), Part("scrV")->x());
    EXPECT_EQ(Box(1)->pos(), QPoint(60, 50));
}

TEST_F(FrameWindows, TheToolboxKeepsItsPlaceByTheFrame) {
    WriteAll("quorvane.ini", "[Prefrences]\r\n");
    Start();
    Choose("mnuFileNew");
    auto* toolbox = Frame().findChild<QWidget*>("frmPictures");
    const auto at = [&] { return toolbox->pos() - Frame().pos(); };
    const auto room = [&] { return Room().translated(Frame().Area()->mapToGlobal(QPoint())); };
    const auto first = toolbox->pos();
    toolbox->move(first - QPoint(0, 20));
    EXPECT_TRUE(QTest::qWaitFor([&] { return toolbox->pos() == first; }))
        << "a window manager moved it when it added its frame";
    for (int panels = 0; panels < 2; ++panels) {
        const auto title = room().adjusted(0, 0, 0, Window()->widget()->y() - room().height());
        EXPECT_TRUE(room().contains(toolbox->geometry()) && !title.intersects(toolbox->geometry()));
        EXPECT_GT(toolbox->x(), room().center().x());
        Type(Qt::Key_F7);
    }
    Frame().resize(500, 500);
    Frame().move(10, 20);
    EXPECT_GT(toolbox->x(), Frame().geometry().right()) << "where there is room beside it";
    toolbox->move(110, 220);
    EXPECT_TRUE(QTest::qWaitFor([] { return QSettings().contains("Workbench/Toolbox place"); }));
    Frame().move(60, 50);
    EXPECT_EQ(at(), QPoint(100, 200));
    Frame().move(-300, 50);
    EXPECT_EQ(toolbox->x(), 0) << "never out of the screen";
    Start();
    toolbox = Frame().findChild<QWidget*>("frmPictures");
    EXPECT_EQ(at(), QPoint(100, 200));
    QSettings().setValue("Workbench/Toolbox place", "right 5000 20");
    Start();
    toolbox = Frame().findChild<QWidget*>("frmPictures");
    EXPECT_TRUE(toolbox->screen()->geometry().contains(toolbox->geometry()));
    Choose("mnuFileNew");
    for (const auto& [key, sent] :
         {std::pair(Qt::Key_Escape, ""), {Qt::Key_Return, "Plot Output"}}) {
        Type(Qt::Key_F6);
        ASSERT_TRUE(QTest::qWaitFor([&] { return toolbox->isActiveWindow(); }));
        for (const auto walk : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Down}) Type(walk);
        Type(key);
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == Surface(); }));
        EXPECT_EQ(frmMDI.txtEvent, sent);
    }
    Type(Qt::Key_Escape);
    EXPECT_EQ(frmMDI.txtEvent, "") << "given up";
}

TEST_F(FrameWindows, TheTourTakesElevenClicks) {
    Choose("mnuFileNew");
    Choose("mnuHelpTour");
    QString last;
    for (int click = 1; click <= 11; ++click) {
        auto* panel = static_cast<QLabel*>(Part("pnlTour"));
        ASSERT_TRUE(panel && panel->text() != last);
        last = panel->text();
        // All of the text shows, also on a low worksheet.
        for (const QSize& size : {QSize(640, 480), QSize(420, 170)}) {
            Window()->resize(size);
            EXPECT_TRUE(panel->parentWidget()->rect().contains(panel->geometry())) << click;
            EXPECT_GE(panel->height(), panel->heightForWidth(panel->width())) << click;
        }
        QTest::mouseClick(panel, Qt::LeftButton);
    }
    EXPECT_FALSE(Part("pnlTour"));
    EXPECT_FALSE(Entry("mnuHelpTour")->isChecked());
}

}  // namespace quorvane::testing
