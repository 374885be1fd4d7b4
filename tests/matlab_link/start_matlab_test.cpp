// SPDX-License-Identifier: MIT
#include "matlab_link/start_matlab.h"

#include "diagram/preferences.h"
#include "support/step_test.h"

namespace quorvane::testing {

/// Plays the table of the dialog that asks for a folder, and of the command that starts MATLAB.
class StartMatlabTest : public StepTest {
protected:
    StartMatlabTest() {
        Words some = {
            {"go", Step([](A a) {
                 frmDirectory.Dir1.Text = a.Text.starts_with('$') ? InFolder(a.Text) : a.Text;
                 frmDirectory_Dir1_Change();
             })},
            {"enter", Step([](A a) { ChangeDirectory(InFolder(a.Text)); })},
            {"make", Step([](A a) { std::filesystem::create_directory(a.Text); })},
            {"gone", Step([](A) { std::filesystem::remove_all(CurrentDirectory()); })},
            {"load", Step([](A) { frmDirectory_Load(); })},
            {"path", Seen([](A) { return Here(frmDirectory.Dir1.Text); })},
            {"director", Seen([](A) { return Here(frmDirectory.director.Text); })},
            {"where", Seen([](A) { return Here(CurrentDirectory()); })},
            {"folders", Seen([](A) { return frmDirectory.Dir1.List; })},
            {"drives", Seen([](A) { return frmDirectory.Drive1.List; })},
            {"fails", Global(screen.ProcessesFail)},
            {"started", Seen([this](A) { return Here(Taken(screen.Processes)); })},
        };
        words.merge(some);
    }
    void SetUp() override {
        StepTest::SetUp();
        root = folder.Path.string();
        for (const char* name : {"program", "home/bin", "home/a", "home/b", "home/.hidden"}) {
            std::filesystem::create_directories(name);
        }
        std::filesystem::create_directory_symlink("..", "home/link");
        ProgramDirectory = InFolder("$/program");
    }

private:
    static std::string InFolder(std::string path) { return path.replace(0, 1, root); }
    static std::string Here(std::string path) {
        return path.starts_with(root) ? path.replace(0, root.size(), "$") : path;
    }

    static inline std::string root;  ///< "$" in the table
};

TEST_F(StartMatlabTest, Table) { PlayTable("matlab_link/start_matlab.tsv"); }

}  // namespace quorvane::testing
