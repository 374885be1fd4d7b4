// SPDX-License-Identifier: MIT
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

/// The frame: its menu bars, and how worksheets come and go in it.
class FrameTest : public QObject {
    Q_OBJECT

private slots:
    void init() { program = std::make_unique<Program>(); }
    void cleanup() { program.reset(); }

    void the_menu_bar_is_that_of_the_active_worksheet();
    void check_marks_belong_to_each_worksheet();
    void the_windows_menu_lists_the_worksheets();
    void a_changed_worksheet_asks_before_it_closes();
    void the_program_ends_when_all_worksheets_agree();
    void worksheets_are_minimised_and_maximised();

private:
    std::unique_ptr<Program> program;
};

namespace {

/// The entries as lines: name, caption or "-", shortcut, and what else they show; deeper ones
/// indented.
void AppendEntries(const QList<QAction*>& actions, int depth, QStringList& lines) {
    for (auto* action : actions) {
        auto line = QString(2 * depth, ' ') + action->objectName();
        if (action->isSeparator()) {
            line += action->objectName().isEmpty() ? "-" : " -";
        } else {
            line += " \"" + action->text() + "\"";
        }
        if (!action->shortcut().isEmpty()) line += " " + action->shortcut().toString();
        if (action->isChecked()) line += " checked";
        if (!action->isVisible()) line += " hidden";
        lines.append(line);
        if (action->menu()) AppendEntries(action->menu()->actions(), depth + 1, lines);
    }
}

QStringList MenuBar(Program& program) {
    QStringList lines;
    AppendEntries(program.Frame().menuBar()->actions(), 0, lines);
    return lines;
}

QStringList Expected(const QString& listing) {
    QFile file(QString(QUORVANE_SOURCE_DIR) + "/tests/window/menus/" + listing);
    if (!file.open(QFile::ReadOnly)) return {"no listing"};
    return QString::fromUtf8(file.readAll()).trimmed().split('\n');
}

QStringList WindowList(Program& program) {
    QStringList entries;
    for (int i = 1; auto* entry = program.Entry(QString("mnuWindowList(%1)").arg(i)); ++i) {
        entries.append(entry->text() + (entry->isChecked() ? " *" : ""));
    }
    return entries;
}

QByteArray Content(const QString& name) {
    QFile file(name);
    return file.open(QFile::ReadOnly) ? file.readAll() : "no file";
}

const QString closeQuestion = "Quorvane: Do you wish to save this file before closing ?";

}  // namespace

