// SPDX-License-Identifier: MIT
#include "qt/desktop/dispatch.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

/// What a user keeps from one sitting to the next.
class JourneyTest : public QObject {
    Q_OBJECT

private slots:
    void init() { program = std::make_unique<Program>(); }
    void cleanup() { program.reset(); }

    void the_program_starts_in_its_directory_or_asks_for_it() {
        std::filesystem::create_directory("program");
        WriteAll("program/quorvane.ini", "[Prefrences]\r\nDefault Toolbox=mine.tlb\r\n");
        WriteAll("program/mine.tlb", "For\r\nArrow\r\n\r\n");
        program->Answers = {[](QDialog& dialog) {
            auto* list = dialog.findChild<QListWidget*>("Dir1");
            const auto* folder = list->findItems("program", Qt::MatchExactly).at(0);
            const auto at = list->visualItemRect(folder).center();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
            Play("cmdOK")(dialog);
        }};
        // The first start goes into the program's directory, where the second one finds it.
        for (int start = 1; start <= 2; ++start) {
            program->Start();
            QCOMPARE(Tools(), "For,Arrow");
            QCOMPARE(program->Asked, QStringList("frmDirectory: Quorvane"));
            QVERIFY(!program->Window());
        }
    }

    void a_saved_diagram_opens_as_it_was() {
        program->Choose("mnuFileNew");
        program->Answers = {Play("txtConst=12|cmdOK")};
        program->Place("mnuConst", {60, 50});
        program->Place("mnuTrigSin", {90, 150});
        program->Place("mnuTrigCos", {200, 60});
        program->Join(1, 3);
        program->Join(3, 2);
        const auto drawn = program->Screen(program->Surface());
        program->Answers = {PickFile(program->File("kept"))};
        program->Choose("mnuFileSave");
        program->Choose("mnuFileClose");
        QVERIFY2(!program->Window(), "what is saved is closed without a question");

        program->Answers = {PickFile(program->File("kept.qvm"))};
        program->Choose("mnuFileOpen");
        QCOMPARE(program->Window()->windowTitle(), program->File("kept.qvm"));
        QCOMPARE(program->Screen(program->Surface()), drawn);
        const auto bytes = ReadAll("kept.qvm");
        program->Choose("mnuFileSaveFile");
        QCOMPARE(ReadAll("kept.qvm"), bytes);
    }

    void saved_files_stand_in_the_recent_menus() {
        WriteAll("quorvane.ini", "[Prefrences]\r\n");
        for (const char* name : {"a.qvm", "b.qvm", "c.qvm", "d.qvm"}) {
            program->Choose("mnuFileNew");
            program->Answers = {PickFile(program->File(name))};
            program->Choose("mnuFileSave");
            if (*name == 'a') QCOMPARE(RecentNames(), "");  // The newest name never shows
        }
        program->Choose("mnuWindowList(1)");
        QCOMPARE(RecentNames(), "2:c.qvm 3:b.qvm 4:a.qvm ");
        program->Start();
        QCOMPARE(RecentNames(), "1:c.qvm 2:b.qvm 3:a.qvm ");
        program->Choose("mnuFileArray(2)");
        QCOMPARE(program->Window()->windowTitle(), "b.qvm");
    }

    void a_toolbox_comes_from_a_file_or_is_built_in() {
        WriteAll("quorvane.ini", "[Prefrences]\r\n");
        WriteAll("mine.tlb", "Cos\r\nArrow\r\n\r\n");
        program->Start();
        program->Frame().hide();
        RefreshScreen();
        QCOMPARE(Tools(), "");  // A task bar would give it an entry of its own
        program->Frame().show();
        QCOMPARE(Tools(),
                 "Arrow,Keyboard Input,Vector Make Input,Numerical,Polynomial,Comment,"
                 "Screen Output,Plot Output");
        program->Choose("mnuFileNew");
        QTest::keyClick(Tool(7), Qt::Key_Space);
        QCursor::setPos(program->Surface()->mapToGlobal(QPoint(60, 150)));
        QTest::keyClick(program->Surface(), Qt::Key_Space);
        const auto face = static_cast<QToolButton*>(Tool(7))->icon().pixmap(24).toImage();
        QVERIFY2(face.pixelColor(4, 12).lightness() > 200, "a face shows on a dark window, too");
        program->Answers = {PickFile(program->File("mine.tlb"))};
        program->Choose("mnuOptionsCurrentToolbox");
        QCOMPARE(program->Entry("mnuOptionsCurrentToolbox")->text(), "Current Toolbox: mine.tlb");
        QCOMPARE(Tools(), "Cos,Arrow");
        PlaceTool(1, {60, 50});
        QCOMPARE(program->BoxNames(), QStringList({"box1 Screen Output", "box2 Cos"}));
        QTest::mouseClick(Tool(2), Qt::LeftButton);
        QTest::mouseClick(program->Box(2), Qt::LeftButton);
        QTest::mouseClick(program->Box(1), Qt::LeftButton);
        QCOMPARE(program->Colored(120, {55, 80}, NewArrow), 1.0);
        program->Frame().findChild<QWidget*>("frmPictures")->close();
        QCOMPARE(Tools(), "");
    }

