// SPDX-License-Identifier: MIT
#include "shell/menus.h"

#include <algorithm>

#include "catalogue/box_commands.h"
#include "diagram/box_info.h"
#include "diagram/connections.h"
#include "diagram/page_view.h"
#include "diagram/selection.h"
#include "files/close_document.h"
#include "files/document_file.h"
#include "generator/output_targets.h"
#include "matlab_link/start_matlab.h"
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

}  // namespace

// clang-format off
// Depth, control, index, caption, shortcut, command
const std::vector<DocumentMenuRow> documentMenu = {
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
    {1, "mnuInput", -1, "&Inputs", ""},
    {2, "mnuInputKeyboard", -1, "&Keyboard", ""},
    {3, "mnuInputKeyboardScalar", -1, "&Vector or Scalar", ""},
    {3, "mnuInputKeyboardMatrix", -1, "&Matrix", ""},
    {2, "mnuInputAscii", -1, "&Ascii File", ""},
    {2, "mnuInputUserPrompt", -1, "&User Input and Response", ""},
    {3, "mnuInputUser", -1, "&Prompt for user input", ""},
    {3, "mnuInputPause", -1, "Pause for user &Response", ""},
    {1, "mnuOutput", -1, "&Output", ""},
    {2, "mnuOutputScreen", -1, "Matlab &Screen", ""},
    {2, "mnuOutputPlot", -1, "Matlab &Plot", ""},
    {2, "mnuOutputAsciiFile", -1, "&Ascii File", ""},
    {2, "mnuOutputTrash", -1, "&Trash", ""},
    {1, "mnus7", -1, "-", ""},
    {1, "mnuConst", -1, "&Constants...", ""},
    {1, "mnuOperators", -1, "&Basic Operators", ""},
    {2, "mnuOperatorsArith", -1, "&Arithmatic Operators ...", ""},
    {2, "mnuOperatorsLogic", -1, "&Logic Operators ...", ""},
    {2, "mnuOperatorsComplex", -1, "&Complex Numbers Operators ...", ""},
    {2, "mnuOperatorsFunc", -1, "&Function (and Single-Cell Manipulation)", ""},
    {2, "mnuOperatorsLog", -1, "&Natural Logarithm", ""},
    {2, "mnuOperatorsRoot", -1, "&Square Root", ""},
    {2, "mnuOperatorsRound", -1, "&Round a Number ...", ""},
    {1, "mnuMatrix", -1, "&Matrix and Vector Commands", ""},
    {2, "mnuMatMakeVec", -1, "Create a Linearly Spaced &Vector ...", ""},
    {2, "mnuMatMake", -1, "&Create a Matrix ...", ""},
    {2, "mnuMatSpecMat", -1, "Create a Special Matrix...", ""},
    {2, "mnuMatLength", -1, "&Length", ""},
    {2, "mnuMatSize", -1, "&Size", ""},
    {2, "mnuMatSplit", -1, "Matrix &Splitting...", ""},
    {2, "mnuMatAnalysis", -1, "Matrix &Analysis...", ""},
    {2, "mnuMatMan", -1, "Matrix &Manipulation...", ""},
    {2, "mnuMatEig", -1, "&Eigen Functions...", ""},
    {2, "mnuMatVectorOperations", -1, "Vector &Operations ...", ""},
    {2, "mnuMatDiff", -1, "&Differential and Integral Operations ..", ""},
    {2, "mnuMatCorr", -1, "&Correlation Operators ...", ""},
    {1, "mnuLoop", -1, "&Loop Functions", ""},
    {2, "mnuLoopFor", -1, "&For", ""},
    {2, "mnuLoopWhile", -1, "&While", ""},
    {2, "mnuLoopNext", -1, "&Next", ""},
    {2, "mnuLoopBreak", -1, "&Break Loop Execution", ""},
    {1, "mnuBranch", -1, "&Branching Functions", ""},
    {2, "mnuCondIf", -1, "&Condition (If ...)", ""},
    {2, "mnuCondEndIf", -1, "&End Branch", ""},
    {1, "mnuTrig", -1, "&Trigonometric Functions", ""},
    {2, "mnuTrigSin", -1, "&Sin", ""},
    {2, "mnuTrigCos", -1, "&Cos", ""},
    {2, "mnuTrigTan", -1, "&Tan", ""},
    {2, "mnuTrigCot", -1, "C&ot", ""},
    {2, "mnus1", -1, "-", ""},
    {2, "mnuTrigArcSin", -1, "Arc Sin", ""},
    {2, "mnuTrigArcCos", -1, "Arc Cos", ""},
    {2, "mnuTrigArcTan", -1, "Arc Tan", ""},
    {2, "mnuTrigArcCot", -1, "Arc Cot", ""},
    {1, "mnuFFT", -1, "&Fourier Transforms", ""},
    {2, "mnuFFTfft", -1, "One Dimentional &FFT", ""},
    {2, "mnuFFTFFT2", -1, "&Two Dimentional FFT", ""},
    {2, "mnus3", -1, "-", ""},
    {2, "mnuFFTIFFT", -1, "One Dimentional &Inverse FFT", ""},
    {2, "mnuFFTIFFT2", -1, "Two Dimentional Inverse FFT", ""},
    {2, "mnu12", -1, "-", ""},
    {2, "mnuFFTfftshift", -1, "FFT Shift", ""},
    {1, "mnuSpecial", -1, "&Special Functions", ""},
    {2, "mnuSpecialCheck", -1, "Perform a &Test ...", ""},
    {2, "mnuSpecialBessel", -1, "&Bessel Functions...", ""},
    {2, "mnuSpecialNumerical", -1, "&Numerical Solution and Interpolation...", ""},
    {2, "mnuSpecialPoly", -1, "&Polynomial Functions...", ""},
    {2, "mnuSpecialInt", -1, "&Integer Functions...", ""},
    {2, "mnuSpecialError", -1, "&Error Function...", ""},
    {2, "mnuSpecialBeta", -1, "Beta, &Gamma and Related Functions...", ""},
    {1, "mnuString", -1, "S&tring Functions", ""},
    {2, "mnuStringMake", -1, "String &Make", ""},
    {2, "mnuStringCompare", -1, "String &Compare", ""},
    {2, "mnuStringConvert", -1, "String C&onvert", ""},
    {1, "mnuSounds", -1, "S&ound Commands...", ""},
    {1, "mnuSpec", -1, "&Special Commands", ""},
    {2, "mnuSpecDummy", -1, "&Start", ""},
    {2, "mnuSpecMatlab", -1, "&Matlab Command", ""},
    {2, "mnuSpecComment", -1, "&Comment", ""},
    {2, "mnuSpecPickup", -1, "&Pick up a variable", ""},
    {2, "mnuSpecSub", -1, "&Subroutines", ""},
    {3, "mnuSpecSubInsert", -1, "&Insert Subroutine", ""},
    {3, "mnuSpecSubStart", -1, "&Start a Subroutine", ""},
    {3, "mnuSpecSubEnd", -1, "&End a Subroutine", ""},
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

const std::vector<FrameMenuRow> frameMenu = {
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

namespace {

bool MakesBox(std::string_view control) {
    return std::any_of(boxCommands.begin(), boxCommands.end(),
                       [&](const BoxCommand& command) { return command.Control == control; });
}

}  // namespace

bool HasCommand(const DocumentMenuRow& row) { return row.Command || MakesBox(row.Control); }

void RunMenuCommand(const DocumentMenuRow& row, Worksheet& sheet) {
    if (row.Command) {
        row.Command(sheet);
    } else if (MakesBox(row.Control)) {
        RunBoxCommand(sheet, row.Control);
    }
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
