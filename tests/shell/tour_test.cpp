// SPDX-License-Identifier: MIT
#include "shell/tour.h"

#include "support/diagram_fixture.h"

using namespace quorvane;

namespace {

using Tour = quorvane::testing::DiagramTest;

const std::string Gap = "\r\n\r\n";

TEST_F(Tour, TenTextsAndTheEleventhClickEndsIt) {
    const std::string welcome =
        "Welcome to the Quorvane Guided Tour." + Gap + "Please press this panel to continue.";
    const std::string texts[] = {
        "Quorvane is the easy and visual way to write Matlab script." + Gap +
            "Please press this panel to continue.",
        "Quorvane works by placing boxs, each of which are commands. For example, let's plot a "
        "linear vector." +
            Gap +
            "When you want to continue to the next step in this demo, please press this panel to "
            "continue.",
        "Start by generating a vector of numbers, say from 1 to 100. To do this, select the "
        "Functions menu, and from it select 'Matrix ans vector commands' and then 'Create a "
        "Linearly Spaced Vector'" +
            Gap +
            "As you see, you can determine various parameters for the vector. After you click "
            "'OK', you can place the vector's icon on the work area.",
        "If you want to plot the vector, from the Functions menu, select 'Output' and then "
        "'Matlab Plot'" +
            Gap +
            "You will be shown all your options for each plot. Fill them, select OK, and return "
            "to the work area to place this icon as well.",
        "If you want to turn this simple algorithm into Matlab Script, simply select the Execute "
        "option, and the ask the program to execute into the clipboard.",
        "After the program has finished compiling, it will notify you, and now all you need to do "
        "is click 'Paste' in your Matlab screen, and the program is there !",
        "Quorvane has many shortcuts and information options. For example, double clicking a box "
        "will give you all the information about this box.",
        "If you want to connect many arrows, click on the Arrow button at the bottom or lock the "
        "caps on your keyboard. This will tell the program to start (or end) an arrow whenever "
        "you click once on a box.",
        "Of course, there is the toolbox (which you can reorgenise for your own needs), you can "
        "define Subroutines, and much more ...",
        "I hope you enjoyed this short tour, and I hope that you will enjoy Quorvane in the "
        "future",
    };
    auto& sheet = *Documents[1];
    EXPECT_FALSE(sheet.pnlTour.Visible);
    mnuHelpTour_Click(sheet);
    EXPECT_EQ(sheet.pnlTour.Caption, welcome);
    EXPECT_TRUE(sheet.pnlTour.Visible);
    EXPECT_TRUE(sheet.mnuHelpTour.Checked);
    for (const auto& text : texts) {
        pnlTour_Click(sheet);
        EXPECT_EQ(sheet.pnlTour.Caption, text);
        EXPECT_TRUE(sheet.pnlTour.Visible) << text;
    }
    pnlTour_Click(sheet);
    EXPECT_FALSE(sheet.pnlTour.Visible);
    EXPECT_FALSE(sheet.mnuHelpTour.Checked);
    EXPECT_EQ(TourStep, 11) << "the step goes up also where nothing is left to show";
    EXPECT_EQ(DocumentStates[1].Modified, 0);
}

TEST_F(Tour, WorksheetsShareTheStepAndNotThePanel) {
    NewDocument();
    auto& first = *Documents[1];
    auto& second = *Documents[2];
    mnuHelpTour_Click(first);
    mnuHelpTour_Click(second);
    pnlTour_Click(first);
    const auto shown = first.pnlTour.Caption;
    pnlTour_Click(second);
    EXPECT_EQ(second.pnlTour.Caption.rfind("Quorvane works by", 0), 0U) << second.pnlTour.Caption;
    EXPECT_EQ(first.pnlTour.Caption, shown);

    mnuHelpTour_Click(first);
    EXPECT_FALSE(first.pnlTour.Visible);
    EXPECT_FALSE(first.mnuHelpTour.Checked);
    EXPECT_TRUE(second.pnlTour.Visible);
    EXPECT_EQ(TourStep, 2) << "hiding the panel leaves the step";

    mnuHelpTour_Click(first);
    EXPECT_EQ(first.pnlTour.Caption.rfind("Welcome", 0), 0U) << first.pnlTour.Caption;
    EXPECT_EQ(TourStep, 0);
}

}  // namespace
