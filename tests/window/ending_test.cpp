// SPDX-License-Identifier: MIT
#include <new>
#include <stdexcept>

#include "diagram/worksheet.h"
#include "platform/runtime_error.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/qt_desktop.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

namespace {

struct Ending {
    void (*Handler)();
    const char* Told;
};
const Ending endings[] = {
    {[] { throw RuntimeError(9); }, "Run-time error '9':\nSubscript out of range"},
    {[] { throw std::bad_alloc(); }, "Run-time error '7':\nOut of memory"},
    {[] { throw std::out_of_range(""); }, "Run-time error '51':\nInternal error"},
    {[] { throw 0; }, "Run-time error '51':\nInternal error"},
};

/// Runs a handler that ends the program, in a program of its own, which prints what it tells.
int EndBy(const Ending& ending) {
    Program program;
    program.Choose("mnuFileNew");
    program.Place("mnuTrigSin", {60, 50});
    program.Answers = {[](QDialog& dialog) {
        std::puts(static_cast<QMessageBox&>(dialog).text().toUtf8().constData());
        std::fflush(stdout);
        dialog.accept();
    }};
    Dispatch(ending.Handler);
    return 0;
}

}  // namespace

/// The end of a program whose handler fails.
class EndingTest : public QObject {
    Q_OBJECT

private slots:
    void the_diagrams_are_saved_whatever_a_handler_lets_out() {
        const WorkFolder data;
        qputenv("XDG_DATA_HOME", data.Path.c_str());
        int number = 0;
        for (const auto& ending : endings) {
            QProcess program;
            program.start(QCoreApplication::applicationFilePath(),
                          {"end", QString::number(number++)});
            QVERIFY(program.waitForFinished());
            QCOMPARE(program.exitCode(), 3);
            const auto file = data / ("quorvane/recovered-" + std::to_string(number) + ".qvm");
            QCOMPARE(program.readAllStandardOutput().toStdString(),
                     ending.Told + ("\n\nChanged diagrams were saved as:\n" + file + "\n"));
            QVERIFY(ReadAll(file).starts_with("1\r\nSin~"));
        }
    }

    void the_environment_names_the_folders_of_the_user() {
        struct Row {
            const char *Data, *State, *Home;
            std::string DataFolder, StateFolder;
        };
        const auto home = qgetenv("HOME");
        for (const auto& [data, state, at, dataFolder, stateFolder] : {
                 Row{"/d", "/s", "/h", "/d/quorvane", "/s/quorvane"},
                 Row{"", "", "/h", "/h/.local/share/quorvane", "/h/.local/state/quorvane"},
                 Row{"/d", "", "", "/d/quorvane", ""},
             }) {
            qputenv("XDG_DATA_HOME", data);
            qputenv("XDG_STATE_HOME", state);
            qputenv("HOME", at);
            QtDesktop asked;
            QCOMPARE(asked.DataFolder(), dataFolder);
            QCOMPARE(asked.StateFolder(), stateFolder);
        }
        qputenv("HOME", home);
    }
};

}  // namespace quorvane::testing

int main(int argc, char** argv) {
    using namespace quorvane::testing;
    QApplication application(argc, argv);
    if (argc == 3 && std::string(argv[1]) == "end") return EndBy(endings[std::atoi(argv[2])]);
    EndingTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "ending_test.moc"
