// SPDX-License-Identifier: MIT
#include <QPrintPreviewWidget>

#include "compile/run_compile.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

/// The pictures of a worksheet, by the menu at the head of the panel "Script".
struct PictureWindow : WindowTest {
    void SetUp() override {
        WindowTest::SetUp();
        Choose("mnuFileNew");
        Place("mnuTrigSin", {60, 50});
        Place("mnuTrigCos", {200, 150});
        Join(1, 2);
        Answers = {PickFile(File("two.qvm"))};
        Choose("mnuFileSaveFile");
    }
    void Pick(const char* entry) { Frame().findChild<QAction*>(entry)->trigger(); }
};

TEST_F(PictureWindow, IsThatOfTheCommandLineWhereverTheSheetIs) {
    Part("scrH")->setProperty("value", 300);
    ASSERT_EQ(Box(1)->x(), 60 - 20);
    for (const char* choice : {"pictureOnPaper", "pictureNumbers", "savePicture"}) {
        Answers = {PickFile(File("window.svg"))};
        if (QString(choice) != "savePicture") Answers.clear();
        Pick(choice);
    }
    RunCompile(folder.Path, {"--picture", "line.svg", "--paper", "--numbers", "two.qvm"});
    EXPECT_NE(ReadAll("line.svg").find(">box2</text>"), std::string::npos);
    EXPECT_EQ(ReadAll("window.svg"), ReadAll("line.svg"));
    // A picture that can't be made is told.
    Answers = {PickFile(File("window.txt")), Press(QMessageBox::Ok)};
    Pick("savePicture");
    EXPECT_FALSE(std::filesystem::exists("window.txt"));
}

TEST_F(PictureWindow, IsCopiedAtItsScaleAndPrintedOnAPage) {
    Pick("pictureScale(200)");
    Pick("copyPicture");
    const auto* copied = QGuiApplication::clipboard()->mimeData();
    const auto image = qvariant_cast<QImage>(copied->imageData());
    EXPECT_EQ(image.size(), QSize(140 + 33 + 40, 100 + 33 + 40) * 2);
    EXPECT_EQ(image.pixelColor(0, 0), QColor(0x4C, 0x58, 0x66));
    EXPECT_TRUE(copied->data("image/svg+xml").startsWith("<svg "));
    Answers = {[](QDialog& dialog) {
        EXPECT_EQ(dialog.findChild<QPrintPreviewWidget*>()->pageCount(), 1);
        dialog.reject();
    }};
    Type(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(Answers.empty());
}

}  // namespace quorvane::testing
