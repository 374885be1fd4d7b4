// SPDX-License-Identifier: MIT
#include "shell/start_up.h"

#include "generator/front.h"
#include "matlab_link/directory_dialog.h"
#include "quorvane/version.h"
#include "support/step_test.h"

namespace quorvane::testing {

/// Plays the table of the start.
class StartUpTest : public StepTest {
protected:
    StartUpTest() {
        Know({
            {"start", Seen([this](A a) { return Started(a.Text); })},
            {"splash", Seen([this](A a) { return Splash(a.Given); })},
            {"data", Step([this](A a) { screen.Data = folder / a.Text; })},
            {"settings", Step([](A) { GoToSettings(); })},
            {"gone", Step([this](A a) { std::filesystem::remove_all(InFolder(a.Text)); })},
            {"frontWidth", Global(frontWidth)},
            {"documents", Seen([](A) { return Documents.UpperBound(); })},
        });
    }
    void SetUp() override {
        StepTest::SetUp();
        for (const char* name : {"program", "empty", "here"}) {
            std::filesystem::create_directory(name);
        }
        WriteAll("program/QUORVANE.INI", "[Prefrences]\r\nShow Toolbox=0\r\nToolbox Size=4X2\r\n");
    }

private:
    /// Starts, with a user who goes to that folder when asked: the program directory, the number of
    /// questions, and what the toolbox and its preferences look like.
    std::string Started(const std::string& path) {
        screen.Seconds = {0, 3};
        screen.FormsShown.clear();
        screen.Forms["frmDirectory"] = [path] {
            EXPECT_EQ(frmDirectory.lblTop.Caption, "Please locate the Quorvane directory");
            if (!path.empty()) frmDirectory.Dir1.Text = path;
            if (!path.empty()) frmDirectory_Dir1_Change();
            frmDirectory_cmdOK_Click();
        };
        StartProgram();
        EXPECT_FALSE(frmDirectory.Form.Loaded);
        const auto& size = frmPrefs.lbltoolboxsize.Caption;
        return std::string(FileNameOf(ProgramDirectory)) + " " + Show(screen.FormsShown.size()) +
               (size.empty() ? "" : " " + size);
    }

    /// What the splash shows while the clock reads this, and how many looks at it are left.
    std::string Splash(const Reals& seconds) {
        screen.Seconds.assign(seconds.begin(), seconds.end());
        std::vector<std::string> splashes;
        screen.AtPaint = [&] {
            splashes.push_back(frmSplash.Form.Visible ? frmSplash.lblVersion.Caption : "none");
        };
        StartProgram();
        screen.AtPaint = [] {};
        EXPECT_EQ(Taken(splashes), "Version " QUORVANE_VERSION " | none");
        return Show(screen.Seconds.size()) + " left";
    }
};

TEST_F(StartUpTest, Table) {
    PlayTable("shell/start_up.tsv");
    frmSplash.Form.Visible = true;
    frmSplash_Frame1_Click();
    EXPECT_FALSE(frmSplash.Form.Visible);
}

}  // namespace quorvane::testing
