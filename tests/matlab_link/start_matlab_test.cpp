// SPDX-License-Identifier: MIT
#include "matlab_link/start_matlab.h"
#include "matlab_link/directory_dialog.h"

#include "diagram/preferences.h"
#include "support/step_test.h"

namespace quorvane::testing {

/// Plays the table of the dialog that asks for a folder, and of the command that starts MATLAB.
class StartMatlabTest : public StepTest {
protected:
    StartMatlabTest() {
        Know({
            {"go", Step([this](A a) {
                 frmDirectory.Dir1.Text = InFolder(a.Text);
                 frmDirectory_Dir1_Change();
             })},
            {"type", Step([this](A a) {
                 frmDirectory.txtPath.Text = InFolder(a.Text);
                 frmDirectory_txtPath_Change();
             })},
            {"pick", Step([](A a) {
                 frmDirectory.lstEngines.ListIndex = a[0];
                 frmDirectory_lstEngines_Click();
             })},
            {"picked", Global(frmDirectory.lstEngines.ListIndex)},
            {"offered", Seen([this](A) {
                 return Replaced(Show(frmDirectory.lstEngines.List), InFolder("$"), "$");
             })},
            {"places", Step([this](A a) {
                 const auto both = Split(a.Text, ' ');
                 screen.Places = {{InFolder(both.at(0))}, {InFolder(both.at(1))}};
             })},
            {"gone", Step([](A) { std::filesystem::remove_all(CurrentDirectory()); })},
            {"load", Step([](A) { frmDirectory_Load(); })},
            {"path", Seen([this](A) { return Here(frmDirectory.Dir1.Text); })},
            {"director", Seen([this](A) { return Here(frmDirectory.director.Text); })},
            {"fails", Global(screen.ProcessesFail)},
            {"started", Seen([this](A) { return Here(Taken(screen.Processes)); })},
        });
    }
    void SetUp() override {
        StepTest::SetUp();
        for (const char* name : {"program", "home/bin", "home/a", "home/b", "home/.hidden"}) {
            std::filesystem::create_directories(name);
        }
        std::filesystem::create_directory_symlink("..", "home/link");
        ProgramDirectory = InFolder("$/program");
    }
};

TEST_F(StartMatlabTest, Table) { PlayTable("matlab_link/start_matlab.tsv"); }

}  // namespace quorvane::testing