    void a_toolbox_is_built_saved_and_loaded_again() {
        WriteAll("other.tlb", "Tan\r\nIf\r\n\r\n");
        program->Choose("mnuFileNew");
        const auto tile = [](QDialog& dialog, const char* name) {
            return dialog.findChild<QWidget*>(name);
        };
        program->Answers = {[&](QDialog& dialog) {
            program->Drag(tile(dialog, "cmdPict(1)"), tile(dialog, "pnlToolbox"), {40, 40});
            QTest::keyClick(tile(dialog, "scroll"), Qt::Key_Down);
            QTest::keyClick(tile(dialog, "cmdPict(2)"), Qt::Key_Return);
            QCOMPARE(dialog.findChild<QLabel*>("lblFunction")->text(), "Ascii File Input");
            QTest::keyClick(tile(dialog, "cmdPict(3)"), Qt::Key_Space);
            QTest::mouseClick(tile(dialog, "cmdButton(3)"), Qt::RightButton);
            Play("cmdOK")(dialog);
        }};
        program->Choose("mnuOptionsConfigureToolbox");
        QCOMPARE(ReadAll("my_box.tlb"), "Arrow\r\nAscii File Input\r\n\r\n");
        program->Answers = {[&](QDialog& dialog) {
            QVERIFY2(tile(dialog, "cmdButton(2)"), "the dialog begins with that file");
            program->Answers = {PickFile(program->File("other.tlb"))};
            Play("chkReload")(dialog);
            QTest::mouseClick(tile(dialog, "cmdButton(1)"), Qt::RightButton);
            Play("cmdOK")(dialog);
        }};
        program->Choose("mnuOptionsConfigureToolbox");
        QCOMPARE(ReadAll("other.tlb"), "If\r\n\r\n");
    }

    void preferences_are_cancelled_taken_and_saved() {
        WriteAll("quorvane.ini", "[Prefrences]\r\n");
        WriteAll("mine.tlb", "Cos\r\n\r\n");
        program->Start();
        program->Choose("mnuFileNew");
        program->Place("mnuTrigSin", {60, 50});
        program->Place("mnuTrigCos", {60, 150});
        program->Join(1, 2);
        struct Visit {
            const char* Steps;
            double LineWidth;
            bool Bubbles;
            int Tools;
        };
        for (const auto& visit : {
                 Visit{"txtLineWidth=3|chkShowBubbles|cmdCancel", 1, true, 8},
                 Visit{"txtLineWidth=3|chkShowBubbles|txtToolbox=mine.tlb|cmdOK", 3, false, 1},
                 Visit{"txtDrives=c|cmdSave|cmdCancel", 3, false, 1},
             }) {
            QCOMPARE(ReadAll("quorvane.ini"), "[Prefrences]\r\n");
            program->Answers = {Play(visit.Steps)};
            program->Choose("mnuOptionsPrefs");
            QCOMPARE(program->Colored(110, {55, 80}, NewArrow), visit.LineWidth);
            QCOMPARE(program->Entry("mnuOptionsBubbleShow")->isChecked(), visit.Bubbles);
            QCOMPARE(Tools().split(',').size(), visit.Tools);
        }
        QCOMPARE(
            ReadAll("quorvane.ini"),
            "[Prefrences]\r\nShow Bubbles=0\r\nLine Width=3\r\nUnused Boxs for Input=0\r\n"
            "Show Toolbox=1\r\nDefault Toolbox=mine.tlb\r\nToolbox Size=\r\nScan Drives=c\r\n");
        program->Start();
        QCOMPARE(Tools(), "Cos");
    }

