// SPDX-License-Identifier: MIT
#include "shell/start_up.h"

#include <cstdlib>

#include "files/document_fixture.h"
#include "files/settings.h"
#include "generator/front.h"
#include "matlab_link/start_matlab.h"
#include "quorvane/version.h"
#include "toolbox/toolbox.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

/// Notes what the splash shows each time that the screen is painted.
struct StartDesktop : ScriptedDesktop {
    std::string Splashes;
    void PaintNow() override {
        Splashes += frmSplash.Form.Visible ? frmSplash.lblVersion.Caption + "|" : "none|";
    }
};

class StartUp : public DocumentTest {
protected:
    void SetUp() override {
        DocumentTest::SetUp();
        desktop = &start;
        for (const char* name : {"program", "empty", "here"}) {
            std::filesystem::create_directory(folder / name);
        }
        WriteAll(folder / "program/QUORVANE.INI",
                 "[Prefrences]\r\nShow Toolbox=0\r\nToolbox Size=4X2\r\n");
        ChangeDirectory(folder / "here");
    }
    /// Starts, with a user who goes to that folder when asked: the program directory, the number of
    /// questions, and what the toolbox and its preferences look like.
    std::string Started(const std::string& path = "") {
        start.Seconds = {0, 3};
        start.FormsShown.clear();
        start.Forms["frmDirectory"] = [path] {
            EXPECT_EQ(frmDirectory.lblTop.Caption, "Please locate the Quorvane directory");
            if (!path.empty()) frmDirectory.Dir1.Text = path;
            if (!path.empty()) frmDirectory_Dir1_Change();
            frmDirectory_cmdOK_Click();
        };
        StartProgram();
        EXPECT_TRUE(frmPictures.Form.Loaded);
        EXPECT_FALSE(frmDirectory.Form.Loaded);
        return std::filesystem::path(ProgramDirectory).filename().string() + " " +
               std::to_string(start.FormsShown.size()) + " " + frmPrefs.lbltoolboxsize.Caption +
               (frmPictures.Form.Visible ? " shown" : " hidden");
    }

    StartDesktop start;
};

TEST_F(StartUp, TheSplashShowsUntilTheSecondsHaveMovedByThree) {
    ChangeDirectory(folder / "program");
    for (const auto& seconds :
         {std::deque<int>{10, 10, 11, 12, 13, 14}, {58, 59, 0, 1}, {20, 17, 1}, {5, 59, 1}}) {
        start.Seconds = seconds;
        start.Splashes.clear();
        StartProgram();
        EXPECT_EQ(start.Seconds.size(), 1U) << "the last look at the clock was too much";
        EXPECT_EQ(start.Splashes, "Version " QUORVANE_VERSION "|none|");
    }
    frmSplash.Form.Visible = true;
    frmSplash_Frame1_Click();
    EXPECT_FALSE(frmSplash.Form.Visible);
}

TEST_F(StartUp, TheProgramDirectoryIsFoundOrAskedForOnce) {
    EXPECT_EQ(Started("../program"), "program 1 4X2 hidden");
    EXPECT_EQ(CurrentDirectory(), ProgramDirectory);
    EXPECT_EQ(Started(), "program 0 4X2 hidden");
    ChangeDirectory(folder / "here");
    EXPECT_EQ(Started("../empty"), "empty 1  shown");
    ChangeDirectory(folder / "here");
    EXPECT_EQ(Started(), "here 1  shown");
    // Only a regular file counts as settings.
    std::filesystem::create_directory(folder / "here/quorvane.ini");
    std::filesystem::create_symlink("/dev/zero", folder / "empty/quorvane.ini");
    EXPECT_EQ(Started("../empty"), "empty 1  shown");
    std::filesystem::remove_all(folder / "empty");
    EXPECT_EQ(Started(), " 1  shown") << "a folder that is gone is passed over";
    EXPECT_TRUE(start.Messages.empty());
    ChangeDirectory(folder.Path.string());
}

TEST_F(StartUp, SettingsOfTheLauncherAreFound) {
    setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1);
    const auto gone = [&](const char* from) {
        ChangeDirectory(folder / from);
        GoToSettings();
        return std::filesystem::path(CurrentDirectory()).filename().string();
    };
    std::filesystem::create_directories(folder / "data/quorvane");
    EXPECT_EQ(gone("here"), "here") << "a folder without settings";
    WriteAll(folder / "data/quorvane/quorvane.ini", "[Prefrences]\r\n");
    EXPECT_EQ(gone("here"), "quorvane");
    EXPECT_EQ(gone("program"), "program") << "the current directory comes first";
    unsetenv("XDG_DATA_HOME");
    ChangeDirectory(folder.Path.string());
}

TEST_F(StartUp, TheStateBeginsAnewAndFaultySettingsAreLeft) {
    WriteAll(folder / "here/quorvane.ini",
             "[Prefrences]\nLine Width=x\nShow Toolbox=0\nDefault Toolbox=none.tlb\n");
    Draw({{"Arrow", ""}});
    frontWidth = 9;
    EXPECT_EQ(Started(), "here 0  shown") << "nothing behind the line width is read";
    EXPECT_EQ(NextBox, 1);
    EXPECT_EQ(Documents.UpperBound(), 0);
    EXPECT_EQ(frontWidth, 5);
    EXPECT_EQ(frmPictures.ReloadMarker, 0);
    EXPECT_TRUE(start.Messages.empty());
    WriteAll(folder / "here/quorvane.ini", "[Prefrences]\nDefault Toolbox=none.tlb\n");
    Started();
    ASSERT_EQ(start.Messages.size(), 1U);
    EXPECT_EQ(start.Messages[0].Text, "Toolbox file not found.");
}

}  // namespace
