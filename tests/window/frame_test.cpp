// SPDX-License-Identifier: MIT
#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "qt/desktop/screen_units.h"
#include "shell/menus.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

namespace {

/// The entries of a menu bar from top to bottom, without those that list windows.
void AppendEntries(const QList<QAction*>& actions, QList<QAction*>& entries) {
    for (auto* action : actions) {
        if (action->objectName().isEmpty() || action->objectName().startsWith("mnuWindowList")) {
            continue;
        }
        entries.append(action);
        if (action->menu()) AppendEntries(action->menu()->actions(), entries);
    }
}

/// The menu bar must be that of a table, with the captions and marks of its records.
template <class Rows, class Records>
void CompareMenus(Program& program, const Rows& rows, const Records& records) {
    QList<QAction*> entries;
    AppendEntries(program.Frame().menuBar()->actions(), entries);
    QCOMPARE(entries.size(), static_cast<int>(rows.size()));
    for (int i = 0; const auto& row : rows) {
        const auto* entry = entries[i++];
        const auto* record = MenuRecord(records, row.Control, row.Index);
        const bool captioned = record && !record->Caption.empty();
        QVERIFY(entry->objectName().startsWith(ToScreen(row.Control)));
        QCOMPARE(entry->isSeparator(), row.Caption == "-");
        if (!entry->isSeparator()) {
            QCOMPARE(entry->text(), ToScreen(captioned ? record->Caption : row.Caption));
        }
        QCOMPARE(entry->shortcut().toString(), ToScreen(row.Shortcut));
        QCOMPARE(entry->isChecked(), record && record->Checked);
        QCOMPARE(entry->isVisible(), !record || record->Visible);
    }
}

QStringList WindowList(Program& program) {
    QStringList entries;
    for (int i = 1; auto* entry = program.Entry(QString("mnuWindowList(%1)").arg(i)); ++i) {
        entries.append(entry->text() + (entry->isChecked() ? " *" : ""));
    }
    return entries;
}

const QString closeQuestion = "Quorvane: Do you wish to save this file before closing ?";

}  // namespace

/// The frame: its menu bars, and how worksheets come and go in it.
class FrameTest : public QObject {
    Q_OBJECT

private slots:
    void init() { program = std::make_unique<Program>(); }
    void cleanup() { program.reset(); }

    void the_menu_bar_is_that_of_the_active_worksheet() {
        CompareMenus(*program, frameMenu, frmMDI);
        program->Type(Qt::Key_F, Qt::AltModifier);
        program->Type(Qt::Key_N);
        CompareMenus(*program, documentMenu, *Documents[1]);
        program->Type(Qt::Key_N, Qt::ControlModifier);
        QVERIFY(program->Window(2));
        program->Type(Qt::Key_M, Qt::ControlModifier);
        QCOMPARE(EditMode, 5);
        program->Choose("mnuFileClose");
        program->Choose("mnuFileClose");
        CompareMenus(*program, frameMenu, frmMDI);
        EditMode = 1;
        program->Type(Qt::Key_M, Qt::ControlModifier);
        program->Type(Qt::Key_N, Qt::ControlModifier);
        QVERIFY2(EditMode == 1, "the keys of a menu that doesn't show do nothing");
        QVERIFY(program->Window(1));
    }

    void check_marks_belong_to_each_worksheet() {
        program->Choose("mnuFileNew");
        program->Choose("mnuFileNew");
        program->Choose("mnuWindowsTile");
        auto* panel = program->Part("pnlArrow", 2);
        const auto empty = panel->grab().toImage();
        QTest::mouseClick(panel, Qt::LeftButton);
        QTest::mouseMove(program->Surface(2));
        QVERIFY(panel->grab().toImage() != empty);
        QVERIFY(program->Entry("mnuMultipleArrows")->isChecked());
        program->Choose("mnuWindowList(1)");
        QVERIFY(!program->Entry("mnuMultipleArrows")->isChecked());
        program->Choose("mnuWindowList(2)");
        program->Choose("mnuMultipleArrows");
        QVERIFY(!program->Entry("mnuMultipleArrows")->isChecked());
    }

