// SPDX-License-Identifier: MIT
#include "shell/start_up.h"

#include "diagram/selection.h"
#include "files/document_fixture.h"
#include "files/settings.h"
#include "generator/front.h"
#include "generator/output_targets.h"
#include "matlab_link/start_matlab.h"
#include "quorvane/version.h"
#include "shell/frame.h"
#include "shell/preferences_command.h"
#include "toolbox/toolbox.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

/// Notes what the splash shows each time that the screen is painted.
struct StartDesktop : ScriptedDesktop {
    std::vector<std::string> Splashes;
    void PaintNow() override {
        Splashes.push_back(frmSplash.Form.Visible ? frmSplash.lblVersion.Caption : "");
    }
};

class StartUp : public DocumentTest {
protected:
    void SetUp() override {
        DocumentTest::SetUp();
        desktop = &start;
        start.Seconds = {10, 13};
        for (const char* name : {"program", "empty", "here"}) {
            std::filesystem::create_directory(folder / name);
        }
        WriteAll(folder / "program/QUORVANE.INI",
                 "[Prefrences]\r\nShow Toolbox=0\r\nToolbox Size=4X2\r\n");
        ChangeDirectory(folder / "here");
    }
    /// The user who goes to a folder from the one in which the dialog begins.
    void UserGoesTo(const std::string& path) {
        start.Forms["frmDirectory"] = [this, path] {
            EXPECT_EQ(frmDirectory.lblTop.Caption, "Please locate the Quorvane directory");
            EXPECT_EQ(frmDirectory.director.Text, folder / "here");
            frmDirectory.Dir1.Text = path;
            frmDirectory_Dir1_Change();
            frmDirectory_cmdOK_Click();
        };
    }

    StartDesktop start;
};

TEST_F(StartUp, TheSplashShowsUntilTheSecondsHaveMovedByThree) {
    struct Row {
        std::deque<int> Seconds;
        std::size_t Left;
    };
    const Row rows[] = {
        {{10, 10, 11, 12, 13, 14}, 1}, {{58, 59, 0, 1}, 1}, {{20, 17, 1}, 1}, {{5, 59, 1}, 1}};
    ChangeDirectory(folder / "program");
    for (const auto& row : rows) {
        start.Seconds = row.Seconds;
        start.Splashes.clear();
        StartProgram();
        EXPECT_EQ(start.Seconds.size(), row.Left);
        EXPECT_EQ(start.Splashes, (std::vector<std::string>{"Version " QUORVANE_VERSION, ""}));
    }
    frmSplash_Load();
    frmSplash.Form.Visible = true;
    EXPECT_EQ(frmSplash.lblProductName.Caption, "Quorvane");
    frmSplash_Frame1_Click();
    EXPECT_FALSE(frmSplash.Form.Visible);
}

TEST_F(StartUp, TheProgramDirectoryIsFoundOrAskedForOnce) {
    struct Row {
        const char *Current, *Chosen, *Program;
        int Dialogs;
        const char* Settings;  ///< Toolbox size and check mark of the toolbox
    };
    const Row rows[] = {
        {"program", nullptr, "program", 0, "4X2 0"},
        {"here", "../program", "program", 1, "4X2 0"},
        {"here", "../empty", "empty", 1, " 1"},
        {"here", nullptr, "here", 1, " 1"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Program);
        ChangeDirectory(folder / row.Current);
        start.Seconds = {0, 3};
        start.FormsShown.clear();
        if (row.Chosen) UserGoesTo(row.Chosen);
        if (!row.Chosen) start.Forms.clear();
        StartProgram();
        EXPECT_EQ(start.FormsShown.size(), row.Dialogs);
        EXPECT_EQ(ProgramDirectory, folder / row.Program);
        EXPECT_EQ(CurrentDirectory(), ProgramDirectory);
        EXPECT_EQ(
            frmPrefs.lbltoolboxsize.Caption + " " + std::to_string(frmPrefs.chkShowToolbox.Value),
            row.Settings);
        EXPECT_TRUE(frmPictures.Form.Loaded);
        EXPECT_EQ(frmPictures.Form.Visible, frmPrefs.chkShowToolbox.Value == 1);
        EXPECT_FALSE(frmDirectory.Form.Loaded);
    }
    EXPECT_TRUE(start.Messages.empty());
}

TEST_F(StartUp, OnlyARegularFileCountsAsSettings) {
    std::filesystem::create_directory(folder / "here/quorvane.ini");
    std::filesystem::create_symlink("/dev/zero", folder / "empty/quorvane.ini");
    UserGoesTo("../empty");
    StartProgram();
    EXPECT_EQ(start.FormsShown.size(), 1U);
    EXPECT_EQ(ProgramDirectory, folder / "empty");
    EXPECT_EQ(frmPrefs.txtToolbox.Text, "default.tlb");
}

TEST_F(StartUp, AFolderThatIsGoneIsPassedOver) {
    std::filesystem::remove(folder / "here");
    StartProgram();
    EXPECT_EQ(start.FormsShown.size(), 1U);
    EXPECT_EQ(ProgramDirectory, "");
    EXPECT_TRUE(frmPictures.Form.Visible);
    ChangeDirectory(folder.Path.string());
}

