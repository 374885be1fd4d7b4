// SPDX-License-Identifier: MIT
#include <new>

#include "platform/runtime_error.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/qt_desktop.h"
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

TEST_F(EndingWindow, TheDiagramsAreSavedWhateverAHandlerLetsOut) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");  // A program of its own for each ending
    const auto data = folder.Path / "data";
    qputenv("XDG_DATA_HOME", data.c_str());
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
