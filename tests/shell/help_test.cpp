// SPDX-License-Identifier: MIT
#include "shell/help.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include "catalogue/box_commands.h"
#include "diagram/preferences.h"
#include "support/diagram_fixture.h"

using namespace quorvane;

namespace {

using Texts = std::vector<std::string>;

class Help : public quorvane::testing::DiagramTest {
protected:
    void SetUp() override {
        DiagramTest::SetUp();
        ProgramDirectory = "/home/ann/quorvane";
    }
    void TearDown() override {
        HelpFile = "QUORVANE.HLP";
        DiagramTest::TearDown();
    }
    Texts MessageTexts() const {
        Texts texts;
        for (const auto& message : screen.Messages) texts.push_back(message.Text);
        return texts;
    }
};

TEST_F(Help, CommandsAreHandedToTheViewer) {
    mnuHelpContents_Click();
    mnuHelpHowTo_Click();
    mnuHelpSearch_Click();
    mnuHelpSearch_Click(*Documents[1]);
    const std::string manual = "/home/ann/quorvane/QUORVANE.HLP";
    EXPECT_EQ(screen.HelpCommands,
              (Texts{manual + "|3", manual + "|4", manual + "|261", manual + "|261"}));
    EXPECT_TRUE(screen.Messages.empty());
}

TEST_F(Help, OnlyAWorksheetSearchesTheConfiguredFile) {
    HelpFile = "";
    mnuHelpSearch_Click(*Documents[1]);
    EXPECT_TRUE(screen.HelpCommands.empty());
    EXPECT_EQ(MessageTexts(), Texts{"Unable to display Help Contents. There is no Help associated "
                                    "with this project."});
    mnuHelpSearch_Click();
    HelpFile = "/usr/share/other.hlp";
    mnuHelpSearch_Click(*Documents[1]);
    EXPECT_EQ(screen.HelpCommands,
              (Texts{"/home/ann/quorvane/QUORVANE.HLP|261", "/usr/share/other.hlp|261"}));
    EXPECT_EQ(screen.Messages.size(), 1U);
}

TEST_F(Help, AFailingViewerIsReportedByTheWorksheetsSearchAlone) {
    struct FailingViewer : quorvane::testing::ScriptedDesktop {
        void Help(const std::string&, int) override { throw RuntimeError(7, "Out of memory"); }
    } failing;
    desktop = &failing;
    mnuHelpSearch_Click(*Documents[1]);
    ASSERT_EQ(failing.Messages.size(), 1U);
    EXPECT_EQ(failing.Messages[0].Text, "Out of memory");
    EXPECT_THROW(mnuHelpSearch_Click(), RuntimeError);
    EXPECT_THROW(mnuHelpContents_Click(), RuntimeError);
    EXPECT_EQ(failing.Messages.size(), 1U);
}

TEST_F(Help, TheLineOfAboutRunsInARing) {
    bool seen = false;
    screen.Forms["frmAbout"] = [&] {
        seen = true;
        EXPECT_EQ(frmAbout.Label1.Caption, "Quorvane");
        const auto line = frmAbout.lblName.Caption;
        ASSERT_GT(line.size(), 2U);
        EXPECT_EQ(line.back(), ' ');
        frmAbout_Timer1_Timer();
        EXPECT_EQ(frmAbout.lblName.Caption, line.substr(1) + line[0]);
        for (std::size_t tick = 2; tick <= line.size(); ++tick) {
            EXPECT_NE(frmAbout.lblName.Caption, line) << tick;
            frmAbout_Timer1_Timer();
        }
        EXPECT_EQ(frmAbout.lblName.Caption, line);
        frmAbout_Timer1_Timer();
        frmAbout.Form.Visible = true;
        frmAbout_cmdOK_Click();
        EXPECT_FALSE(frmAbout.Form.Visible);
    };
    mnuHelpAbout_Click();
    EXPECT_TRUE(seen);
    EXPECT_FALSE(frmAbout.Form.Loaded);
    mnuHelpAbout_Click();
    EXPECT_EQ(screen.FormsShown, (Texts{"frmAbout", "frmAbout"})) << "it begins anew each time";
}

TEST_F(Help, TheDisclaimerGivesTheTerms) {
    screen.Forms["frmDisclaimer"] = [] {
        const auto& terms = frmDisclaimer.Label1.Caption;
        for (const auto* word : {"use", "pass it on", "unchanged", "without a warranty"}) {
            EXPECT_NE(terms.find(word), std::string::npos) << word;
        }
        frmDisclaimer.Form.Visible = true;
        frmDisclaimer_cmdOK_Click();
        EXPECT_FALSE(frmDisclaimer.Form.Visible);
    };
    mnuHelpDisclaimer_Click();
    EXPECT_EQ(screen.FormsShown, Texts{"frmDisclaimer"});
    EXPECT_FALSE(frmDisclaimer.Form.Loaded);
}

const std::filesystem::path ManualFolder =
    std::filesystem::path(QUORVANE_SOURCE_DIR) / "resources" / "help";

/// The manual with blanks for its line ends, so that no wrapped line parts a word from the next.
std::string ManualText() {
    std::ifstream file(ManualFolder / "QUORVANE.HLP", std::ios::binary);
    std::string text(std::istreambuf_iterator<char>(file), {});
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
        const auto file =
            picture.starts_with(":/") ? icons / picture.substr(2) : ManualFolder / picture;
        EXPECT_TRUE(std::filesystem::exists(file)) << picture;
    }
}

TEST(Manual, NamesEveryCommandThatMakesABox) {
    const auto text = ManualText();
    for (const auto& command : boxCommands) {
        std::string caption(command.Caption);
        std::erase(caption, '&');
        caption.erase(caption.find_last_not_of(". ") + 1);
        EXPECT_NE(text.find(caption), std::string::npos) << caption;
    }
}

}  // namespace
