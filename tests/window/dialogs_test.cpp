// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <set>

#include "catalogue/box_commands.h"
#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "qt/screen_units.h"
#include "support/table_file.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

/// The commands that make boxes, each chosen from its menu and answered by clicks.
class DialogsTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        program = std::make_unique<Program>();
        program->Choose("mnuFileNew");
    }
    void cleanup() { program.reset(); }

    /// The tables by which the records of the dialogs are tested play their widgets, too.
    void each_dialog_makes_its_box_data() {
        for (const char* column : {"dialog", "steps", "type", "text", "told"}) {
            QTest::addColumn<QString>(column);
        }
        std::set<std::string_view> played = {"", "input box", "frmPlot"};
        const auto add = [&](const std::vector<std::string>& row, const std::string& steps,
                             std::size_t type, const std::string& told) {
            auto& added = QTest::newRow(row.back().c_str());
            for (const auto& cell : {row[0], steps, row[type], row[type + 1], told}) {
                added << QString::fromStdString(cell);
            }
        };
        const auto options = ReadTable("catalogue/options.tsv");
        const auto dialogs = ReadTable("catalogue/dialogs.tsv");
        for (const auto& row : options) {
            played.insert(row[0]);
            add(row, (row[4] == "7.5" ? "txtConst=7.5|" : "") + row[1], 3, "");
        }
        for (const auto& row : dialogs) {
            played.insert(row[0]);
            // The others look into a record between their steps.
            if (row[1].find('?') == std::string::npos) add(row, row[1], 2, row[6]);
        }
        for (const auto& command : boxCommands) {
            QVERIFY(!MakesBox(command) || played.contains(command.Dialog));
        }
    }

    void each_dialog_makes_its_box() {
        QFETCH(QString, dialog);
        QFETCH(QString, steps);
        QFETCH(QString, told);
        // The tables begin at box 7, behind these.
        for (const char* type : {"a Subroutine", "End Subroutine", "Sin", "Insert Subroutine a",
                                 " Subroutine", "a subroutine"}) {
            Boxes[NextBox++].BoxType = type;
        }
        program->Answers = {Play(steps + (dialog == "frmForLoop" ? "|cmd" : "|cmdOK"))};
        const auto messages = told.split('|', Qt::SkipEmptyParts).size();
        for (int i = 0; i < messages; ++i) program->Answers.push_back(Press(QMessageBox::Ok));
        for (const auto& command : boxCommands) {
            if (ToScreen(command.Dialog) != dialog) continue;
            program->Place(ToScreen(command.Control), {120, 90});
        }
        QVERIFY(program->Answers.empty());
        QTEST(ToScreen(Boxes[7].BoxType), "type");
        QTEST(ToScreen(Boxes[7].BoxText), "text");
        QVERIFY(program->Box(7));
    }

    void every_command_without_a_dialog_makes_its_box() {
        for (const auto& command : boxCommands) {
            if (!MakesBox(command) || command.Dialog.starts_with("frm")) continue;
            const int box = NextBox;
            if (!command.Dialog.empty()) program->Answers = {TypeIn("x")};
            program->Place(ToScreen(command.Control), {30 + box * 8, 60});
            QCOMPARE(NextBox, box + 1);
            QVERIFY(program->Answers.empty());
            QVERIFY(!Boxes[box].BoxType.empty());
            QVERIFY(DocumentWindow(1).box[box].Picture > 0);
        }
    }

    void a_matrix_is_typed_while_the_diagram_is_compiled() {
        program->Place("mnuInputKeyboardMatrix", {60, 60});
        program->Answers = {[](QDialog& dialog) {
                                auto* grid = dialog.findChild<QWidget*>("grid");
                                QTest::keyClicks(grid, "1");
                                QTest::keyClick(grid, Qt::Key_Tab);
                                QTest::keyClicks(grid, "-2.5x");
                                QTest::keyClick(grid, Qt::Key_Backspace);
                                QTest::keyClick(grid, Qt::Key_Down);
                                QTest::keyClicks(grid, "3");
                                QTest::keyClick(grid, Qt::Key_Escape);
                                QVERIFY(dialog.isVisible());
                                Play("cmdOK")(dialog);
                            },
                            Press(QMessageBox::Ok)};
        program->Choose("mnuExeDDE");
        QCOMPARE(QApplication::clipboard()->text(), "box1= [1  -2.5      ; 3         ]; \r\n");
    }

    void a_field_holds_one_line() {
        program->Answers = {Play("txtComment=one\r\ntwo\n|cmdOK")};
        program->Place("mnuSpecComment", {60, 60});
        QCOMPARE(Boxes[1].BoxText, "one two");
        program->Answers = {[](QDialog& prompt) {
            prompt.findChild<QLineEdit*>()->insert("x>1 &\ny<2\n");
            prompt.accept();
        }};
        program->Place("mnuLoopWhile", {60, 120});
        QCOMPARE(Boxes[2].BoxText, "x>1 & y<2");
    }

    void a_list_can_not_be_cancelled() {
        program->Answers = {[](QDialog& dialog) {
            QTest::keyClick(&dialog, Qt::Key_Escape);
            dialog.close();
            QVERIFY(dialog.isVisible());
            QTest::keyClick(&dialog, Qt::Key_Return);
        }};
        program->Place("mnuOperatorsComplex", {60, 60});
        QCOMPARE(program->BoxNames(), QStringList("box1 Abs"));
    }

private:
    std::unique_ptr<Program> program;
};

}  // namespace quorvane::testing

QTEST_MAIN(quorvane::testing::DialogsTest)
#include "dialogs_test.moc"
