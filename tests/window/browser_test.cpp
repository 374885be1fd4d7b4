// SPDX-License-Identifier: MIT
#include <QLabel>
#include <QListView>
#include <QTest>
#include <filesystem>
#include <fstream>

#include "diagram/box_table.h"
#include "diagram/preferences.h"
#include "matlab_link/mfile_index.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

namespace {

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

/// The browser of commands, opened from a box's dialog with a drive of three M-files.
class BrowserTest : public QObject {
    Q_OBJECT

private slots:
    void a_function_is_scanned_for_and_picked() {
        Program program;
        ProgramDirectory = std::filesystem::current_path().string();
        DriveRoots = {{'C', ProgramDirectory + "/"}};
        std::filesystem::create_directory("signal");
        for (const char* name : {"signal/Beta.m", "signal/gamma.m", "signal/last.m"}) {
            std::ofstream(name) << "% Help for,all\n% of it\n\n";
        }
        program.Choose("mnuFileNew");
        const auto nothing = [](QDialog&) {};
        program.Answers = {Play("cmdShowFunc|cmdShowFunc|cmdOK"), nothing, Cancel(), PickByKeys};
        program.Place("mnuSpecMatlab", {90, 90});
        QCOMPARE(program.Asked.mid(1, 2),
                 QStringList({"frmScanning: Quorvane", "frmMatlab: Select a Matlab Command"}));
        QCOMPARE(Boxes[1].BoxText, "Output=gamma");
    }
};

}  // namespace quorvane::testing

QTEST_MAIN(quorvane::testing::BrowserTest)
#include "browser_test.moc"
