// SPDX-License-Identifier: MIT
#include <fstream>
#include <map>
#include <set>

#include "catalogue/box_commands.h"
#include "catalogue/option_lists.h"
#include "diagram/box_table.h"
#include "diagram/preferences.h"
#include "diagram/worksheet.h"
#include "matlab_link/mfile_index.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "shell/about.h"
#include "support/table_file.h"
#include "toolbox/toolbox_config.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

namespace {

/// Off-screen a dialog doesn't come to the front by itself.
void Activate(QDialog& dialog) {
    dialog.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &dialog);
}

/// "|" is Tab, "<" Home, "#" Backspace, "!" a click on another option.
void TypeKeys(QDialog& dialog, QWidget* control, const QString& keys) {
    const std::map<QChar, Qt::Key> named = {
        {'|', Qt::Key_Tab}, {'<', Qt::Key_Home}, {'#', Qt::Key_Backspace}};
    for (const auto key : keys) {
        if (key == '!') {
            Play("opn(1)")(dialog);
        } else if (named.contains(key)) {
            QTest::keyClick(control, named.at(key));
        } else {
            QTest::keyClicks(control, QString(key));
        }
    }
}

/// Finds a function by the beginning of its name, and takes it by Enter, which does nothing before.
void PickByKeys(QDialog& browser) {
    auto* list = browser.findChild<QListView*>("lstFunc");
    Play("cmbCategory=Signal")(browser);
    QCOMPARE(list->model()->rowCount(), 2);
    QTest::keyClick(list, Qt::Key_Return);
    QVERIFY(browser.isVisible());
    QTest::keyClicks(list, "ga");
    QTRY_COMPARE(browser.findChild<QLabel*>("lblHelp")->text(), "Help for all\nof it\n");
    QTest::keyClick(list, Qt::Key_Return);
    QVERIFY(!browser.isVisible());
}

}  // namespace

