// SPDX-License-Identifier: MIT
#include "matlab_link/command_browser.h"

#include "commands/command_browser_door.h"
#include "commands/function_dialogs.h"
#include "diagram/preferences.h"
#include "files/document_fixture.h"
#include "matlab_link/mfile_index.h"
#include "support/table_file.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

const std::string All = "zzz All M files zzz";

std::string Joined(const std::vector<std::string>& texts) {
    std::string all;
    for (const auto& text : texts) all += (all.empty() ? "" : "|") + text;
    return all;
}

class CommandBrowser : public DocumentTest {
protected:
    void SetUp() override {
        DocumentTest::SetUp();
        ProgramDirectory = folder.Path.string();
        DriveRoots = {{'C', folder.Path.string() + "/"}};
        screen.Forms["frmScanning"] = frmScanning_Activate;
    }
    static void MakeFiles(const std::string& below, std::initializer_list<const char*> names) {
        std::filesystem::create_directory(below);
        for (const std::string name : names) WriteAll(below + "/" + name, "");
    }
    static std::string Functions(const std::string& category) {
        frmMatlab.cmbCategory.Text = category;
        frmMatlab_cmbCategory_Click();
        return Joined(frmMatlab.lstFunc.List);
    }
};

TEST_F(CommandBrowser, TheIndexIsListedByCategories) {
    for (const auto& row : ReadTable("matlab_link/command_browser.tsv")) {
        SCOPED_TRACE(row.back());
        Restart();
        WriteAll("mfiles.txt", row[0]);
        frmMatlab_Load();
        EXPECT_EQ(Joined(frmMatlab.cmbCategory.List), row[1]);
        EXPECT_EQ(Functions(row[2]), row[3]);
        EXPECT_TRUE(screen.FormsShown.empty());
    }
}

TEST_F(CommandBrowser, TheHelpIsTheFirstCommentOfTheFile) {
    frmMatlab.lstFunc.List = {"f.m"};
    for (const auto& row : ReadTable("matlab_link/help_texts.tsv")) {
        SCOPED_TRACE(row.back());
        WriteAll("f.m", row[0]);
        frmMatlab.lstFunc.ListIndex = 0;
        frmMatlab.lblHelp.Caption = "another one";
        frmMatlab_lstFunc_Click();
        EXPECT_EQ(frmMatlab.lblHelp.Caption, row[1]);
    }
    EXPECT_TRUE(screen.Messages.empty());
}

TEST_F(CommandBrowser, AnIndexThatIsMissingOrCutOffStartsAScan) {
    MakeFiles("a", {"f.m", "g.m", "h.m"});
    for (const std::string index : {"none", "", "[Directories]\r\na;/m/a\r\n"}) {
        SCOPED_TRACE(index);
        CategoryTable = GrowableArray<CategoryRecord>(1);
        if (index != "none") WriteAll("mfiles.txt", index);
        screen.FormsShown.clear();
        frmMatlab_Load();
        EXPECT_EQ(Joined(screen.FormsShown), "frmScanning");
        EXPECT_EQ(Joined(frmMatlab.cmbCategory.List), "A|" + All);
        EXPECT_EQ(Functions("A"), folder / "a/f.m" + "|" + folder / "a/g.m");
    }
}

TEST_F(CommandBrowser, ARescanListsTheChosenCategoryAnew) {
    WriteAll("mfiles.txt",
             "[D]\nold;" + folder / "old" + "\n[Files]\n" + folder / "old/gone.m\nlast");
    MakeFiles("new", {"f.m", "g.m"});
    MakeFiles("old", {"h.m", "last.m"});
    frmMatlab_Load();
    EXPECT_EQ(Functions("Old"), folder / "old/gone.m");
    frmMatlab.lblHelp.Caption = "help";
    for (const auto answer : {Answer::No, Answer::Yes}) {
        screen.MessageAnswers = {answer};
        frmMatlab.lstFunc.ListIndex = 0;
        frmMatlab_lstFunc_Click();
        EXPECT_EQ(screen.Messages.back().Text,
                  "File not found. Maybe the drives should be Rescan ?");
        EXPECT_EQ(Joined(frmMatlab.lstFunc.List),
                  folder / (answer == Answer::Yes ? "old/h.m" : "old/gone.m"));
        EXPECT_EQ(frmMatlab.cmbCategory.Text, "Old");
        EXPECT_EQ(frmMatlab.lblHelp.Caption.empty(), answer == Answer::Yes);
    }
    EXPECT_EQ(Joined(screen.FormsShown), "frmScanning");
    EXPECT_EQ(Joined(frmMatlab.cmbCategory.List), "Old|" + All);
    frmMatlab_Load();
    EXPECT_EQ(Joined(frmMatlab.cmbCategory.List), "New|Old|" + All);
    EXPECT_EQ(Functions("New"), folder / "new/f.m" + "|" + folder / "new/g.m");
}

TEST_F(CommandBrowser, TheNameGoesToWhoeverOpenedTheDialog) {
    WriteAll("mfiles.txt", "[D]\n[Files]\n/a/Sin.m\n\\Foo.M\nx\nlast");
    int entry = 0;
    screen.Forms["frmMatlab"] = [&] {
        EXPECT_EQ(frmFunc.Form.MousePointer + frmMatlabFunction.Form.MousePointer, 0);
        Functions(All);
        frmMatlab.lstFunc.ListIndex = entry;
        frmMatlab_cmdOK_Click();
        EXPECT_FALSE(frmMatlab.Form.Loaded);
    };
    const auto picked = [&](const char* caller, int chosen) {
        entry = chosen;
        frmMatlabFunction.txtFunc.Text = frmFunc.txtFunc.Text = "2*";
        OpenCommandBrowser(caller);
        return frmMatlabFunction.txtFunc.Text + "|" + frmFunc.txtFunc.Text;
    };
    EXPECT_EQ(picked("mat", 0), "Sin|2*");
    EXPECT_EQ(picked("mat", 1), "Foo|2*");
    EXPECT_EQ(picked("mat", 2), "|2*") << "no longer than .m";
    EXPECT_EQ(picked("mat", -1), "|2*");
    EXPECT_EQ(picked("func", 0), "2*|2*sin");
    EXPECT_EQ(picked("func", -1), "2*|2*");
    frmFunc = {};
    frmMatlabFunction = {};
}

}  // namespace
