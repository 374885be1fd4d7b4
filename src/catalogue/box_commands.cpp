// SPDX-License-Identifier: MIT
#include "catalogue/box_commands.h"

#include <algorithm>

#include "catalogue/flow_dialogs.h"
#include "catalogue/function_dialogs.h"
#include "catalogue/icon_table.h"
#include "catalogue/matrix_dialogs.h"
#include "catalogue/option_lists.h"
#include "catalogue/plot_box.h"
#include "diagram/box_table.h"
#include "diagram/connections.h"
#include "diagram/placement.h"
#include "platform/desktop.h"

namespace quorvane {

using enum IconSource;

// clang-format off
// Control, caption, dialog, type, text, open entries, open exits, icon key, dialog's routine,
// question asked first
const std::vector<BoxCommand> boxCommands = {
    {"mnuInputKeyboardScalar", "&Vector or Scalar", "", "Keyboard Input", "", 0, 5, Type},
    {"mnuInputKeyboardMatrix", "&Matrix", "", "Matrix Input", nullptr, 0, 5, Type},
    {"mnuInputAscii", "&Ascii File", "", "Ascii File Input", nullptr, 0, 5, Type},
    {"mnuInputUser", "&Prompt for user input", "frmUserInput", "User Input", nullptr, 1, 5, Type, CompleteUserInput},
    {"mnuInputPause", "Pause for user &Response", "frmPause", "Pause", nullptr, 1, 5, Type, CompletePause},
    {"mnuOutputScreen", "Matlab &Screen", "", "Screen Output", nullptr, 1, 0, Type},
    {"mnuOutputPlot", "Matlab &Plot", "frmPlot", "Plot Output", nullptr, ByDialog, 0, PlotKind, CompletePlot},
    {"mnuOutputAsciiFile", "&Ascii File", "", "Ascii File Output", nullptr, 1, 0, Type},
    {"mnuOutputTrash", "&Trash", "", "Trash", nullptr, 3, 0, Type},
    {"mnuConst", "&Constants...", "frmConst", "Constant Input", nullptr, ByDialog, 5, Type},
    {"mnuOperatorsArith", "&Arithmatic Operators ...", "frmBasic", "", nullptr, ByDialog, 5, Type},
    {"mnuOperatorsLogic", "&Logic Operators ...", "frmLogic", "Logic Operator", nullptr, ByDialog, 5, Text},
    {"mnuOperatorsComplex", "&Complex Numbers Operators ...", "frmCmplx", "", nullptr, ByDialog, 5, Type},
    {"mnuOperatorsFunc", "&Function (and Single-Cell Manipulation)", "frmFunc", "Compute Function", nullptr, ByDialog, 5, Type, CompleteFunction},
    {"mnuOperatorsLog", "&Natural Logarithm", "", "Log", nullptr, 1, 5, Type},
    {"mnuOperatorsRoot", "&Square Root", "", "Sqrt", nullptr, 1, 5, Type},
    {"mnuOperatorsRound", "&Round a Number ...", "frmRound", "", nullptr, ByDialog, 5, Type},
    {"mnuMatMakeVec", "Create a Linearly Spaced &Vector ...", "frmMakeVector", "Vector Make Input", nullptr, 0, 5, Type, CompleteMakeVector},
    {"mnuMatMake", "&Create a Matrix ...", "frmMakeMat", "Matrix Make Input", nullptr, 0, 5, Type, CompleteMakeMat},
    {"mnuMatSpecMat", "Create a Special Matrix...", "frmSpecMat", "", nullptr, ByDialog, 5, Type},
    {"mnuMatLength", "&Length", "", "Matrix Length", nullptr, 1, 5, Type},
    {"mnuMatSize", "&Size", "", "Matrix Size", nullptr, 1, 5, Type},
    {"mnuMatSplit", "Matrix &Splitting...", "frmSplit", "Split", nullptr, 1, 5, Type, CompleteSplit},
    {"mnuMatAnalysis", "Matrix &Analysis...", "frmMatAnalysis", "", nullptr, ByDialog, 5, Type},
    {"mnuMatMan", "Matrix &Manipulation...", "frmMatMan", "Matrix Manipulation", nullptr, ByDialog, 5, TextOrDiag},
    {"mnuMatEig", "&Eigen Functions...", "frmEig", "", nullptr, ByDialog, 5, Type},
    {"mnuMatVectorOperations", "Vector &Operations ...", "frmVec", "", nullptr, ByDialog, 5, Type},
    {"mnuMatDiff", "&Differential and Integral Operations ..", "frmDiff", "", nullptr, ByDialog, 5, Type},
    {"mnuMatCorr", "&Correlation Operators ...", "frmCorr", "", nullptr, ByDialog, 5, Type},
    {"mnuLoopFor", "&For", "frmForLoop", "For", nullptr, 3, 5, Type, CompleteFor},
    {"mnuLoopWhile", "&While", "input box", "While", nullptr, 3, 5, Type, CompleteWhile},
    {"mnuLoopNext", "&Next", "", "Next", nullptr, 1, 5, Type},
    {"mnuLoopBreak", "&Break Loop Execution", "", "Break", nullptr, 3, 5, Type},
    {"mnuCondIf", "&Condition (If ...)", "frmIf", "If", nullptr, 3, 5, Type, CompleteIf},
    {"mnuCondEndIf", "&End Branch", "", "End If", nullptr, 1, 5, Type},
    {"mnuTrigSin", "&Sin", "", "Sin", nullptr, 1, 5, Type},
    {"mnuTrigCos", "&Cos", "", "Cos", nullptr, 1, 5, Type},
    {"mnuTrigTan", "&Tan", "", "Tan", nullptr, 1, 5, Type},
    {"mnuTrigCot", "C&ot", "", "Cot", nullptr, 1, 5, Type},
    {"mnuTrigArcSin", "Arc Sin", "", "ASin", nullptr, 1, 5, Type},
    {"mnuTrigArcCos", "Arc Cos", "", "ACos", nullptr, 1, 5, Type},
    {"mnuTrigArcTan", "Arc Tan", "", "ATan", nullptr, 1, 5, Type},
    {"mnuTrigArcCot", "Arc Cot", "", "ACot", nullptr, 1, 5, Type},
    {"mnuFFTfft", "One Dimentional &FFT", "", "FFT", nullptr, 2, 5, Type},
    {"mnuFFTFFT2", "&Two Dimentional FFT", "", "FFT2", nullptr, 3, 5, Type},
    {"mnuFFTIFFT", "One Dimentional &Inverse FFT", "", "IFFT", nullptr, 2, 5, Type},
    {"mnuFFTIFFT2", "Two Dimentional Inverse FFT", "", "IFFT2", nullptr, 3, 5, Type},
    {"mnuFFTfftshift", "FFT Shift", "", "FFTShift", nullptr, 1, 5, Type},
    {"mnuSpecialCheck", "Perform a &Test ...", "frmCheck", "", nullptr, ByDialog, 5, Type},
    {"mnuSpecialBessel", "&Bessel Functions...", "frmBessel", "", nullptr, ByDialog, 5, Type},
    {"mnuSpecialNumerical", "&Numerical Solution and Interpolation...", "frmNumeric", "", nullptr, ByDialog, 5, Type},
    {"mnuSpecialPoly", "&Polynomial Functions...", "frmPoly", "", nullptr, ByDialog, 5, Type},
    {"mnuSpecialInt", "&Integer Functions...", "frmIntFunction", "", nullptr, ByDialog, 5, Type},
    {"mnuSpecialError", "&Error Function...", "frmErrorFunction", "", nullptr, ByDialog, 5, Type},
    {"mnuSpecialBeta", "Beta, &Gamma and Related Functions...", "frmBetaFunc", "", nullptr, ByDialog, 5, Type},
    {"mnuStringMake", "String &Make", "frmStrMake", "", nullptr, ByDialog, 5, Type},
    {"mnuStringCompare", "String &Compare", "frmStrCompare", "", nullptr, ByDialog, 5, Type},
    {"mnuStringConvert", "String C&onvert", "frmStrConvert", "", nullptr, ByDialog, 5, Type},
    {"mnuSounds", "S&ound Commands...", "frmSound", "", nullptr, ByDialog, 5, Type},
    {"mnuSpecDummy", "&Start", "", "Dummy Input", nullptr, 0, 5, Type},
    {"mnuSpecMatlab", "&Matlab Command", "frmMatlabFunction", "Matlab Command", nullptr, ByDialog, 5, Type, CompleteMatlabCommand},
    {"mnuSpecComment", "&Comment", "frmComment", "Comment", nullptr, 0, 0, Type, CompleteComment},
    {"mnuSpecPickup", "&Pick up a variable", "input box", "Pickup", nullptr, 0, 5, Type, CompletePickup},
    {"mnuSpecSubInsert", "&Insert Subroutine", "frmSubs", "", "Subroutine", 1, 1, Text, nullptr, AskInsertedSubroutine},
    {"mnuSpecSubStart", "&Start a Subroutine", "input box", "", "Subroutine", 0, 5, Text, nullptr, AskStartedSubroutine},
    {"mnuSpecSubEnd", "&End a Subroutine", "", "End Subroutine", "Subroutine", 3, 0, Text},
};

// Key, command. No key reaches the pause, the second inverse transform or the special matrices.
const std::vector<ToolboxKey> toolboxKeys = {
    {"Arrow", "mnuArrow"},
    {"Keyboard Input", "mnuInputKeyboardScalar"},
    {"Matrix Input", "mnuInputKeyboardMatrix"},
    {"Matrix Make Input", "mnuMatMake"},
    {"Eigen", "mnuMatEig"},
    {"Special Matrix", "mnuMatMake"},
    {"Vector Make Input", "mnuMatMakeVec"},
    {"Constant Input", "mnuConst"},
    {"Dummy Input", "mnuSpecDummy"},
    {"Ascii File Input", "mnuInputAscii"},
    {"Screen Output", "mnuOutputScreen"},
    {"Plot Output", "mnuOutputPlot"},
    {"Trash", "mnuOutputTrash"},
    {"Ascii File Output", "mnuOutputAsciiFile"},
    {"Basic Arithmatic", "mnuOperatorsArith"},
    {"Compute Function", "mnuOperatorsFunc"},
    {"Logic Operators", "mnuOperatorsLogic"},
    {"Complex Operators", "mnuOperatorsComplex"},
    {"Bessel Function", "mnuSpecialBessel"},
    {"Round", "mnuOperatorsRound"},
    {"Natural Logarithm", "mnuOperatorsLog"},
    {"Square Root", "mnuOperatorsRoot"},
    {"Matrix Manipulation", "mnuMatMan"},
    {"Split Matrix", "mnuMatSplit"},
    {"Matrix Length", "mnuMatLength"},
    {"Matrix Size", "mnuMatSize"},
    {"Matlab Command", "mnuSpecMatlab"},
    {"Comment", "mnuSpecComment"},
    {"Pickup", "mnuSpecPickup"},
    {"For", "mnuLoopFor"},
    {"While", "mnuLoopWhile"},
    {"Next", "mnuLoopNext"},
    {"Break", "mnuLoopBreak"},
    {"Subroutine", "mnuSpecSub"},
    {"If", "mnuCondIf"},
    {"End If", "mnuCondEndIf"},
    {"Sin", "mnuTrigSin"},
    {"Cos", "mnuTrigCos"},
    {"Tan", "mnuTrigTan"},
    {"Cot", "mnuTrigCot"},
    {"ASin", "mnuTrigArcSin"},
    {"ACos", "mnuTrigArcCos"},
    {"ATan", "mnuTrigArcTan"},
    {"ACot", "mnuTrigArcCot"},
    {"FFTFFT", "mnuFFTfft"},
    {"FFTFFT2", "mnuFFTFFT2"},
    {"FFTIFFT", "mnuFFTIFFT"},
    {"FFTShift", "mnuFFTfftshift"},
    {"Numerical", "mnuSpecialNumerical"},
    {"Polynomial", "mnuSpecialPoly"},
    {"Correlation", "mnuMatCorr"},
    {"Differences", "mnuMatDiff"},
    {"Vecops", "mnuMatVectorOperations"},
    {"User", "mnuInputUser"},
    {"MatAnalysis", "mnuMatAnalysis"},
    {"Beta Function", "mnuSpecialBeta"},
    {"Error Function", "mnuSpecialError"},
    {"Integer Function", "mnuSpecialInt"},
    {"String Compare", "mnuStringCompare"},
    {"String Make", "mnuStringMake"},
    {"String Convert", "mnuStringConvert"},
    {"Check", "mnuSpecialCheck"},
    {"Sound", "mnuSounds"},
};
// clang-format on

namespace {

void Lock(const BoxCommand& command, Box& box) {
    for (int i = command.Entries + 1; i <= 3; ++i) box.BoxIn[i] = LockedSlot;
    for (int i = command.Exits + 1; i <= 5; ++i) box.BoxOut[i] = LockedSlot;
}

std::string IconKey(const BoxCommand& command, const Box& box) {
    switch (command.Icon) {
        case Text: return box.BoxText;
        case TextOrDiag: return box.BoxText.starts_with("Diag") ? "Diag" : box.BoxText;
        case PlotKind: return box.BoxText.substr(0, box.BoxText.find(';'));
        case Type: break;
    }
    return box.BoxType;
}

/// A worksheet without a document, or without this box, is passed over.
void SetBoxPicture(const Worksheet& sheet, int box, const std::string& key) {
    SelectBoxIcon(key);
    Attempt([&] { DocumentWindow(DocumentNumber(sheet)).box[box].Picture = Clip(); });
}

}  // namespace

void RunBoxCommand(Worksheet& sheet, std::string_view control) {
    const auto command =
        std::find_if(boxCommands.begin(), boxCommands.end(),
                     [&](const BoxCommand& candidate) { return candidate.Control == control; });
    if (command == boxCommands.end()) return;
    const auto type = command->AskType ? command->AskType() : std::string(command->BoxType);
    AddBox(sheet);
    const int number = NextBox - 1;
    // With a pending arrow and no box at all, arming takes back a record that isn't there.
    if (number < 0) return;
    Box& box = Boxes[number];
    if (!type.empty()) box.BoxType = type;
    if (command->BoxText) box.BoxText = command->BoxText;
    Lock(*command, box);
    if (const auto* list = FindOptionList(command->Dialog)) {
        if (!RunOptionList(*list, box)) return;
    } else if (command->Complete) {
        command->Complete(number);
    }
    SetBoxPicture(sheet, number, IconKey(*command, box));
}

void cmdEventFire_Click(Worksheet& sheet) {
    const auto row = std::find_if(
        toolboxKeys.begin(), toolboxKeys.end(),
        [&](const ToolboxKey& candidate) { return candidate.Key == sheet.cmdEventFire; });
    if (row == toolboxKeys.end()) return;
    if (row->Control == "mnuArrow") {
        mnuArrow_Click(sheet);
    } else if (row->Control == "mnuSpecSub") {
        desktop->PopupMenu(row->Control, DocumentNumber(sheet));
    } else {
        RunBoxCommand(sheet, row->Control);
    }
}

}  // namespace quorvane