    void file_dialogs_begin_where_the_last_file_lay() {
        WriteAll("quorvane.ini", "[Prefrences]\r\n");
        for (const char* folder : {"examples", "mine"}) std::filesystem::create_directory(folder);
        WriteAll("mine/a.qvm", "0\r\n");
        program->Start();
        const auto beginsIn = [&](const QString& folder) {
            return [=, this](QDialog& dialog) {
                const auto& files = static_cast<QFileDialog&>(dialog);
                QCOMPARE(files.directory(), QDir(program->File(folder)));
                const auto examples = QUrl::fromLocalFile(program->File("examples"));
                QVERIFY(files.sidebarUrls().contains(examples));
                Cancel()(dialog);
            };
        };
        program->Answers = {PickFile(program->File("mine/a.qvm")), beginsIn("mine"), beginsIn("")};
        program->Choose("mnuFileOpen");
        program->Choose("mnuFileLoad");
        program->Choose("mnuOptionsCurrentToolbox");
    }

    void the_help_keeps_its_pages_and_shows_what_a_search_finds() {
        std::filesystem::copy(QUORVANE_SOURCE_DIR "/resources/help/QUORVANE.HLP", "QUORVANE.HLP");
        WriteAll("quorvane.ini", "[Prefrences]\r\n");
        program->Start();
        program->Choose("mnuHelpHowTo");
        auto* help = program->Frame().findChild<QWidget*>("helpWindow");
        auto* pages = help->findChild<QTreeWidget*>("helpContents");
        const auto text = [&] { return help->findChild<QTextBrowser*>("helpText")->toPlainText(); };
        QVERIFY(text().startsWith("How to use the help"));
        QVERIFY(pages->topLevelItemCount() > 5);
        pages->setCurrentItem(pages->topLevelItem(2));
        QVERIFY(text().startsWith("Quorvane"));
        program->Choose("mnuHelpHowTo");
        auto* field = help->findChild<QLineEdit*>("helpSearch");
        QTest::keyClicks(field, "caps lock");
        QTest::keyClick(field, Qt::Key_Return);
        QVERIFY(text().startsWith("Quorvane"));
        program->Choose("mnuHelpSearch");
        auto* view = help->findChild<QTextBrowser*>("helpText");
        for (const char* word : {"Shift+Enter", "surprises"}) {
            field->setText(word);
            QTest::keyClick(field, Qt::Key_Return);
            QTest::qWait(0);
            QCOMPARE(view->textCursor().selectedText(), word);
            QVERIFY(view->viewport()->rect().contains(view->cursorRect()));
        }
    }

    void the_tour_takes_eleven_clicks() {
        program->Choose("mnuFileNew");
        program->Choose("mnuHelpTour");
        QString last;
        for (int click = 1; click <= 11; ++click) {
            auto* panel = static_cast<QLabel*>(program->Part("pnlTour"));
            QVERIFY(panel && panel->text() != last);
            last = panel->text();
            // All of the text shows, also on a low worksheet.
            for (const QSize& size : {QSize(640, 480), QSize(420, 170)}) {
                program->Window()->resize(size);
                QVERIFY2(panel->parentWidget()->rect().contains(panel->geometry()),
                         qPrintable(last));
                QVERIFY(panel->height() >= panel->heightForWidth(panel->width()));
            }
            QTest::mouseClick(panel, Qt::LeftButton);
        }
        QVERIFY(!program->Part("pnlTour"));
        QVERIFY(!program->Entry("mnuHelpTour")->isChecked());
    }

private:
    QWidget* Tool(int number) const {
        return program->Frame().findChild<QWidget*>(QString("cmd(%1)").arg(number));
    }
    /// The keys of the toolbox's buttons that show.
    QString Tools() const {
        QTest::qWait(0);  // Buttons that were taken away go
        QStringList keys;
        for (int i = 1; Tool(i) && Tool(i)->isVisible(); ++i) keys += Tool(i)->accessibleName();
        return keys.join(',');
    }
    void PlaceTool(int number, QPoint at) {
        QTest::mouseClick(Tool(number), Qt::LeftButton);
        QTest::mouseMove(program->Surface(), at - QPoint(1, 1));
        program->Click(at);
    }
    /// The entries of recent files that show.
    QString RecentNames() const {
        QString names;
        for (int i = 1; i <= 4; ++i) {
            const auto* entry = program->Entry(QString("mnuFileArray(%1)").arg(i));
            if (entry) names += QString("%1:%2 ").arg(i).arg(entry->text().section('/', -1));
        }
        return names;
    }

    std::unique_ptr<Program> program;
};

}  // namespace quorvane::testing

QTEST_MAIN(quorvane::testing::JourneyTest)
#include "journey_test.moc"