TEST_F(StartUp, TheStateBeginsAnewAndFaultySettingsAreLeft) {
    WriteAll(folder / "here/quorvane.ini",
             "[Prefrences]\nLine Width=x\nShow Toolbox=0\nDefault Toolbox=none.tlb\n");
    Draw({{"Arrow", ""}});
    EditMode = 5;
    frontWidth = 9;
    StartProgram();
    EXPECT_EQ(NextBox, 1);
    EXPECT_EQ(Documents.UpperBound(), 0);
    EXPECT_EQ(frontWidth, 5);
    EXPECT_TRUE(frmPictures.Form.Visible) << "nothing behind the line width is read";
    EXPECT_EQ(frmPictures.ReloadMarker, 0);
    EXPECT_TRUE(start.Messages.empty() && start.FormsShown.empty());
    WriteAll(folder / "here/quorvane.ini", "[Prefrences]\nDefault Toolbox=none.tlb\n");
    start.Seconds = {0, 3};
    StartProgram();
    ASSERT_EQ(start.Messages.size(), 1U);
    EXPECT_EQ(start.Messages[0].Text, "Toolbox file not found.");
}

class Exits : public DiagramTest {
protected:
    void SetUp() override {
        DiagramTest::SetUp();
        NewDocument();
        EditMode = 2;
        frmTextResults.txt.Text = "log";
        LoadToolbox();
        frmMDI.mnuOptionsToolbox.Checked = true;
    }
    /// What is still there: documents, toolbox, log; and what the help viewer was told.
    std::string Left() {
        std::string left;
        for (int i = 1; i <= 2; ++i) left += Documents[i] ? "D" : "-";
        left += frmPictures.Form.Loaded ? "T" : "-";
        left += frmTextResults.txt.Text.empty() ? "-" : "L";
        left += screen.Ended ? " end" : "";
        for (const auto& command : screen.HelpCommands) left += " " + command;
        return left;
    }
};

TEST_F(Exits, EachTakesDownWhatItOwns) {
    mnuExit_Click();
    EXPECT_EQ(Left(), "---L end |2");
    EXPECT_EQ(EditMode, 2);
    SetUp();
    screen.Ended = false;
    mnuFileExit_Click();
    EXPECT_EQ(Left(), "---- end |2 |2");
    EXPECT_EQ(EditMode, 0);
}

TEST_F(Exits, ARefusedDocumentKeepsTheProgram) {
    DocumentStates[2].Modified = -1;
    UnloadFrame();
    EXPECT_EQ(Left(), "-DTL");
    mnuFileExit_Click();
    EXPECT_EQ(Left(), "-D-- |2");
    EXPECT_FALSE(frmMDI.mnuOptionsToolbox.Checked);
    screen.MessageAnswers = {Answer::No};
    UnloadFrame();
    EXPECT_EQ(Left(), "---- end |2");
}

class PreferencesCommand : public DiagramTest {
protected:
    /// What a worksheet shows of the preferences.
    static std::string Shown(int document) {
        const auto& sheet = *Documents[document];
        return std::to_string(sheet.DrawWidth) +
               (sheet.mnuOptionsBubbleShow.Checked ? " bubbles " : " - ") +
               (sheet.mnuOptionsToolbox.Checked ? "toolbox " : "- ") +
               sheet.mnuOptionsCurrentToolbox.Caption;
    }
    void Run(const std::function<void()>& user) {
        screen.Forms["frmPrefs"] = [user] {
            frmPrefs.Form.Visible = true;
            frmPrefs_Activate();
            user();
            EXPECT_FALSE(frmPrefs.Form.Visible);
        };
        mnuOptionsPrefs_Click(*Documents[1]);
    }
};

TEST_F(PreferencesCommand, AllOpenDocumentsFollowAndTheGiverIsDrawn) {
    NewDocument();
    NewDocument();
    DocumentStates[3].Closed = -1;
    const auto closed = Shown(3);
    for (int i = 1; i <= 2; ++i) Documents[i]->Surface.resize(1);
    LoadToolbox();
    frmMDI.mnuOptionsToolbox.Checked = true;
    Run([] {
        frmPrefs.txtLineWidth.Text = "3";
        frmPrefs.chkShowBubbles.Value = 0;
        frmPrefs.chkShowToolbox.Value = 0;
        frmPrefs.lbltoolboxsize.Caption = "7X1";
        frmPrefs.txtToolbox.Text = "none.tlb";
        frmPrefs_cmdOK_Click();
    });
    for (int i = 1; i <= 2; ++i) {
        EXPECT_EQ(Shown(i), "3 - - Current Toolbox: none.tlb");
    }
    EXPECT_EQ(Shown(3), closed);
    EXPECT_TRUE(Documents[1]->Surface.empty());
    EXPECT_EQ(Documents[2]->Surface.size(), 1U);
    EXPECT_TRUE(frmPictures.Form.Loaded && !frmPictures.Form.Visible);
    EXPECT_EQ(frmPictures.Columns, 7);
    EXPECT_EQ(frmPictures.ReloadMarker, 0);
    EXPECT_FALSE(frmMDI.mnuOptionsToolbox.Checked) << "the toolbox was unloaded";
    ASSERT_EQ(screen.Messages.size(), 1U);
    EXPECT_EQ(screen.Messages[0].Text, "Toolbox file not found.");
}

TEST_F(PreferencesCommand, CancelKeepsTheRestAndShowsTheToolbox) {
    frmPrefs.txtLineWidth.Text = "2";
    frmMDI.mnuOptionsToolbox.Checked = true;
    Run([] {
        frmPrefs.txtLineWidth.Text = "4";
        frmPrefs.chkShowBubbles.Value = 0;
        frmPrefs.txtToolbox.Text = "other.tlb";
        frmPrefs_cmdCancel_Click();
    });
    EXPECT_EQ(Shown(1), "2 bubbles toolbox Current Toolbox: other.tlb");
    EXPECT_TRUE(frmPictures.Form.Visible);
    EXPECT_TRUE(frmMDI.mnuOptionsToolbox.Checked) << "the toolbox was not unloaded";
}

}  // namespace
