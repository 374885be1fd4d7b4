// SPDX-License-Identifier: MIT
#include <csignal>
#include <new>

#include "platform/runtime_error.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/qt_desktop.h"
#include "qt/desktop/recovery_watch.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

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

using EndingWindow = WindowTest;

/// The program, and those that run on their own to be ended, keep the user's files here.
void KeepFilesIn(const WorkFolder& folder) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    if (::testing::internal::InDeathTestChild()) return;
    for (const char* name : {"XDG_DATA_HOME", "XDG_STATE_HOME"}) {
        qputenv(name, folder.Path.c_str());
    }
}

TEST_F(EndingWindow, TheDiagramsAreSavedWhateverAHandlerLetsOut) {
    KeepFilesIn(folder);
    Choose("mnuFileNew");
    Place("mnuTrigSin", {60, 50});
    Answers = {[](QDialog& dialog) {
        std::fputs(static_cast<QMessageBox&>(dialog).text().toUtf8().constData(), stderr);
        dialog.accept();
    }};
    for (const auto& ending : endings) {
        EXPECT_EXIT(Dispatch(ending.Handler), ::testing::ExitedWithCode(3),
                    std::string(ending.Told) + "\n\nChanged diagrams were saved as:\n/.*qvm");
    }
    Answers.clear();
}

std::string LeftDiagram() {
    const std::filesystem::path state = qgetenv("XDG_STATE_HOME").toStdString();
    for (const auto& entry : std::filesystem::recursive_directory_iterator(state)) {
        if (entry.path().filename() == "1.qvm") return ReadAll(entry.path());
    }
    return "";
}

TEST_F(EndingWindow, TheProgramIsStartedAnewWithWhatWasThere) {
    KeepFilesIn(folder);
    Choose("mnuFileNew");
    Place("mnuTrigSin", {60, 50});
    Answers = {[](QDialog& dialog) {
        for (auto* button : static_cast<QMessageBox&>(dialog).buttons()) {
            if (button->text() == "Open again") QTest::mouseClick(button, Qt::LeftButton);
        }
    }};
    EXPECT_EXIT(Dispatch(endings[0].Handler), ::testing::ExitedWithCode(3), "");
    Answers.clear();
    const auto shown = [&] { return ReadAll(folder / "quorvane/shown"); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return !shown().empty(); }));
    EXPECT_EQ(shown(), "Untitled:1 Sin");
}

TEST_F(EndingWindow, WhatIsUnsavedOutlivesASignal) {
    KeepFilesIn(folder);
    Choose("mnuFileNew");
    const auto endBy = [&](int signal) {
        // A shell starts its background jobs with some of them ignored.
        std::signal(signal, SIG_DFL);
        StartRecoveryWatch();
        Place("mnuTrigSin", {60, 50});
        // Nothing foretells a kill: the file has to be there by itself.
        const auto isLeft = [] { return !LeftDiagram().empty(); };
        if (signal == SIGKILL && !QTest::qWaitFor(isLeft)) return;
        std::raise(signal);
        QApplication::exec();
    };
    const auto state = folder.Path / "quorvane";
    for (const int signal : {SIGTERM, SIGHUP, SIGINT, SIGKILL}) {
        std::filesystem::remove_all(state);
        EXPECT_EXIT(endBy(signal), ::testing::KilledBySignal(signal), "");
        EXPECT_TRUE(LeftDiagram().starts_with("1\r\nSin~")) << signal;
    }
}

TEST(UserFolders, FollowTheEnvironment) {
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
        EXPECT_EQ(asked.DataFolder(), dataFolder);
        EXPECT_EQ(asked.StateFolder(), stateFolder);
    }
    for (const char* name : {"XDG_DATA_HOME", "XDG_STATE_HOME"}) qunsetenv(name);
    qputenv("HOME", home);
}

}  // namespace quorvane::testing
