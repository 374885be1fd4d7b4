// SPDX-License-Identifier: MIT
#include "shell/start_up.h"

#include "generator/front.h"
#include "matlab_link/directory_dialog.h"
#include "quorvane/version.h"
#include "support/step_test.h"

namespace quorvane::testing {

/// Notes what the splash shows each time that the screen is painted.
struct StartDesktop : ScriptedDesktop {
    std::vector<std::string> Splashes;
    void PaintNow() override {
        Splashes.push_back(frmSplash.Form.Visible ? frmSplash.lblVersion.Caption : "none");
    }
};

/// Plays the table of the start.
class StartUpTest : public StepTest {
protected:
    StartUpTest() {
        Know({
            {"start", Seen([this](A a) { return Started(a.Text); })},
            {"splash", Seen([this](A a) { return Splash(a.Given); })},
            {"data", Step([this](A a) { start.Data = folder / a.Text; })},
            {"settings", Step([](A) { GoToSettings(); })},
            {"link", Step([](A a) { std::filesystem::create_symlink("/dev/zero", a.Text); })},
            {"gone", Step([this](A a) { std::filesystem::remove_all(InFolder(a.Text)); })},
            {"frontWidth", Global(frontWidth)},
            {"documents", Seen([](A) { return Documents.UpperBound(); })},
            {"told", Seen([this](A) { return Taken(start.Messages); })},
        });
    }
    void SetUp() override {
        StepTest::SetUp();
        desktop = &start;
        for (const char* name : {"program", "empty", "here"}) {
            std::filesystem::create_directory(name);
        }
        WriteAll("program/QUORVANE.INI", "[Prefrences]\r\nShow Toolbox=0\r\nToolbox Size=4X2\r\n");
    }

private:
    /// Starts, with a user who goes to that folder when asked: the program directory, the number of
    /// questions, and what the toolbox and its preferences look like.
    std::string Started(const std::string& path) {
        start.Seconds = {0, 3};
        start.FormsShown.clear();
        start.Forms["frmDirectory"] = [path] {
            EXPECT_EQ(frmDirectory.lblTop.Caption, "Please locate the Quorvane directory");
            if (!path.empty()) frmDirectory.Dir1.Text = path;
            if (!path.empty()) frmDirectory_Dir1_Change();
            frmDirectory_cmdOK_Click();
        };
        StartProgram();
        EXPECT_FALSE(frmDirectory.Form.Loaded);
        const auto& size = frmPrefs.lbltoolboxsize.Caption;
        return std::string(FileNameOf(ProgramDirectory)) + " " + Show(start.FormsShown.size()) +
               (size.empty() ? "" : " " + size);
    }

    /// What the splash shows while the clock reads this, and how many looks at it are left.
    std::string Splash(const Reals& seconds) {
        start.Seconds.assign(seconds.begin(), seconds.end());
        start.Splashes.clear();
        StartProgram();
        EXPECT_EQ(Taken(start.Splashes), "Version " QUORVANE_VERSION " | none");
        return Show(start.Seconds.size()) + " left";
    }

    StartDesktop start;
};

TEST_F(StartUpTest, Table) {
    PlayTable("shell/start_up.tsv");
    frmSplash.Form.Visible = true;
    frmSplash_Frame1_Click();
    EXPECT_FALSE(frmSplash.Form.Visible);
}

}  // namespace quorvane::testing
