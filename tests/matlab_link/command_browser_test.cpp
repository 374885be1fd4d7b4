// SPDX-License-Identifier: MIT
#include "matlab_link/command_browser.h"

#include "commands/command_browser_door.h"
#include "commands/function_dialogs.h"
#include "matlab_link/mfile_index.h"
#include "support/step_test.h"

namespace quorvane::testing {

/// Remembers what the window of the scan says each time the screen is painted.
struct WatchingDesktop : ScriptedDesktop {
    void PaintNow() override { Seen.push_back(frmScanning.lblScanning.Caption); }
    std::vector<std::string> Seen;
};

/// Plays the tables of the scan for M-files and of the browser. The program directory is program/,
/// the drive is drive/.
class BrowserTest : public StepTest {
protected:
    BrowserTest() {
        Know({
            {"make", Step([this](A a) { Make(a.Text); })},
            {"index", Step([this](A a) { WriteAll(MFileIndex, Replaced(a.Text, "@", drive)); })},
            {"scan", Seen([this](A) { return Scan(); })},
            {"drives", Global(frmPrefs.txtDrives.Text)},
            {"load", Step([](A) { frmMatlab_Load(); })},
            {"forget", Step([](A) { CategoryTable = GrowableArray<CategoryRecord>(1); })},
            {"categories", Seen([this](A) { return Taken(Lists(frmMatlab.cmbCategory.List)); })},
            {"files", Seen([this](A a) {
                 if (!a.Text.empty()) {
                     frmMatlab.cmbCategory.Text = a.Text;
                     frmMatlab_cmbCategory_Click();
                 }
                 return Taken(Lists(frmMatlab.lstFunc.List));
             })},
            {"help", Seen([this](A a) { return HelpOf(a.Text); })},
            {"click", Step([](A) {
                 frmMatlab.lstFunc.ListIndex = 0;
                 frmMatlab_lstFunc_Click();
             })},
            {"picked", Seen([this](A a) { return Picked(a[0], a.Text); })},
            {"told", Seen([this](A) { return Taken(watching.Messages); })},
            {"shown", Seen([this](A) { return Taken(watching.FormsShown); })},
            {"answer", Step([this](A a) {
                 watching.MessageAnswers = {a.Text == "yes" ? Answer::Yes : Answer::No};
             })},
        });
    }
    void SetUp() override {
        StepTest::SetUp();
        watching = {};
        desktop = &watching;
        watching.Forms["frmScanning"] = frmScanning_Activate;
        for (const char* name : {"program", "drive"}) std::filesystem::create_directory(name);
        ProgramDirectory = folder / "program";
        ChangeDirectory(ProgramDirectory);
        DriveRoots = {{'C', drive + "/"}};
        frmPrefs.txtDrives.Text = "c";
    }
    void TearDown() override {
        frmFunc = {};
        frmMatlabFunction = {};
        StepTest::TearDown();
    }

    /// Makes empty files, and the folders in front of them, on the drive or in the folder "/...".
    void Make(const std::string& names) {
        for (const auto& name : Split(names, '|')) {
            const auto path = name[0] == '/' ? folder.Path.string() + name : drive + "/" + name;
            std::filesystem::create_directories(path.substr(0, path.rfind('/')));
            if (!path.ends_with('/')) WriteAll(path, "");
        }
    }
    /// What a scan writes, with "|" for the line ends and "@" for the drive.
    std::string Scan() {
        DirectoryList = GrowableArray<FoundDirectory>(1);
        frmScanning_Activate();
        EXPECT_EQ(CurrentDirectory(), ProgramDirectory);
        return Shortened(ReadAll(MFileIndex));
    }

    const std::string drive = folder / "drive";
    WatchingDesktop watching;

private:
    std::string Shortened(const std::string& text) const {
        return Replaced(Replaced(text, drive, "@"), "\r\n", "|");
    }
    std::vector<std::string>& Lists(std::vector<std::string> list) {
        for (auto& text : list) text = Shortened(text);
        return shown_ = std::move(list);
    }

    std::string HelpOf(const std::string& text) {
        WriteAll("f.m", text);
        frmMatlab.lstFunc = {.List = {"f.m"}, .ListIndex = 0};
        frmMatlab.lblHelp.Caption = "another one";
        frmMatlab_lstFunc_Click();
        return frmMatlab.lblHelp.Caption;
    }

    /// What the two callers of the browser hold when a function was picked for one of them.
    std::string Picked(int chosen, const std::string& caller) {
        watching.Forms["frmMatlab"] = [=, this] {
            EXPECT_EQ(frmFunc.Form.MousePointer + frmMatlabFunction.Form.MousePointer, 0);
            frmMatlab.cmbCategory.Text = "zzz All M files zzz";
            frmMatlab_cmbCategory_Click();
            frmMatlab.lstFunc.ListIndex = chosen;
            frmMatlab_cmdOK_Click();
            EXPECT_FALSE(frmMatlab.Form.Loaded);
        };
        frmMatlabFunction.txtFunc.Text = frmFunc.txtFunc.Text = "2*";
        OpenCommandBrowser(caller);
        return frmMatlabFunction.txtFunc.Text + "|" + frmFunc.txtFunc.Text;
    }

    std::vector<std::string> shown_;
};

TEST_F(BrowserTest, Table) { PlayTable("matlab_link/command_browser.tsv"); }

TEST_F(BrowserTest, LinksAreNotFollowedAndWhatIsNoFileIsNone) {
    Make("a/f.m|a/d.m/|z/");
    std::filesystem::create_directory_symlink("..", drive + "/a/loop");
    std::filesystem::create_symlink("f.m", drive + "/a/to_file.m");
    std::filesystem::create_symlink("d.m", drive + "/a/to_folder.m");
    std::filesystem::create_symlink("itself.m", drive + "/a/itself.m");
    EXPECT_EQ(Scan(), "[Directories]|a;@/a|[Files]|@/a/f.m|@/a/to_file.m|");
}

TEST_F(BrowserTest, TheWindowTellsHowFarItIsAlsoWhereNothingCanBeWritten) {
    Make("a/f.m");
    frmPrefs.txtDrives.Text = "aC";
    frmScanning.Form.Visible = true;
    std::filesystem::create_directory(MFileIndex);
    frmScanning_Activate();
    EXPECT_EQ(Taken(watching.Seen),
              "Now scanning drive A: | Now scanning drive C: | Now writing directories. | "
              "Now writing file names.");
    EXPECT_FALSE(frmScanning.Form.Visible);
    EXPECT_EQ(CategoryTable.UpperBound(), 2);
    EXPECT_EQ(CategoryTable[2].name + CategoryTable[2].path, "a" + drive + "/a");
}

}  // namespace quorvane::testing
