// SPDX-License-Identifier: MIT
#include "shell/tour.h"

#include <algorithm>
#include <iterator>

#include "platform/numbers.h"

namespace quorvane {

std::int16_t TourStep = 0;

namespace {

const char* const Welcome =
    "Welcome to the Quorvane Guided Tour.\r\n\r\n"
    "Please press this panel to continue.";

/// The texts, by step from 0.
const char* const TourTexts[] = {
    "Quorvane is the easy and visual way to write Matlab script.\r\n\r\n"
    "Please press this panel to continue.",

    "Quorvane works by placing boxs, each of which are commands. For example, let's plot a linear "
    "vector.\r\n\r\n"
    "When you want to continue to the next step in this demo, please press this panel to continue.",

    "Start by generating a vector of numbers, say from 1 to 100. To do this, select the Functions "
    "menu, and from it select 'Matrix ans vector commands' and then 'Create a Linearly Spaced "
    "Vector'\r\n\r\n"
    "As you see, you can determine various parameters for the vector. After you click 'OK', you "
    "can place the vector's icon on the work area.",

    "If you want to plot the vector, from the Functions menu, select 'Output' and then 'Matlab "
    "Plot'\r\n\r\n"
    "You will be shown all your options for each plot. Fill them, select OK, and return to the "
    "work area to place this icon as well.",

    "If you want to turn this simple algorithm into Matlab Script, simply select the Execute "
    "option, and the ask the program to execute into the clipboard.",

    "After the program has finished compiling, it will notify you, and now all you need to do is "
    "click 'Paste' in your Matlab screen, and the program is there !",

    "Quorvane has many shortcuts and information options. For example, double clicking a box will "
    "give you all the information about this box.",

    "If you want to connect many arrows, click on the Arrow button at the bottom or lock the caps "
    "on your keyboard. This will tell the program to start (or end) an arrow whenever you click "
    "once on a box.",

    "Of course, there is the toolbox (which you can reorgenise for your own needs), you can define "
    "Subroutines, and much more ...",

    "I hope you enjoyed this short tour, and I hope that you will enjoy Quorvane in the future",
};

void EndTour(Worksheet& sheet) {
    sheet.mnuHelpTour.Checked = false;
    sheet.pnlTour.Visible = false;
}

}  // namespace

void mnuHelpTour_Click(Worksheet& sheet) {
    if (sheet.mnuHelpTour.Checked) {
        EndTour(sheet);
        return;
    }
    TourStep = 0;
    sheet.pnlTour = {.Caption = Welcome, .Visible = true};
    sheet.mnuHelpTour.Checked = true;
}

void pnlTour_Click(Worksheet& sheet) {
    if (TourStep < static_cast<int>(std::size(TourTexts))) {
        sheet.pnlTour.Caption = TourTexts[TourStep];
    } else {
        EndTour(sheet);
    }
    TourStep = ToInt16(TourStep + 1);
}

std::string TourCount(const TourPanel& panel) {
    const auto* const text = std::find(std::begin(TourTexts), std::end(TourTexts), panel.Caption);
    if (text == std::end(TourTexts)) return "";
    return NumberText(static_cast<int>(text - TourTexts) + 1) + " of " +
           NumberText(static_cast<int>(std::size(TourTexts)));
}

}  // namespace quorvane