/// The commands that make boxes, each chosen from its menu and answered by clicks.
class DialogsTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        program.reset();
        program = std::make_unique<Program>();
        program->Choose("mnuFileNew");
    }
    void cleanup() { program.reset(); }

    /// Each dialog of the tables by which the records are tested, and each list, once by its
    /// widgets.
    void each_dialog_makes_its_box() {
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
            QVERIFY(!MakesBox(command) || played.contains(std::string(command.Dialog)));
        }
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
                                QVERIFY(grid->testAttribute(Qt::WA_InputMethodEnabled));
                                QInputMethodEvent accent("", {});
                                accent.setCommitString("\u00e9");
                                QCoreApplication::sendEvent(grid, &accent);
                                QTest::keyClick(grid, Qt::Key_Backspace);
                                QTest::keyClick(grid, Qt::Key_Down);
                                QCoreApplication::sendEvent(grid, &accent);
                                QTest::keyClicks(grid, "3");
                                QTest::keyClick(grid, Qt::Key_Escape);
                                QVERIFY(dialog.isVisible());
                                QTest::keyClick(grid, Qt::Key_Backtab, Qt::ShiftModifier);
                                QCOMPARE(dialog.focusWidget()->objectName(), "cmdOK");
                                QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
                            },
                            Press(QMessageBox::Ok)};
        program->Choose("mnuExeDDE");
        QCOMPARE(QApplication::clipboard()->text(),
                 "box1= [1  -2.5x      ; \u00e93         ]; \r\n");
    }

    /// Typed into a dialog that has just opened, key by key and pasted whole.
    void what_is_typed_stands_as_it_was_typed() {
        struct Row {
            const char *Command, *Field;
            QString Keys, Text;
        };
        std::vector<Row> rows = {
            {"mnuMatMakeVec", "txtMin", "5", "5"},
            {"mnuInputPause", "lblSecs", "#3", "3"},
            {"mnuInputPause", "lblSecs", "1e2", "1e2"},
            {"mnuInputPause", "lblSecs", "-5", "0"},
            {"mnuConst", "txtConst", "-x", ""},
            {"mnuConst", "txtConst", "-|", ""},
            {"mnuConst", "txtConst", "1e!", ""},
            {"mnuOptionsPrefs", "txtLineWidth", "3e0", "3e0"},
            {"mnuOptionsPrefs", "txtLineWidth", ".5", "1"},
            {"mnuSpecSubInsert", "available_subs", "ab", "ab"},
            {"mnuSpecSubInsert", "available_subs", "cd<ab", "abcd"},
            {"mnuSpecComment", "txtComment", QString(100, 'a') + "<xy", "xy" + QString(98, 'a')}};
        for (const char* number : {"-5", ".5", "1e5", "-.5e+2", "2."}) {
            rows.push_back({"mnuOperatorsFunc", "txtRow", number, number});
            rows.push_back({"mnuConst", "txtConst", number, number});
        }
        for (const auto& row : rows) {
            init();
            Boxes[NextBox++].BoxType = "abc Subroutine";
            program->Answers = {
                [&](QDialog& dialog) { TypeInto(dialog, row.Field, row.Keys, row.Text); }};
            program->Choose(row.Command);
            QVERIFY2(program->Answers.empty(), qPrintable(row.Field + (" " + row.Keys)));
        }
    }

    void the_keyboard_reaches_each_control() {
        const auto walk = [](QDialog& dialog, const char* name) {
            for (int i = 0; i < 60 && dialog.focusWidget()->objectName() != name; ++i) {
                QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(dialog.focusWidget()->objectName(), name);
        };
        const auto press = [](QDialog& dialog, std::initializer_list<Qt::Key> keys) {
            Activate(dialog);
            for (const auto key : keys) QTest::keyClick(dialog.focusWidget(), key);
        };
        program->Answers = {[&](QDialog& dialog) {
                                press(dialog, {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
                            },
                            [&](QDialog& dialog) {
                                walk(dialog, "spn");
                                press(dialog, {Qt::Key_Up, Qt::Key_Return});
                            },
                            [&](QDialog& dialog) {
                                Play("cmbType=2-D Plot|chkInput1(2)")(dialog);
                                walk(dialog, "sclLinenum");
                                press(dialog, {Qt::Key_Return});
                            }};
        program->Place("mnuOperatorsArith", {60, 60});
        program->Place("mnuInputPause", {60, 160});
        program->Place("mnuOutputPlot", {60, 260});
        QCOMPARE(Boxes[1].BoxType + " " + Boxes[2].BoxText, "* 2");
    }

    void ok_gives_the_focus_to_the_worksheet_of_the_command() {
        program->Choose("mnuFileNew");
        program->Choose("mnuWindowsTile");
        auto* toolbox = program->Frame().findChild<QWidget*>("frmPictures");
        frmPictures.Form.Visible = true;
        RefreshScreen();
        for (const int sheet : {1, 2}) {
            program->Answers = {Play("cmdOK")};
            toolbox->activateWindow();
            QTRY_VERIFY(toolbox->isActiveWindow());
            frmMDI.txtEvent = "Bessel Function";
            QTest::mouseMove(program->Surface(sheet), {20, 20});
            QTRY_COMPARE(QApplication::focusWidget(), program->Surface(sheet));
            program->Click({60, 60}, sheet);
            toolbox->activateWindow();
            program->Answers = {Cancel()};
            QTest::mouseClick(program->Box(sheet, sheet), Qt::MiddleButton);
            QTRY_COMPARE(QApplication::focusWidget(), program->Surface(sheet));
        }
    }

    void buttons_of_messages_stand_in_their_order() {
        const std::pair<QMessageBox::StandardButton, Answer> rows[] = {
            {QMessageBox::Abort, Answer::Abort},
            {QMessageBox::Retry, Answer::Retry},
            {QMessageBox::Ignore, Answer::Ignore}};
        for (int tabs = 0; tabs < 3; ++tabs) {
            program->Answers = {[&](QDialog& dialog) {
                const auto& box = static_cast<QMessageBox&>(dialog);
                const auto left = [&](int i) { return box.button(rows[i].first)->x(); };
                QVERIFY(left(0) < left(1) && left(1) < left(2));
                for (int i = 0; i < tabs; ++i) QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
                QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
            }};
            QCOMPARE(QtDesktop().MsgBox({.Text = "?", .Choice = Buttons::AbortRetryIgnore}),
                     rows[tabs].second);
        }
    }

    void no_text_makes_a_dialog_wider_than_the_screen() {
        const auto fits = [](QDialog& dialog) {
            QTest::qWait(0);
            QVERIFY(dialog.width() < dialog.screen()->geometry().width());
        };
        for (const QString& formula : {QString(2000, 'x'), QString("x ").repeated(1000)}) {
            const int box = NextBox;
            program->Answers = {Play("txtFunc=" + formula + "|cmdOK"), [&](QDialog& dialog) {
                                    const auto* label = dialog.findChild<QLabel*>("lblfunc");
                                    QVERIFY(label->text().startsWith("Function: box"));
                                    QCOMPARE(label->text().count('\n'), 5);
                                    fits(dialog);
                                    Cancel()(dialog);
                                }};
            program->Place("mnuOperatorsFunc", {box * 60, 60});
            QTest::mouseClick(program->Box(box), Qt::MiddleButton);
        }
        const auto name = "/" + QString(900, 'n') + "&.tlb";
        program->Answers = {[&](QDialog& dialog) {
                                const int width = dialog.width();
                                for (int tick = 0; tick < 90; ++tick) {
                                    Dispatch(frmAbout_Timer1_Timer, &dialog);
                                    QTest::qWait(0);
                                    QCOMPARE(dialog.width(), width);
                                }
                                fits(dialog);
                                Play("cmdOK")(dialog);
                            },
                            [&](QDialog& dialog) {
                                frmConfigToolbox.opnFileName.Caption = ToCore(name);
                                RefreshScreen();
                                fits(dialog);
                                const auto* option = dialog.findChild<QRadioButton*>("opnFileName");
                                QVERIFY(option->text().startsWith("/nn"));
                                QVERIFY(option->text().endsWith("&&.tlb"));
                                Play("cmdCancel")(dialog);
                            }};
        program->Choose("mnuHelpAbout");
        program->Choose("mnuOptionsConfigureToolbox");
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

    void a_function_is_scanned_for_and_picked() {
        ProgramDirectory = std::filesystem::current_path().string();
        DriveRoots = {{'C', ProgramDirectory + "/"}};
        std::filesystem::create_directory("signal");
        for (const char* name : {"signal/Beta.m", "signal/gamma.m", "signal/last.m"}) {
            std::ofstream(name) << "% Help for,all\n% of it\n\n";
        }
        const auto nothing = [](QDialog&) {};
        program->Answers = {Play("cmdShowFunc|cmdShowFunc|cmdOK"), nothing, Cancel(), PickByKeys};
        program->Place("mnuSpecMatlab", {90, 90});
        QCOMPARE(program->Asked.mid(1, 2),
                 QStringList({"frmScanning: Quorvane", "frmMatlab: Select a Matlab Command"}));
        QCOMPARE(Boxes[1].BoxText, "Output=gamma");
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
    /// Types keys into a field, and pastes them where it is a line; the text must then stand there.
    static void TypeInto(QDialog& dialog, const char* field, QString keys, const QString& text) {
        Activate(dialog);
        auto* control = dialog.findChild<QWidget*>(field);
        if (dialog.focusWidget() != control) control->setFocus(Qt::TabFocusReason);
        TypeKeys(dialog, control, keys);
        auto* line = qobject_cast<QLineEdit*>(control);
        QCOMPARE(line ? line->text() : static_cast<QComboBox*>(control)->currentText(), text);
        if (line && keys.size() < 9) {
            QApplication::clipboard()->setText(keys.remove(QRegularExpression("[|<#!]")));
            line->setFocus();
            line->selectAll();
            line->paste();
            line->clearFocus();
            QCOMPARE(line->text(), text);
        }
        dialog.done(QDialog::Accepted);
    }

    /// Plays dialog and steps of a row, and compares type and text of box 7 with it.
    void MakeBox(const std::vector<std::string>& row) {
        init();
        // The tables begin at box 7, behind these.
        for (const char* type : {"a Subroutine", "End Subroutine", "Sin", "Insert Subroutine a",
                                 " Subroutine", "a subroutine"}) {
            Boxes[NextBox++].BoxType = type;
        }
        program->Answers = {Play(ToScreen(row[1] + (row[0] == "frmForLoop" ? "|cmd" : "|cmdOK")))};
        for (const auto& command : boxCommands) {
            if (command.Dialog == row[0]) program->Place(ToScreen(command.Control), {120, 90});
        }
        QVERIFY(program->Answers.empty() && program->Box(7));
        QCOMPARE(Boxes[7].BoxText, row[3]);
        if (!row[2].empty()) QCOMPARE(Boxes[7].BoxType, row[2]);
    }

    std::unique_ptr<Program> program;
};

}  // namespace quorvane::testing

QTEST_MAIN(quorvane::testing::DialogsTest)
#include "dialogs_test.moc"
