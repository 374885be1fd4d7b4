// SPDX-License-Identifier: MIT
#include "shell/help.h"
#include "shell/about.h"
#include "shell/forms.h"
#include "shell/help_pages.h"

#include <algorithm>
#include <regex>
#include <set>

#include "compile/run_compile.h"
#include "files/work_folder.h"
#include "support/diagram_fixture.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

using Texts = std::vector<std::string>;

struct FailingViewer : ScriptedDesktop {
    void Help(const std::string&, int) override { throw RuntimeError(7, "Out of memory"); }
};

using Help = DiagramTest;

TEST_F(Help, AFailingViewerIsReportedByTheWorksheetsSearchAlone) {
    FailingViewer failing;
    desktop = &failing;
    mnuHelpSearch_Click(Sheet());
    EXPECT_THROW(mnuHelpSearch_Click(), RuntimeError);
    EXPECT_THROW(mnuHelpContents_Click(), RuntimeError);
    ASSERT_EQ(failing.Messages.size(), 1U);
    EXPECT_EQ(failing.Messages[0].Text, "Out of memory");
}

TEST_F(Help, TheLineOfAboutRunsInARing) {
    screen.Forms["frmAbout"] = [&] {
        const auto line = frmAbout.lblName.Caption;
        ASSERT_GT(line.size(), 2U);
        frmAbout_Timer1_Timer();
        EXPECT_EQ(frmAbout.lblName.Caption, line.substr(1) + line[0]);
        for (std::size_t tick = 2; tick <= line.size(); ++tick) frmAbout_Timer1_Timer();
        EXPECT_EQ(frmAbout.lblName.Caption, line);
        frmAbout_cmdOK_Click();
    };
    screen.Forms["frmDisclaimer"] = [] {
        EXPECT_NE(frmDisclaimer.Label1.Caption, "");
        frmDisclaimer_cmdOK_Click();
    };
    mnuHelpAbout_Click();
    mnuHelpDisclaimer_Click();
    EXPECT_FALSE(frmAbout.Form.Loaded || frmDisclaimer.Form.Loaded);
    EXPECT_EQ(screen.FormsShown, (Texts{"frmAbout", "frmDisclaimer"}));
}

const std::filesystem::path ManualFolder =
    std::filesystem::path(QUORVANE_SOURCE_DIR) / "resources" / "help";

/// The manual with blanks for its line ends, so that no wrapped line parts a word from the next.
std::string ManualText() {
    auto text = ReadAll(ManualFolder / "QUORVANE.HLP");
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

std::set<std::string> Found(const std::string& text, const char* pattern) {
    const std::regex expression(pattern);
    std::set<std::string> found;
    for (std::sregex_iterator at(text.begin(), text.end(), expression), end; at != end; ++at) {
        found.insert(at->str(1));
    }
    return found;
}

TEST(Manual, LinksAndPicturesLeadSomewhere) {
    const auto text = ManualText();
    const auto anchors = Found(text, R"re( (?:id|name)="(\w+)")re");
    ASSERT_GT(anchors.size(), 50U) << "the manual was not read";
    for (const auto& link : Found(text, R"re(href="([^"]*)")re")) {
        EXPECT_TRUE(link[0] == '#' && anchors.contains(link.substr(1))) << link;
    }
    const auto icons = std::filesystem::path(QUORVANE_SOURCE_DIR) / "resources";
    for (const auto& picture : Found(text, R"re(src="([^"]*)")re")) {
        const bool built = picture.starts_with(":/");
        const auto file = built ? icons / picture.substr(2) : ManualFolder / picture;
        EXPECT_TRUE(std::filesystem::exists(file)) << picture;
    }
}

/// Beside each diagram of the manual stands its script, as the diagram in the picture gives it.
TEST(Manual, DiagramsGiveTheirScripts) {
    const auto text = ReadAll(ManualFolder / "QUORVANE.HLP");
    const auto diagrams = std::filesystem::path(QUORVANE_SOURCE_DIR) / "tools/pictures/diagrams";
    const WorkFolder folder;
    WriteAll(folder / "answers", "text 7\n");
    for (const auto& entry : std::filesystem::directory_iterator(diagrams)) {
        const auto name = entry.path().stem().string();
        const auto run =
            RunCompile(folder.Path, {"--answers", "answers", entry.path().string()}).Output;
        const auto picture = "<p><img src=\"img/" + name + ".svg\"></p>\n<pre>";
        auto told = Replaced(Replaced(Replaced(run, "\r", ""), "<", "&lt;"), ">", "&gt;");
        if (told.ends_with('\n')) told.pop_back();
        EXPECT_NE(text.find(picture + told + "</pre>"), std::string::npos) << name << "\n" << told;
    }
}

/// README and docs/ lead to pictures and pages that are there.
TEST(Documents, LinksAndPicturesLeadSomewhere) {
    const std::filesystem::path root = QUORVANE_SOURCE_DIR;
    std::vector<std::filesystem::path> pages = {root / "README.md", root / "CONTRIBUTING.md"};
    for (const auto& entry : std::filesystem::directory_iterator(root / "docs")) {
        if (entry.path().extension() == ".md") pages.push_back(entry.path());
    }
    std::size_t links = 0;
    for (const auto& page : pages) {
        for (const auto& link : Found(ReadAll(page), R"re(\]\(([^)#]+))re")) {
            if (link.starts_with("http")) continue;
            EXPECT_TRUE(std::filesystem::exists(page.parent_path() / link)) << page << " " << link;
            ++links;
        }
    }
    EXPECT_GT(links, 20U);
}

/// F1 finds a page for each dialog, panel and type of box.
TEST(Manual, HasAPageForEachDialogAndBox) {
    const auto anchors = Found(ManualText(), R"re( (?:id|name)="(\w+)")re");
    Texts windows = {"main",        "frmMDI",     "Picture1",  "boxesPanel",
                     "scriptPanel", "quickPopup", "frmMatrix", "frmPageView",
                     "frmPictures", "pnlTour",    "welcome",   "frmTextResults"};
    for (const auto& form : Forms()) windows.push_back(form.Name);
    for (const auto& window : windows) {
        if (window == "frmAbout" || window == "frmDisclaimer") continue;
        EXPECT_TRUE(anchors.contains(std::string(HelpPageOf(window)))) << window;
    }
    EXPECT_EQ(HelpPageOf(""), "");
    EXPECT_EQ(HelpPageOfType("Plot Output"), "plot");
    EXPECT_EQ(HelpPageOfType("Unwrap"), "complex");
    EXPECT_EQ(HelpPageOfType("my Subroutine"), "subroutine");
    EXPECT_EQ(HelpPageOfType("unheard of"), "boxes");
}

}  // namespace
