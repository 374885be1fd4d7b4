// SPDX-License-Identifier: MIT
#include <set>

#include "catalogue/box_commands.h"
#include "catalogue/option_lists.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "shell/about.h"
#include "toolbox/toolbox_config.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

/// The commands that make boxes, each chosen from its menu and answered by clicks and keys.
struct DialogWindows : WindowTest {
    void BeginAnew() override {
        WindowTest::BeginAnew();
        Choose("mnuFileNew");
    }
    /// Plays dialog and steps of a row, and compares type and text of box 7 with it.
    void MakeBox(const std::vector<std::string>& row) {
        SCOPED_TRACE(row[0]);
        BeginAnew();
        // The tables begin at box 7, behind these.
        for (const char* type : {"a Subroutine", "End Subroutine", "Sin", "Insert Subroutine a",
                                 " Subroutine", "a subroutine"}) {
            Boxes[NextBox++].BoxType = type;
        }
        Answers = {Play(ToScreen(row[1] + (row[0] == "frmForLoop" ? "|cmd" : "|cmdOK")))};
        for (const auto& command : boxCommands) {
            if (command.Dialog == row[0]) Place(ToScreen(command.Control), {120, 90});
        }
        EXPECT_TRUE(Box(7));
        EXPECT_EQ(Boxes[7].BoxText, row[3]);
        EXPECT_TRUE(row[2].empty() || Boxes[7].BoxType == row[2]) << Boxes[7].BoxType;
    }
    static void ExpectFits(QDialog& dialog) {
        QTest::qWait(0);
        EXPECT_LT(dialog.width(), dialog.screen()->geometry().width());
    }
};

/// Each dialog of the tables by which the records are tested, and each list, once by its widgets.
TEST_F(DialogWindows, EachDialogMakesItsBox) {
    std::set<std::string> played = {"", "input box", "frmPlot"};
    for (const auto& row : ReadTable("catalogue/dialogs.tsv")) {
        // Some look into a record between their steps.
        const bool apt = !row[1].empty() && row[1].find('?') == std::string::npos;
        if (apt && row[6].empty() && played.insert(row[0]).second) MakeBox(row);
    }
    for (const auto& list : optionLists) {
        const auto& last = list.Options[list.Options.size() - 2];
        const std::string type(last.BoxType), text = last.BoxText ? last.BoxText : "";
        if (!played.insert(std::string(list.Dialog)).second) continue;
        MakeBox({std::string(list.Dialog), OptionName(list, last), type, text});
    }
    for (const auto& command : boxCommands) {
        EXPECT_TRUE(!MakesBox(command) || played.contains(std::string(command.Dialog)));
    }
}

TEST_F(DialogWindows, OkGivesTheFocusToTheWorksheetOfTheCommand) {
    Choose("mnuFileNew");
    Choose("mnuWindowsTile");
    auto* toolbox = Frame().findChild<QWidget*>("frmPictures");
    frmPictures.Form.Visible = true;
    RefreshScreen();
    for (const int sheet : {1, 2}) {
        const auto focused = [&] { return QApplication::focusWidget() == Surface(sheet); };
        Answers = {Play("cmdOK")};
        toolbox->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([&] { return toolbox->isActiveWindow(); }));
        frmMDI.txtEvent = "Bessel Function";
        QTest::mouseMove(Surface(sheet), {20, 20});
        EXPECT_TRUE(QTest::qWaitFor(focused)) << "after OK";
        Click({60, 60}, sheet);
        toolbox->activateWindow();
        Answers = {Cancel()};
        QTest::mouseClick(Box(sheet, sheet), Qt::MiddleButton);
        EXPECT_TRUE(QTest::qWaitFor(focused)) << "after Cancel";
    }
}

TEST_F(DialogWindows, ButtonsOfMessagesStandInTheirOrder) {
    const std::pair<QMessageBox::StandardButton, Answer> rows[] = {
        {QMessageBox::Abort, Answer::Abort},
        {QMessageBox::Retry, Answer::Retry},
        {QMessageBox::Ignore, Answer::Ignore}};
    for (int tabs = 0; tabs < 3; ++tabs) {
        Answers = {[&](QDialog& dialog) {
            const auto& box = static_cast<QMessageBox&>(dialog);
            const auto left = [&](int i) { return box.button(rows[i].first)->x(); };
            EXPECT_TRUE(left(0) < left(1) && left(1) < left(2));
            for (int i = 0; i < tabs; ++i) QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        }};
        EXPECT_EQ(QtDesktop().MsgBox({.Text = "?", .Choice = Buttons::AbortRetryIgnore}),
                  rows[tabs].second);
    }
}

TEST_F(DialogWindows, NoTextMakesADialogWiderThanTheScreen) {
    for (const QString& formula : {QString(2000, 'x'), QString("x ").repeated(1000)}) {
        const int box = NextBox;
        Answers = {Play("txtFunc=" + formula + "|cmdOK"), [&](QDialog& dialog) {
                       const auto text = dialog.findChild<QLabel*>("lblfunc")->text();
                       EXPECT_TRUE(text.startsWith("Function: box") && text.count('\n') == 5);
                       ExpectFits(dialog);
                       Cancel()(dialog);
                   }};
        Place("mnuOperatorsFunc", {box * 60, 60});
        QTest::mouseClick(Box(box), Qt::MiddleButton);
    }
    Answers = {[&](QDialog& dialog) {
                   const int width = dialog.width();
                   for (int tick = 0; tick < 90; ++tick) {
                       Dispatch(frmAbout_Timer1_Timer, &dialog);
                       QTest::qWait(0);
                       EXPECT_EQ(dialog.width(), width) << tick;
                   }
                   ExpectFits(dialog);
                   Play("cmdOK")(dialog);
               },
               [&](QDialog& dialog) {
                   frmConfigToolbox.opnFileName.Caption = "/" + std::string(900, 'n') + "&.tlb";
                   RefreshScreen();
                   ExpectFits(dialog);
                   const auto text = dialog.findChild<QRadioButton*>("opnFileName")->text();
                   EXPECT_TRUE(text.startsWith("/nn") && text.endsWith("&&.tlb"));
                   Play("cmdCancel")(dialog);
               }};
    Choose("mnuHelpAbout");
    Choose("mnuOptionsConfigureToolbox");
}

}  // namespace quorvane::testing