    void the_windows_menu_lists_the_worksheets() {
        for (int i = 0; i < 3; ++i) program->Choose("mnuFileNew");
        QCOMPARE(WindowList(*program),
                 QStringList({"&1 Untitled:1", "&2 Untitled:2", "&3 Untitled:3 *"}));
        program->Choose("mnuWindowList(1)");
        QCOMPARE(program->Frame().Area()->activeSubWindow(), program->Window(1));
        program->Place("mnuTrigSin", {50, 50}, 1);
        QCOMPARE(program->BoxNames(1), QStringList({"box1 Sin"}));
        program->Window(2)->close();
        QCOMPARE(WindowList(*program).size(), 2);
        program->Choose("mnuFileNew");
        QCOMPARE(WindowList(*program),
                 QStringList({"&1 Untitled:1", "&2 Untitled:3", "&3 Untitled:2 *"}));
    }

    void a_changed_worksheet_asks_before_it_closes() {
        program->Choose("mnuFileNew");
        program->Place("mnuTrigSin", {60, 50});
        program->Answers = {Press(QMessageBox::Cancel)};
        program->Window()->close();
        QCOMPARE(program->BoxNames(), QStringList({"box1 Sin"}));

        // A refused closing has freed the number: the new document is the same window.
        program->Choose("mnuFileNew");
        QCOMPARE(program->Frame().Area()->subWindowList().size(), 1);
        program->Answers = {Press(QMessageBox::Yes), PickFile(program->File("first.qvm"))};
        program->Window()->close();
        QVERIFY(!program->Window());
        QCOMPARE(program->Asked, QStringList({closeQuestion, closeQuestion, "save"}));
        QVERIFY(ReadAll("first.qvm").starts_with("1\r\nSin~"));
    }

    void the_program_ends_when_all_worksheets_agree() {
        program->Choose("mnuFileNew");
        program->Place("mnuTrigSin", {60, 50});
        program->Choose("mnuFileNew");
        program->Place("mnuTrigCos", {60, 50}, 2);
        program->Answers = {Press(QMessageBox::No), Press(QMessageBox::Cancel)};
        program->Frame().close();
        QVERIFY(program->Frame().isVisible());
        QVERIFY(!program->Window(1));
        QCOMPARE(program->BoxNames(2), QStringList({"box1 Cos"}));

        // The refused worksheet counts as closed, and still asks.
        program->Answers = {Press(QMessageBox::No)};
        QTimer::singleShot(0, program.get(), [&] { program->Choose("mnuExit"); });
        QTimer::singleShot(5000, program.get(), [] { QCoreApplication::exit(1); });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(!program->Window(2));
        QCOMPARE(program->Asked.count(closeQuestion), 3);
    }

    void nothing_starts_behind_a_dialog() {
        WriteAll("quorvane.ini", "[Prefrences]\r\n");
        for (const char* command : {"mnuExeDDE", "mnuOptionsPrefs"}) {
            program->Start();
            program->Choose("mnuFileNew");
            auto* bar = static_cast<QAbstractSlider*>(program->Part("scrV"));
            program->Answers = {[&](QDialog& dialog) {
                program->Choose("mnuFileNew");
                program->Choose("mnuExit");
                program->Frame().close();
                bar->setValue(500);
                QTRY_COMPARE(bar->value(), 0);
                Play(dialog.objectName() == "frmPrefs" ? "cmdOK" : "")(dialog);
                if (dialog.isVisible()) QTest::keyClick(&dialog, Qt::Key_Return);
            }};
            program->Choose(command);
            QVERIFY(program->Answers.empty());
            QVERIFY(program->Window(1) && !program->Window(2) && program->Frame().isVisible());
            program->Choose("mnuFileNew");
            QVERIFY(program->Window(2));
        }
    }

