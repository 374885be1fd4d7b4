// SPDX-License-Identifier: MIT
#include "shell/menus.h"

#include <iterator>

#include "catalogue/box_commands.h"
#include "commands/run_command.h"
#include "diagram/box_info.h"
#include "diagram/connections.h"
#include "diagram/page_view.h"
#include "diagram/selection.h"
#include "files/close_document.h"
#include "files/document_file.h"
#include "generator/send_to_matlab.h"
#include "generator/write_script.h"
#include "matlab_link/start_matlab.h"
#include "shell/about.h"
#include "shell/frame.h"
#include "shell/help.h"
#include "shell/preferences_command.h"
#include "shell/tour.h"
#include "toolbox/toolbox.h"
#include "toolbox/toolbox_config.h"

namespace quorvane {

namespace {

/// A command of the frame in a worksheet's menu.
template <void (*Command)()>
void OfFrame(Worksheet&) {
    Command();
}

/// The recent files: a worksheet's entry opens what its own menu shows.
template <int Entry>
void mnuFileArray_Click(Worksheet& sheet) {
    LoadDocument(sheet.mnuFileArray[Entry].Caption);
}

template <int Entry>
void mnuFileArray_Click() {
    LoadDocument(frmMDI.mnuFileArray[Entry].Caption);
}

// clang-format off
// Depth, control, index, caption, shortcut, command. The commands that make boxes follow "mnus4".
constexpr DocumentMenuRow ownRows[] = {
    {0, "mnuFile", -1, "&File", ""},
    {1, "mnuFileNew", -1, "&New ...", "Ctrl+N", OfFrame<mnuFileNew_Click>},
    {1, "mnuFileLoad", -1, "&Open File ...", "Ctrl+O", OfFrame<mnuFileOpen_Click>},
    {1, "mnuFileClose", -1, "&Close", "", mnuFileClose_Click},
    {1, "mnus12", -1, "-", ""},
    {1, "mnuFileSaveFile", -1, "&Save File", "Ctrl+S", mnuFileSaveFile_Click},
    {1, "mnuFileSave", -1, "Save &As ...", "", mnuFileSave_Click},
    {1, "mnus9", -1, "-", ""},
    {1, "mnuFileStartMatlab", -1, "Start Matlab", "", OfFrame<mnuFileStartMatlab_Click>},
    {1, "mnus10", -1, "-", ""},
    {1, "mnuExit", -1, "&Exit", "", OfFrame<mnuExit_Click>},
    {1, "mnuFileArray", 0, "-", ""},
    {1, "mnuFileArray", 1, "", "", mnuFileArray_Click<1>},
    {1, "mnuFileArray", 2, "", "", mnuFileArray_Click<2>},
    {1, "mnuFileArray", 3, "", "", mnuFileArray_Click<3>},
    {1, "mnuFileArray", 4, "", "", mnuFileArray_Click<4>},
    {0, "mnuEdit", -1, "&Edit", ""},
    {1, "mnuEditMove", -1, "&Move boxes", "Ctrl+M", mnuEditMove_Click},
    {1, "mnueditcopy", -1, "&Copy boxes", "Ctrl+C", mnueditcopy_Click},
    {1, "mnuEditClear", -1, "C&lear Boxes", "Ctrl+D", mnuEditClear_Click},
    {1, "mnus8", -1, "-", ""},
    {1, "mnuEditRedraw", -1, "&Redraw Arrows", "Ctrl+R", mnuEditRedraw_Click},
    {1, "mnuEditLineColor", -1, "Change &Line Color", "Ctrl+L", mnuEditLineColor_Click},
    {0, "mnuFunc", -1, "Fu&nctions", ""},
    {1, "mnuArrow", -1, "&Arrow", "", mnuArrow_Click},
    {1, "mnuMultipleArrows", -1, "&Multiple Arrows", "", mnuMultipleArrows_Click},
    {1, "mnus4", -1, "-", ""},
    {0, "mnuEXE", -1, "&Execute", ""},
    {1, "mnuExeDDE", -1, "Write to &ClipBoard", "", mnuExeDDE_Click},
    {1, "mnuExeFile", -1, "&Write to file", "", mnuExeFile_Click},
    {1, "mnuEXEMatlab", -1, "&Execute to Matlab", "", mnuEXEMatlab_Click},
    {0, "mnuView", -1, "&View", ""},
    {1, "mnuPageView", -1, "&Page View", "", mnuPageView_Click},
    {0, "mnuOptions", -1, "&Options", ""},
    {1, "mnuOptionsToolbox", -1, "Show &Toolbox", "", mnuOptionsToolbox_Click},
    {1, "mnuOptionsConfigureToolbox", -1, "&Configure toolbox ...", "", mnuOptionsConfigureToolbox_Click},
    {1, "mnuOptionsCurrentToolbox", -1, "C&urrent Toolbox:default.tlb", "", mnuOptionsCurrentToolbox_Click},
    {1, "mnus11", -1, "-", ""},
    {1, "mnuOptionsBubbleShow", -1, "&Show Identification Bubble", "", mnuOptionsBubbleShow_Click},
    {1, "mnuOptionsPrefs", -1, "&Prefrences ...", "", mnuOptionsPrefs_Click},
    {0, "mnuWindows", -1, "&Windows", ""},
    {1, "mnuWindowsCascade", -1, "&Cascade", "", OfFrame<mnuWindowsCascade_Click>},
    {1, "mnuWindowsTile", -1, "&Tile", "", OfFrame<mnuWindowsTile_Click>},
    {1, "mnuWindowsArrange", -1, "&Arrange", "", OfFrame<mnuWindowsArrange_Click>},
    {0, "mnuHelp", -1, "&Help", ""},
    {1, "mnuHelpContents", -1, "&Contents", "", OfFrame<mnuHelpContents_Click>},
    {1, "mnuHelpSearch", -1, "&Search For Help On ...", "", mnuHelpSearch_Click},
    {1, "mnuHelpHowTo", -1, "&How to Use Help", "", OfFrame<mnuHelpHowTo_Click>},
    {1, "mnus19", -1, "-", ""},
    {1, "mnuHelpTour", -1, "&Guided Tour", "", mnuHelpTour_Click},
    {1, "mnus20", -1, "-", ""},
    {1, "mnuHelpAbout", -1, "&About...", "", OfFrame<mnuHelpAbout_Click>},
    {1, "mnuHelpDisclaimer", -1, "&Disclaimer...", "", OfFrame<mnuHelpDisclaimer_Click>},
};

constexpr FrameMenuRow frameRows[] = {
    {0, "mnuFile", -1, "&File", ""},
    {1, "mnuFileNew", -1, "&New ...", "Ctrl+N", mnuFileNew_Click},
    {1, "mnuFileOpen", -1, "&Open...", "Ctrl+O", mnuFileOpen_Click},
    {1, "mnuFiless", -1, "-", ""},
    {1, "mnuFileExit", -1, "&Exit", "", mnuFileExit_Click},
    {1, "mnuFileArray", 0, "-", ""},
    {1, "mnuFileArray", 1, "", "", mnuFileArray_Click<1>},
    {1, "mnuFileArray", 2, "", "", mnuFileArray_Click<2>},
    {1, "mnuFileArray", 3, "", "", mnuFileArray_Click<3>},
    {1, "mnuFileArray", 4, "", "", mnuFileArray_Click<4>},
    {0, "mnuFileOptions", -1, "&Options", ""},
    {1, "mnuOptionsToolbox", -1, "Show Toolbox", "", mnuOptionsToolbox_Click},
    {1, "mnuOptionsCurrentToolbox", -1, "Current Toolbox: default.tlb", "", mnuOptionsCurrentToolbox_Click},
    {0, "mnuHelp", -1, "&Help", ""},
    {1, "mnuHelpContents", -1, "&Contents", "", mnuHelpContents_Click},
    {1, "mnuHelpSearch", -1, "&Search For Help On ...", "", mnuHelpSearch_Click},
    {1, "mnuHelpHowTo", -1, "&How to Use Help", "", mnuHelpHowTo_Click},
    {1, "mnus1", -1, "-", ""},
    {1, "mnuHelpAbout", -1, "About Quorvane ...", "", mnuHelpAbout_Click},
    {1, "mnuHelpDisclaimer", -1, "&Disclaimer...", "", mnuHelpDisclaimer_Click},
};
// clang-format on

std::vector<DocumentMenuRow> WithBoxCommands() {
    std::vector<DocumentMenuRow> rows;
    for (const auto& row : ownRows) {
        rows.push_back(row);
        if (row.Control != "mnus4") continue;
        for (const auto& box : boxCommands) {
            rows.push_back({box.Depth, box.Control, -1, box.Caption, ""});
        }
    }
    return rows;
}

}  // namespace

const std::vector<DocumentMenuRow> documentMenu = WithBoxCommands();
const std::vector<FrameMenuRow> frameMenu(std::begin(frameRows), std::end(frameRows));

bool HasCommand(const DocumentMenuRow& row) { return row.Command || FindBoxCommand(row.Control); }

void RunMenuCommand(const DocumentMenuRow& row, Worksheet& sheet) {
    if (row.Command) {
        row.Command(sheet);
    } else {
        RunBoxCommand(sheet, row.Control);
    }
}

std::vector<QuickRow> MenuEntries() {
    std::vector<QuickRow> entries;
    std::string menu;
    for (const auto& row : documentMenu) {
        if (row.Depth == 0) menu = PlainCaption(row.Caption);
        // The recent files have no captions of their own.
        if (!row.Command || row.Index >= 0) continue;
        entries.push_back(
            {.Text = PlainCaption(row.Caption), .Where = menu, .Control = row.Control});
    }
    return entries;
}

bool RunMenuEntry(std::string_view control, Worksheet& sheet) {
    for (const auto& row : documentMenu) {
        if (row.Control != control || !row.Command) continue;
        RunMenuCommand(row, sheet);
        return true;
    }
    return false;
}

const MenuItem* MenuRecord(const Worksheet& sheet, std::string_view control, int index) {
    if (control == "mnuFileArray") return &sheet.mnuFileArray[index];
    if (control == "mnuMultipleArrows") return &sheet.mnuMultipleArrows;
    if (control == "mnuOptionsBubbleShow") return &sheet.mnuOptionsBubbleShow;
    if (control == "mnuHelpTour") return &sheet.mnuHelpTour;
    if (control == "mnuOptionsToolbox") return &sheet.mnuOptionsToolbox;
    if (control == "mnuOptionsCurrentToolbox") return &sheet.mnuOptionsCurrentToolbox;
    return nullptr;
}

const MenuItem* MenuRecord(const FrameWindow& frame, std::string_view control, int index) {
    if (control == "mnuFileArray") return &frame.mnuFileArray[index];
    if (control == "mnuOptionsToolbox") return &frame.mnuOptionsToolbox;
    if (control == "mnuOptionsCurrentToolbox") return &frame.mnuOptionsCurrentToolbox;
    return nullptr;
}

}  // namespace quorvane
