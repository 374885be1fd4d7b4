// SPDX-License-Identifier: MIT
#include "matlab_link/start_matlab.h"

#include "diagram/preferences.h"
#include "files/document_fixture.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

class StartMatlab : public DocumentTest {
protected:
    void SetUp() override {
        DocumentTest::SetUp();
        std::filesystem::create_directories(folder / "program");
        std::filesystem::create_directories(folder / "home/bin");
        ProgramDirectory = folder / "program";
    }
    void Run(const std::string& where) {
        screen.Messages.clear();
        screen.Processes.clear();
        screen.Forms["frmDirectory"] = [where] {
            EXPECT_EQ(frmDirectory.lblTop.Caption, "Please locate the Matlab directory");
            frmDirectory.Dir1.Text = where;
            frmDirectory_Dir1_Change();
            frmDirectory_cmdOK_Click();
        };
        mnuFileStartMatlab_Click();
        EXPECT_FALSE(frmDirectory.Form.Loaded);
    }
};

TEST_F(StartMatlab, TheFirstProgramThatIsThereIsStarted) {
    const char* const none = "Sorry, Matlab excutable still not found.";
    struct Row {
        const char* Added;
        bool Fails;
        std::string Started;
        std::size_t Messages;
    };
    const Row rows[] = {
        {nullptr, true, "", 2},
        {"octave", false, "octave", 0},
        {"octave-cli", false, "octave-cli", 0},
        {"MATLAB", false, "MATLAB", 0},
        {"matlab", false, "matlab", 0},
        {nullptr, true, "", 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Started);
        if (row.Added) WriteAll(folder.Path / "home/bin" / row.Added, "");
        screen.ProcessesFail = row.Fails;
        ChangeDirectory(folder.Path.string());
        Run("home");
        EXPECT_EQ(screen.Processes.size(), row.Started.empty() ? 0U : 1U);
        for (const auto& path : screen.Processes)
            EXPECT_EQ(path, folder / "home/bin/" + row.Started);
        ASSERT_EQ(screen.Messages.size(), row.Messages);
        for (const auto& message : screen.Messages) {
            EXPECT_EQ(message.Text, none);
            EXPECT_EQ(message.Title, "Quorvane");
        }
        EXPECT_EQ(CurrentDirectory(), ProgramDirectory);
    }
    std::filesystem::create_directories(folder / "wrong/bin/matlab");
    Run(folder / "wrong");
    EXPECT_EQ(screen.Messages.size(), 2U) << "a folder is no program";
}

TEST_F(StartMatlab, WithoutAPathNothingIsStarted) {
    std::filesystem::create_directory(folder / "gone");
    ChangeDirectory(folder / "gone");
    std::filesystem::remove(folder / "gone");
    Run("none");
    ASSERT_EQ(screen.Messages.size(), 1U);
    EXPECT_EQ(screen.Messages[0].Text, "Sorry, cannot continue without the Matlab path.");
    EXPECT_EQ(screen.Messages[0].Picture, Icon::Critical);
    ChangeDirectory(folder.Path.string());
}

TEST_F(StartMatlab, TheDialogGoesWhereItsPathPoints) {
    for (const char* name : {"home/b", "home/a", "home/.hidden"}) {
        std::filesystem::create_directory(folder / name);
    }
    WriteAll(folder / "home/file", "");
    std::filesystem::create_directory_symlink("..", folder / "home/link");
    struct Row {
        std::string Typed, Shown, Director;
    };
    const Row rows[] = {
        {"hom", "hom", ""},
        {"home", folder / "home", "home"},
        {"file", "file", "home"},
        {"a", folder / "home/a", "home/a"},
        {"..", folder / "home", "home"},
        {folder / "home/", folder / "home/", "home"},
        {folder / "home/b", folder / "home/b", "home/b"},
        {folder / "home/bx", folder / "home/bx", "home/b"},
        {"", "", "home/b"},
    };
    frmDirectory_Load();
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Typed);
        frmDirectory.Dir1.Text = row.Typed;
        frmDirectory_Dir1_Change();
        EXPECT_EQ(frmDirectory.Dir1.Text, row.Shown);
        const auto director = row.Director.empty() ? folder.Path.string() : folder / row.Director;
        EXPECT_EQ(frmDirectory.director.Text, director);
        EXPECT_EQ(CurrentDirectory(), director);
    }
    frmDirectory.Dir1.Text = folder / "home";
    frmDirectory_Dir1_Change();
    EXPECT_EQ(frmDirectory.Dir1.List, (std::vector<std::string>{"..", "a", "b", "bin", "link"}));
    EXPECT_TRUE(frmDirectory.Drive1.List.empty());
}

TEST_F(StartMatlab, OnlyAnotherQuestionLetsTheDialogAcceptByItself) {
    const std::string asked = "Please locate the Quorvane directory";
    const std::string capital = "Please Locate the Quorvane Directory";
    struct Row {
        std::string Question;
        const char* Added;
        bool Stays;
    };
    const Row rows[] = {
        {capital, "readme", true},     {capital, "z.ini", true}, {capital, "Quorvane.Ini", false},
        {asked, "Quorvane.Ini", true}, {capital, "A.ini", true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Question + row.Added);
        WriteAll(folder.Path / "program" / row.Added, "");
        ChangeDirectory(folder.Path.string());
        frmDirectory_Load();
        EXPECT_EQ(frmDirectory.lblTop.Caption, asked);
        frmDirectory.lblTop.Caption = row.Question;
        frmDirectory.Form.Visible = true;
        frmDirectory.Dir1.Text = "program";
        frmDirectory_Dir1_Change();
        EXPECT_EQ(frmDirectory.Form.Visible, row.Stays);
    }
}

}  // namespace
