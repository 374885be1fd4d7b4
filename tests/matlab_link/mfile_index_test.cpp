// SPDX-License-Identifier: MIT
#include "matlab_link/mfile_index.h"

#include "diagram/preferences.h"
#include "files/document_fixture.h"
#include "support/table_file.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

/// Remembers what the window says each time the screen is painted.
struct WatchingDesktop : ScriptedDesktop {
    void PaintNow() override { Seen += frmScanning.lblScanning.Caption + "|"; }
    std::string Seen;
};

class MFileIndexTest : public DocumentTest {
protected:
    void SetUp() override {
        DocumentTest::SetUp();
        desktop = &watching;
        std::filesystem::create_directories("program");
        std::filesystem::create_directories(drive);
        ProgramDirectory = folder / "program";
        DriveRoots = {{'C', drive + "/"}};
        frmPrefs.txtDrives.Text = "c";
    }
    /// Makes empty files, and the folders in front of them, below a folder.
    static void Make(const std::string& below, const std::string& names) {
        for (const auto& name : Split(names, '|')) {
            const auto path = below + "/" + name;
            std::filesystem::create_directories(path.substr(0, path.rfind('/')));
            if (!path.ends_with('/')) WriteAll(path, "");
        }
    }
    /// What a scan writes.
    std::string Scan() {
        DirectoryList = GrowableArray<FoundDirectory>(1);
        frmScanning_Activate();
        EXPECT_EQ(CurrentDirectory(), ProgramDirectory);
        return ReadAll(folder / "program/mfiles.txt");
    }
    /// An index where "|" stands for the line ends and "@" for the drive.
    std::string Index(const std::string& cell) const {
        std::string text;
        for (const char c : cell + "|") {
            text += c == '|' ? "\r\n" : c == '@' ? drive : std::string(1, c);
        }
        return text;
    }

    const std::string drive = folder / "drive";
    WatchingDesktop watching;
};

TEST_F(MFileIndexTest, TheIndexTellsWhatLiesOnTheDrives) {
    for (const auto& row : ReadTable("matlab_link/mfile_index.tsv")) {
        SCOPED_TRACE(row.back());
        Restart();
        frmPrefs.txtDrives.Text = row[0];
        Make(drive, row[1]);
        Make(ProgramDirectory, row[2]);
        WriteAll(folder / "program/mfiles.txt", "an older one");
        EXPECT_EQ(Scan(), Index(row[3]));
    }
}

TEST_F(MFileIndexTest, LinksAreNotFollowedAndWhatIsNoFileIsNone) {
    Make(drive, "a/f.m|a/d.m/|z/");
    std::filesystem::create_directory_symlink("..", drive + "/a/loop");
    std::filesystem::create_symlink("f.m", drive + "/a/to_file.m");
    std::filesystem::create_symlink("d.m", drive + "/a/to_folder.m");
    std::filesystem::create_symlink("itself.m", drive + "/a/itself.m");
    EXPECT_EQ(Scan(), Index("[Directories]|a;@/a|[Files]|@/a/f.m|@/a/to_file.m"));
}

TEST_F(MFileIndexTest, TheWindowTellsHowFarItIsAlsoWhereNothingCanBeWritten) {
    Make(drive, "a/f.m");
    frmPrefs.txtDrives.Text = "aC";
    frmScanning.Form.Visible = true;
    std::filesystem::create_directory(folder / "program/mfiles.txt");
    frmScanning_Activate();
    EXPECT_EQ(watching.Seen,
              "Now scanning drive A:|Now scanning drive C:|Now writing directories.|"
              "Now writing file names.|");
    EXPECT_FALSE(frmScanning.Form.Visible);
    EXPECT_EQ(CategoryTable.UpperBound(), 2);
    EXPECT_EQ(CategoryTable[2].name + CategoryTable[2].path, "a" + drive + "/a");
}

}  // namespace