    void worksheets_are_arranged_but_for_icons() {
        for (int i = 0; i < 3; ++i) program->Choose("mnuFileNew");
        program->Window(2)->showMinimized();
        program->Choose("mnuWindowsCascade");
        const auto room = program->Frame().Area()->viewport()->rect();
        const auto shape = [&](int document) { return program->Window(document)->geometry(); };
        for (const int open : {1, 3}) {
            QVERIFY(room.contains(shape(open)) && shape(open).width() > room.width() / 2);
        }
        QVERIFY(shape(1).topLeft() != shape(3).topLeft());
        program->Choose("mnuWindowsTile");
        const auto both = shape(1) | shape(3);
        QVERIFY(!shape(1).intersects(shape(3)));
        QCOMPARE(both, room.adjusted(0, 0, 0, -program->Window(2)->height()));
        QVERIFY(program->Window(2)->isMinimized());
        program->Choose("mnuWindowsArrange");
        QVERIFY(room.contains(shape(2)) && !shape(2).intersects(both));
        program->Choose("mnuWindowList(2)");
        QVERIFY(!program->Window(2)->isMinimized());
        QCOMPARE(program->Frame().Area()->activeSubWindow(), program->Window(2));
    }

    void a_run_brings_its_minimised_window_back() {
        program->Choose("mnuFileNew");
        program->Answers = {Press(QMessageBox::Ok), Press(QMessageBox::Ok)};
        program->Choose("mnuEXEMatlab");
        auto* results = program->Frame().findChild<QWidget*>("frmTextResults");
        results->showMinimized();
        program->Choose("mnuEXEMatlab");
        QVERIFY(results->isVisible() && !results->isMinimized());
    }

    void worksheets_are_minimised_and_maximised() {
        program->Choose("mnuFileNew");
        program->Place("mnuTrigSin", {60, 50});
        // Where the corner between the scroll bars ends, which they and the panels follow.
        const auto corner = [&] {
            return program->Window()->findChild<QWidget*>("pctblank")->geometry().bottomRight();
        };
        const auto end = [&] { return program->Window()->widget()->rect().bottomRight(); };
        const auto design = corner();
        QCOMPARE(design, end());
        const auto* square = program->Part("pctblank");
        QVERIFY(square->width() == square->height() && square->width() > 0);
        QCOMPARE(program->Frame().findChild<QWidget*>("Picture1")->height(), 0);
        program->Window()->showMinimized();
        QCOMPARE(corner(), design);
        program->Choose("mnuWindowsArrange");
        QVERIFY(
            program->Frame().Area()->viewport()->rect().contains(program->Window()->geometry()));
        program->Window()->showNormal();
        QCOMPARE(corner(), design);
        program->Window()->showMaximized();
        QVERIFY(corner().x() > design.x());
        QCOMPARE(corner(), end());
        QCOMPARE(program->Surface()->width(), program->Part("scrV")->x());
        QCOMPARE(program->Box(1)->pos(), QPoint(60, 50));
    }

    void the_subroutine_key_works_for_the_worksheet_under_the_mouse() {
        program->Choose("mnuFileNew");
        program->Choose("mnuFileNew");
        program->Choose("mnuWindowsTile");
        frmMDI.txtEvent = "Subroutine";
        QTest::mouseMove(program->Surface(1), {50, 50});
        QVERIFY(QApplication::activePopupWidget());
        program->Type(Qt::Key_E);
        QCOMPARE(Boxes[1].BoxType, "End Subroutine");
        QCOMPARE(Boxes[1].BoxDocument, 1);
        program->Choose("mnuMultipleArrows");
        QVERIFY2(DocumentWindow(2).pnlArrow.HoldsArrow, "the menu bar is the active one's again");
    }

private:
    std::unique_ptr<Program> program;
};

}  // namespace quorvane::testing

QTEST_MAIN(quorvane::testing::FrameTest)
#include "frame_test.moc"