void FrameTest::the_menu_bar_is_that_of_the_active_worksheet() {
    QCOMPARE(MenuBar(*program), Expected("frame.txt"));
    program->Type(Qt::Key_F, Qt::AltModifier);
    program->Type(Qt::Key_N);
    QCOMPARE(MenuBar(*program), Expected("document.txt"));
    program->Type(Qt::Key_N, Qt::ControlModifier);
    QVERIFY(program->Window(2));
    program->Type(Qt::Key_M, Qt::ControlModifier);
    QCOMPARE(EditMode, 5);
    program->Choose("mnuFileClose");
    QVERIFY(!program->Window(2));
    program->Choose("mnuFileClose");
    QCOMPARE(MenuBar(*program), Expected("frame.txt"));
    EditMode = 1;
    program->Type(Qt::Key_M, Qt::ControlModifier);
    program->Type(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(EditMode, 1);
    QVERIFY(!program->Window(1));
}

void FrameTest::check_marks_belong_to_each_worksheet() {
    program->Choose("mnuFileNew");
    program->Choose("mnuFileNew");
    program->Choose("mnuWindowsTile");
    const auto marks = [&] {
        QStringList names;
        for (const char* name : {"mnuMultipleArrows", "mnuOptionsBubbleShow"}) {
            if (program->Entry(name)->isChecked()) names.append(name);
        }
        return names.join(' ');
    };
    auto* panel = program->Part("pnlArrow", 2);
    const auto empty = panel->grab().toImage();
    QTest::mouseClick(panel, Qt::LeftButton);
    QCOMPARE(marks(), "mnuMultipleArrows mnuOptionsBubbleShow");
    QTest::mouseMove(program->Surface(2));
    QVERIFY(panel->grab().toImage() != empty);
    program->Choose("mnuOptionsBubbleShow");
    QCOMPARE(marks(), "mnuMultipleArrows");
    program->Choose("mnuWindowList(1)");
    QCOMPARE(marks(), "mnuOptionsBubbleShow");
    program->Choose("mnuWindowList(2)");
    program->Choose("mnuMultipleArrows");
    QCOMPARE(marks(), "");
}

void FrameTest::the_windows_menu_lists_the_worksheets() {
    for (int i = 0; i < 3; ++i) program->Choose("mnuFileNew");
    QCOMPARE(WindowList(*program),
             QStringList({"&1 Untitled:1", "&2 Untitled:2", "&3 Untitled:3 *"}));
    program->Choose("mnuWindowList(1)");
    QCOMPARE(program->Frame().Area()->activeSubWindow(), program->Window(1));
    program->Place("mnuTrigSin", {50, 50}, 1);
    QCOMPARE(program->BoxNames(1), QStringList({"box1 Sin"}));
    program->Choose("mnuWindowList(2)");
    program->Window(2)->close();
    QVERIFY(!program->Window(2));
    QCOMPARE(WindowList(*program).size(), 2);
    QCOMPARE(WindowList(*program).filter("*").size(), 1);
    program->Choose("mnuFileNew");
    QCOMPARE(WindowList(*program),
             QStringList({"&1 Untitled:1", "&2 Untitled:3", "&3 Untitled:2 *"}));
}

void FrameTest::a_changed_worksheet_asks_before_it_closes() {
    const auto path = program->File("first.qvm");
    program->Choose("mnuFileNew");
    program->Place("mnuSpecDummy", {60, 50});
    program->Answers = {Press(QMessageBox::Cancel)};
    program->Window()->close();
    QCOMPARE(program->BoxNames(), QStringList({"box1 Dummy Input"}));
    QVERIFY(program->Window()->isVisible());

    // A refused closing has freed the number: the new document is the same window.
    program->Choose("mnuFileNew");
    QCOMPARE(program->Frame().Area()->subWindowList().size(), 1);
    program->Answers = {Press(QMessageBox::Yes), PickFile(path)};
    program->Window()->close();
    QVERIFY(!program->Window());
    QCOMPARE(program->Asked, QStringList({closeQuestion, closeQuestion, "save"}));
    QCOMPARE(Content(path),
             "1\r\nDummy Input~\r\n-1~-1~-1~0~14737632~0~14737632~0~14737632~0~14737632~0~"
             "14737632\r\n750~900~\r\n\r\n");
    QCOMPARE(NextBox, 1);

    program->Answers = {PickFile(path)};
    program->Choose("mnuFileOpen");
    QCOMPARE(program->BoxNames(), QStringList({"box1 Dummy Input"}));
    QCOMPARE(program->Window()->windowTitle(), path);
    QCOMPARE(program->Box(1)->pos(), QPoint(60, 50));
    program->Place("mnuTrigSin", {60, 150});
    program->Answers = {Press(QMessageBox::No)};
    program->Window()->close();
    QVERIFY(!program->Window());
    QVERIFY(Content(path).startsWith("1\r\n"));
}

void FrameTest::the_program_ends_when_all_worksheets_agree() {
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

void FrameTest::worksheets_are_minimised_and_maximised() {
    program->Choose("mnuFileNew");
    program->Place("mnuTrigSin", {60, 50});
    const auto layout = [&] {
        QList<QRect> places;
        for (const char* name : {"pnlResource", "pnlArrow", "scrH", "scrV", "pctblank"}) {
            places.append(program->Window()->findChild<QWidget*>(name)->geometry());
        }
        return places;
    };
    const auto design = layout();
    const auto size = program->Window()->widget()->size();
    QCOMPARE(design[0].bottomLeft(), QPoint(0, size.height() - 1));
    QCOMPARE(design[2].left(), design[1].right() + 1);
    QCOMPARE(design[2].right() + 1, design[4].left());
    QCOMPARE(design[4].bottomRight(), QPoint(size.width() - 1, size.height() - 1));
    program->Window()->showMinimized();
    QCOMPARE(layout(), design);
    QVERIFY(Documents[1]->Minimized);
    program->Choose("mnuWindowsArrange");
    QVERIFY(program->Frame().Area()->viewport()->rect().contains(program->Window()->geometry()));
    program->Window()->showNormal();
    QCOMPARE(layout(), design);
    program->Window()->showMaximized();
    const auto large = program->Window()->widget()->size();
    QVERIFY(large.width() > size.width());
    QCOMPARE(layout()[4].bottomRight(), QPoint(large.width() - 1, large.height() - 1));
    QCOMPARE(program->Surface()->size(), QSize(layout()[3].left(), layout()[2].top()));
    QCOMPARE(program->Box(1)->pos(), QPoint(60, 50));
}

}  // namespace quorvane::testing

QTEST_MAIN(quorvane::testing::FrameTest)
#include "frame_test.moc"
