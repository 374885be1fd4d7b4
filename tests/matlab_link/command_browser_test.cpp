// SPDX-License-Identifier: MIT
#include "matlab_link/command_browser.h"

#include "commands/command_browser_door.h"
#include "commands/function_dialogs.h"
#include "matlab_link/mfile_index.h"
#include "support/step_test.h"

namespace quorvane::testing {

/// Plays the tables of the scan for M-files and of the browser. The program directory is program/,
/// the drive is drive/.
class BrowserTest : public StepTest {
protected:
    BrowserTest() {
        Know({
            {"make", Step([this](A a) { Make(a.Text); })},
            {"index", Step([this](A a) { WriteAll(MFileIndex, Replaced(a.Text, "@", drive)); })},
            {"scan", Seen([this](A) { return Scan(); })},
            {"watched", Seen([this](A) {
                 std::vector<std::string> seen;
                 screen.AtPaint = [&] { seen.push_back(frmScanning.lblScanning.Caption); };
                 frmScanning_Activate();
                 screen.AtPaint = [] {};
                 return Taken(seen);
             })},
            {"category", Seen([this](A a) {
                 const auto& row = CategoryTable[a[0]];
                 return row.name + Shortened(row.path);
             })},
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
        });
    }
    void SetUp() override {
        StepTest::SetUp();
        screen.Forms["frmScanning"] = frmScanning_Activate;
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
        screen.Forms["frmMatlab"] = [=, this] {
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

/// So many folders are read by several threads.
TEST_F(BrowserTest, AScanOfManyFoldersIsInOrder) {
    std::string made, expected;
    for (int i = 100; i < 400; ++i) {
        const auto name = "f" + std::to_string(i);
        made += name + "/" + name + ".m|" + name + "/in/g.m|";
        expected += "@/" + name + "/" + name + ".m|@/" + name + "/in/g.m|";
    }
    Make(made);
    frmPrefs.txtDrives.Text = "C";
    EXPECT_NE(Scan().find(expected), std::string::npos);
}

TEST_F(BrowserTest, Table) { PlayTable("matlab_link/command_browser.tsv"); }

}  // namespace quorvane::testing
