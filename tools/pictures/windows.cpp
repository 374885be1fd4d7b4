// SPDX-License-Identifier: MIT
// Every window of the program, for the contact sheet.
#include "picture.h"

namespace quorvane {

namespace {

constexpr QSize Large(1000, 720);

/// A dialog that a menu entry opens.
Picture Dialog(const char* form, const char* entry) {
    return {form, {}, form, {"clear", entry, "wait 100"}};
}

// clang-format off
const std::vector<Picture> windows = {
    {"splash", Large, "frmSplash", {"pass frmSplash", "begin"}},
    {"recovery", {}, "recovery", {"left spectrum.qvm", "until recovery"}},
    {"welcome", Large, "frmMDI frmPictures", {"begin"}},
    {"narrow", {640, 480}, "frmMDI", {"wait 50"}},
    {"worksheet", Large, "frmMDI frmPictures pointer", {"drop spectrum.qvm", "hover box(2) 20 14"}},
    {"menus", {}, "frmMDI menus", {"menu mnuMatMakeVec"}},
    {"file menu", {}, "frmMDI menus", {"clear", "menu mnuFileNew"}},
    {"zoom menu", {}, "frmMDI menus", {"clear", "click zoomLevel"}},
    {"zoomed", {}, "frmMDI", {"clear", "key Ctrl++", "key Ctrl+Shift+N", "wait 50"}},
    {"find", {}, "quickPopup", {"key Ctrl+0", "key Ctrl+Shift+N", "key Ctrl+K", "type mat"}},
    {"tour", {}, "frmMDI", {"clear", "choose mnuHelpTour", "click pnlTour", "click pnlTour", "click pnlTour"}},
    {"toolbox", {}, "frmPictures", {"choose mnuHelpTour"}},
    {"selection", {}, "frmMDI", {"key Ctrl+A"}},
    {"armed", {}, "frmMDI pointer", {"clear", "choose mnuTrigSin", "hover surface 300 300"}},
    Dialog("frmBasic", "choose mnuOperatorsArith"),
    Dialog("frmLogic", "choose mnuOperatorsLogic"),
    Dialog("frmCmplx", "choose mnuOperatorsComplex"),
    Dialog("frmRound", "choose mnuOperatorsRound"),
    Dialog("frmConst", "choose mnuConst"),
    Dialog("frmSpecMat", "choose mnuMatSpecMat"),
    Dialog("frmMatAnalysis", "choose mnuMatAnalysis"),
    Dialog("frmMatMan", "choose mnuMatMan"),
    Dialog("frmVec", "choose mnuMatVectorOperations"),
    Dialog("frmCheck", "choose mnuSpecialCheck"),
    Dialog("frmStrMake", "choose mnuStringMake"),
    Dialog("frmStrCompare", "choose mnuStringCompare"),
    Dialog("frmSound", "choose mnuSounds"),
    Dialog("frmMakeVector", "choose mnuMatMakeVec"),
    Dialog("frmMakeMat", "choose mnuMatMake"),
    Dialog("frmSplit", "choose mnuMatSplit"),
    Dialog("frmFunc", "choose mnuOperatorsFunc"),
    Dialog("frmForLoop", "choose mnuLoopFor"),
    Dialog("frmIf", "choose mnuCondIf"),
    Dialog("prompt", "choose mnuLoopWhile"),
    Dialog("frmUserInput", "choose mnuInputUser"),
    Dialog("frmPause", "choose mnuInputPause"),
    Dialog("frmSubs", "choose mnuSpecSubInsert"),
    Dialog("frmComment", "choose mnuSpecComment"),
    Dialog("frmPlot", "choose mnuOutputPlot"),
    {"frmPlot 3-D", {}, "frmPlot", {"pick cmbType 3-D Plot"}},
    Dialog("frmMatlabFunction", "choose mnuSpecMatlab"),
    {"frmScanning", {}, "frmScanning", {"functions", "pass frmScanning", "click cmdShowFunc", "until frmMatlab"}},
    {"frmMatlab", {}, "frmMatlab", {"pick cmbCategory Signal", "item lstFunc hamming"}},
    Dialog("frmInfo", "double box(2)"),
    Dialog("frmPageView", "choose mnuPageView"),
    Dialog("frmConfigToolbox", "choose mnuOptionsConfigureToolbox"),
    Dialog("frmPrefs", "choose mnuOptionsPrefs"),
    Dialog("frmDirectory", "choose mnuFileStartMatlab"),
    Dialog("frmAbout", "choose mnuHelpAbout"),
    Dialog("frmDisclaimer", "choose mnuHelpDisclaimer"),
    Dialog("files", "key Ctrl+O"),
    Dialog("colors", "key Ctrl+L"),
    {"print preview", {}, "preview", {"clear", "key Ctrl+P", "until preview", "wait 500"}},
    {"helpWindow", {}, "helpWindow", {"clear", "choose mnuHelpContents", "wait 300"}},
    {"first page", {}, "helpWindow", {"item helpContents Your first diagram", "wait 300"}},
    {"help on a box", {}, "helpWindow", {"clear", "hover box(4) 8 8", "key F1", "wait 300"}},
    {"frmMatrix", {}, "frmMatrix", {"clear", "key Ctrl+N", "choose mnuInputKeyboardMatrix", "click surface 40 40", "choose mnuExeDDE", "until frmMatrix", "type 1", "key Tab", "type 2"}},
    {"message", {}, "message", {"click cmdOK", "until message"}},
    {"question", {}, "message", {"clear", "choose mnuFileClose", "until message"}},
    {"panels", Large, "frmMDI", {"begin", "drop damped_oscillation.qvm", "key F7", "key F8", "hover box(3) 20 14"}},
    {"picture menu", {}, "frmMDI menus", {"click picture"}},
    {"findings", {}, "frmMDI", {"clear", "choose mnuOperatorsFunc", "until frmFunc", "set txtFunc nosuchthing(Input1)", "click cmdOK", "click surface 60 260"}},
    {"results", {}, "frmTextResults", {
        "choose mnuArrow", "click box(1)", "click box(7)", "key F5", "until message", "key Return", "until frmDirectory", "item lstEngines Octave",
        "click cmdOK", "until message", "key Return", "gone message"}, true},
    {"run", {}, "frmMDI tip", {"click cmdOK", "rest box(7) 20 14", "until qtooltip_label"}, true},
};
// clang-format on

}  // namespace

std::span<const Picture> AllWindows() { return windows; }

}  // namespace quorvane
