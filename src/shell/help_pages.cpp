// SPDX-License-Identifier: MIT
#include "shell/help_pages.h"

#include "catalogue/box_commands.h"
#include "catalogue/option_lists.h"

namespace quorvane {

namespace {

struct PageOfWindow {
    std::string_view Window, Page;
};
// clang-format off
// Windows that no command of a box opens.
constexpr PageOfWindow pagesOfWindows[] = {
    {"Picture1", "bar"},
    {"boxesPanel", "boxespanel"},
    {"frmConfigToolbox", "configtoolbox"},
    {"frmDirectory", "matlab"},
    {"frmInfo", "info"},
    {"frmMDI", "window"},
    {"frmMatlab", "matlabfunction"},
    {"frmMatrix", "matrixgrid"},
    {"frmPageView", "pageview"},
    {"frmPictures", "toolbox"},
    {"frmPrefs", "prefs"},
    {"frmScanning", "browser"},
    {"frmSubs", "subroutine"},
    {"frmTextResults", "matlab"},
    {"main", "worksheet"},
    {"pnlTour", "start"},
    {"quickPopup", "find"},
    {"recovery", "recovery"},
    {"scriptPanel", "scriptpanel"},
    {"welcome", "first"},
};
// clang-format on

}  // namespace

std::string_view HelpPageOf(std::string_view window) {
    for (const auto& row : pagesOfWindows) {
        if (row.Window == window) return row.Page;
    }
    const auto* command = window.empty() ? nullptr : FindCommandOfDialog(window);
    return command ? command->Page : "";
}

std::string_view HelpPageOfType(std::string_view type) {
    for (const auto& command : boxCommands) {
        if (MakesBox(command) && command.BoxType == type) return command.Page;
    }
    for (const auto& list : optionLists) {
        for (const auto& option : list.Options) {
            if (option.BoxType == type) return HelpPageOf(list.Dialog);
        }
    }
    return type.find("Subroutine") == std::string_view::npos ? "boxes" : "subroutine";
}

}  // namespace quorvane
