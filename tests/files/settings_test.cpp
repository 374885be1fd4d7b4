// SPDX-License-Identifier: MIT
#include "files/settings.h"

#include "support/step_test.h"

namespace quorvane::testing {

/// Plays the table of the settings.
class SettingsTest : public StepTest {
protected:
    SettingsTest() {
        Know({
            {"home", Step([this](A) { ProgramDirectory = folder.Path.string(); })},
            {"read", Seen([this](A a) {
                 WriteAll("Quorvane.ini", a.Text);
                 return StateAfterReading();
             })},
            {"again", Seen([this](A) { return StateAfterReading(); })},
            {"state", Seen([](A) { return State(); })},
            {"frmPrefs_Activate", Step([](A) { frmPrefs_Activate(); })},
            {"drawn", Seen([](A) {
                 std::string lines;
                 for (const auto& line : frmPrefs.Surface) {
                     lines += Show(Reals{line.X1, line.Y1, line.X2, line.Y2}) + " ";
                 }
                 return lines + "width " + Show(frmPrefs.DrawWidth);
             })},
            {"store", Step([this](A) {
                 screen.Store["Recent Files"] = {{"RecentFile1", "a"}, {"RecentFile2", "b"}};
             })},
            {"recent", Seen([](A) { return frmMDI.mnuFileArray[1].Caption; })},
        });
    }

    std::string StateAfterReading() {
        ResetApplication();
        ProgramDirectory = folder.Path.string();
        ReadSettings();
        return State();
    }

    /// What the preferences say, and what the frame's menu shows of them, in one line.
    static std::string State() {
        const auto& p = frmPrefs;
        return p.txtLineWidth.Text + Show(p.sclWidth.Value) + Show(p.DrawWidth) + " " +
               Show(p.chkShowBubbles.Value) + Show(p.chkInput.Value) +
               Show(p.chkShowToolbox.Value) + (frmMDI.mnuOptionsToolbox.Checked ? "+ " : "- ") +
               p.txtToolbox.Text + "|" + p.lbltoolboxsize.Caption + "|" + p.txtDrives.Text + "|" +
               frmMDI.mnuOptionsCurrentToolbox.Caption;
    }
};

TEST_F(SettingsTest, Table) { PlayTable("files/settings.tsv"); }

TEST_F(SettingsTest, AFileOfTheTemplateSetsNothing) {
    std::string lines;
    for (const auto line : settingsTemplate) lines += std::string(line) + "\r\n";
    WriteAll("Quorvane.ini", lines);
    const auto state = StateAfterReading();
    WriteAll("Quorvane.ini", "");
    EXPECT_EQ(state, StateAfterReading());
}

TEST_F(SettingsTest, ALongValueIsCut) {
    WriteAll("Quorvane.ini", "[Prefrences]\nDefault Toolbox=" + std::string(300, 'x'));
    StateAfterReading();
    EXPECT_EQ(frmPrefs.txtToolbox.Text, std::string(254, 'x'));
}

}  // namespace quorvane::testing
