// SPDX-License-Identifier: MIT
#include "catalogue/box_commands.h"

#include <algorithm>
#include <iterator>

#include "catalogue/key_table.h"

namespace quorvane {

namespace {

using enum IconSource;

// clang-format off
// Depth, control, caption, type, text, open entries, open exits, icon key, cell, dialog, toolbox keys, page, line.
// No toolbox key reaches the pause, the second inverse transform or the special matrices; "Special Matrix" is a
// key of the command beside it.
constexpr BoxCommand rows[] = {
    {1, "mnuInput", "&Inputs"},
    {2, "mnuInputKeyboard", "&Keyboard"},
    {3, "mnuInputKeyboardScalar", "&Vector or Scalar", "Keyboard Input", "", 0, 5, Type, 72, "", {"Keyboard Input"}, "inputs"},
    {3, "mnuInputKeyboardMatrix", "&Matrix", "Matrix Input", nullptr, 0, 5, Type, 86, "", {"Matrix Input"}, "inputs"},
    {2, "mnuInputAscii", "&Ascii File", "Ascii File Input", nullptr, 0, 5, Type, 57, "", {"Ascii File Input"}, "inputs"},
    {2, "mnuInputUserPrompt", "&User Input and Response"},
    {3, "mnuInputUser", "&Prompt for user input", "User Input", nullptr, 1, 5, Type, 140, "frmUserInput", {"User"}, "inputs", "box{id}=input('{value}');"},
    {3, "mnuInputPause", "Pause for user &Response", "Pause", nullptr, 1, 5, Type, 90, "frmPause", {}, "inputs"},
    {1, "mnuOutput", "&Output"},
    {2, "mnuOutputScreen", "Matlab &Screen", "Screen Output", nullptr, 1, 0, Type, 119, "", {"Screen Output"}, "outputs", "box{id}=box{in1}"},
    {2, "mnuOutputPlot", "Matlab &Plot", "Plot Output", nullptr, ByDialog, 0, PlotKind, 62, "frmPlot", {"Plot Output"}, "plot"},
    {2, "mnuOutputAsciiFile", "&Ascii File", "Ascii File Output", nullptr, 1, 0, Type, 39, "", {"Ascii File Output"}, "outputs"},
    {2, "mnuOutputTrash", "&Trash", "Trash", nullptr, 3, 0, Type, 136, "", {"Trash"}, "outputs"},
    {1, "mnus7", "-"},
    {1, "mnuConst", "&Constants...", "Constant Input", nullptr, ByDialog, 5, Type, 24, "frmConst", {"Constant Input"}, "inputs"},
    {1, "mnuOperators", "&Basic Operators"},
    {2, "mnuOperatorsArith", "&Arithmatic Operators ...", "", nullptr, ByDialog, 5, Type, 16, "frmBasic", {"Basic Arithmatic"}, "operators"},
    {2, "mnuOperatorsLogic", "&Logic Operators ...", "Logic Operator", nullptr, ByDialog, 5, Text, 79, "frmLogic", {"Logic Operators"}, "operators"},
    {2, "mnuOperatorsComplex", "&Complex Numbers Operators ...", "", nullptr, ByDialog, 5, Type, 21, "frmCmplx", {"Complex Operators"}, "complex"},
    {2, "mnuOperatorsFunc", "&Function (and Single-Cell Manipulation)", "Compute Function", nullptr, ByDialog, 5, Type, 59, "frmFunc", {"Compute Function"}, "functioneditor"},
    {2, "mnuOperatorsLog", "&Natural Logarithm", "Log", nullptr, 1, 5, Type, 75, "", {"Natural Logarithm"}, "operators"},
    {2, "mnuOperatorsRoot", "&Square Root", "Sqrt", nullptr, 1, 5, Type, 125, "", {"Square Root"}, "operators"},
    {2, "mnuOperatorsRound", "&Round a Number ...", "", nullptr, ByDialog, 5, Type, 109, "frmRound", {"Round"}, "round"},
    {1, "mnuMatrix", "&Matrix and Vector Commands"},
    {2, "mnuMatMakeVec", "Create a Linearly Spaced &Vector ...", "Vector Make Input", nullptr, 0, 5, Type, 142, "frmMakeVector", {"Vector Make Input"}, "inputs"},
    {2, "mnuMatMake", "&Create a Matrix ...", "Matrix Make Input", nullptr, 0, 5, Type, 82, "frmMakeMat", {"Matrix Make Input", "Special Matrix"}, "inputs"},
    {2, "mnuMatSpecMat", "Create a Special Matrix...", "", nullptr, ByDialog, 5, Type, 0, "frmSpecMat", {}, "specialmatrix"},
    {2, "mnuMatLength", "&Length", "Matrix Length", nullptr, 1, 5, Type, 73, "", {"Matrix Length"}, "matrix", "box{id}=length(box{in1});"},
    {2, "mnuMatSize", "&Size", "Matrix Size", nullptr, 1, 5, Type, 120, "", {"Matrix Size"}, "matrix", "box{id}=size(box{in1});"},
    {2, "mnuMatSplit", "Matrix &Splitting...", "Split", nullptr, 1, 5, Type, 146, "frmSplit", {"Split Matrix"}, "matrix"},
    {2, "mnuMatAnalysis", "Matrix &Analysis...", "", nullptr, ByDialog, 5, Type, 83, "frmMatAnalysis", {"MatAnalysis"}, "analysis"},
    {2, "mnuMatMan", "Matrix &Manipulation...", "Matrix Manipulation", nullptr, ByDialog, 5, TextOrDiag, 85, "frmMatMan", {"Matrix Manipulation"}, "matrix"},
    {2, "mnuMatEig", "&Eigen Functions...", "", nullptr, ByDialog, 5, Type, 41, "frmEig", {"Eigen"}, "eigen"},
    {2, "mnuMatVectorOperations", "Vector &Operations ...", "", nullptr, ByDialog, 5, Type, 141, "frmVec", {"Vecops"}, "vector"},
    {2, "mnuMatDiff", "&Differential and Integral Operations ..", "", nullptr, ByDialog, 5, Type, 37, "frmDiff", {"Differences"}, "diff"},
    {2, "mnuMatCorr", "&Correlation Operators ...", "", nullptr, ByDialog, 5, Type, 26, "frmCorr", {"Correlation"}, "corr"},
    {1, "mnuLoop", "&Loop Functions"},
    {2, "mnuLoopFor", "&For", "For", nullptr, 3, 5, Type, 58, "frmForLoop", {"For"}, "for"},
    {2, "mnuLoopWhile", "&While", "While", nullptr, 3, 5, Type, 145, "input box", {"While"}, "while"},
    {2, "mnuLoopNext", "&Next", "Next", nullptr, 1, 5, Type, 88, "", {"Next"}, "flowboxes"},
    {2, "mnuLoopBreak", "&Break Loop Execution", "Break", nullptr, 3, 5, Type, 63, "", {"Break"}, "break"},
    {1, "mnuBranch", "&Branching Functions"},
    {2, "mnuCondIf", "&Condition (If ...)", "If", nullptr, 3, 5, Type, 64, "frmIf", {"If"}, "branch"},
    {2, "mnuCondEndIf", "&End Branch", "End If", nullptr, 1, 5, Type, 44, "", {"End If"}, "branch"},
    {1, "mnuTrig", "&Trigonometric Functions"},
    {2, "mnuTrigSin", "&Sin", "Sin", nullptr, 1, 5, Type, 118, "", {"Sin"}, "trig"},
    {2, "mnuTrigCos", "&Cos", "Cos", nullptr, 1, 5, Type, 27, "", {"Cos"}, "trig"},
    {2, "mnuTrigTan", "&Tan", "Tan", nullptr, 1, 5, Type, 133, "", {"Tan"}, "trig"},
    {2, "mnuTrigCot", "C&ot", "Cot", nullptr, 1, 5, Type, 28, "", {"Cot"}, "trig"},
    {2, "mnus1", "-"},
    {2, "mnuTrigArcSin", "Arc Sin", "ASin", nullptr, 1, 5, Type, 5, "", {"ASin"}, "trig"},
    {2, "mnuTrigArcCos", "Arc Cos", "ACos", nullptr, 1, 5, Type, 2, "", {"ACos"}, "trig"},
    {2, "mnuTrigArcTan", "Arc Tan", "ATan", nullptr, 1, 5, Type, 6, "", {"ATan"}, "trig"},
    {2, "mnuTrigArcCot", "Arc Cot", "ACot", nullptr, 1, 5, Type, 3, "", {"ACot"}, "trig"},
    {1, "mnuFFT", "&Fourier Transforms"},
    {2, "mnuFFTfft", "One Dimentional &FFT", "FFT", nullptr, 2, 5, Type, 49, "", {"FFTFFT"}, "fft"},
    {2, "mnuFFTFFT2", "&Two Dimentional FFT", "FFT2", nullptr, 3, 5, Type, 50, "", {"FFTFFT2"}, "fft"},
    {2, "mnus3", "-"},
    {2, "mnuFFTIFFT", "One Dimentional &Inverse FFT", "IFFT", nullptr, 2, 5, Type, 65, "", {"FFTIFFT"}, "fft"},
    {2, "mnuFFTIFFT2", "Two Dimentional Inverse FFT", "IFFT2", nullptr, 3, 5, Type, 65, "", {}, "fft"},
    {2, "mnu12", "-"},
    {2, "mnuFFTfftshift", "FFT Shift", "FFTShift", nullptr, 1, 5, Type, 51, "", {"FFTShift"}, "fft"},
    {1, "mnuSpecial", "&Special Functions"},
    {2, "mnuSpecialCheck", "Perform a &Test ...", "", nullptr, ByDialog, 5, Type, 19, "frmCheck", {"Check"}, "tests"},
    {2, "mnuSpecialBessel", "&Bessel Functions...", "", nullptr, ByDialog, 5, Type, 11, "frmBessel", {"Bessel Function"}, "bessel"},
    {2, "mnuSpecialNumerical", "&Numerical Solution and Interpolation...", "", nullptr, ByDialog, 5, Type, 89, "frmNumeric", {"Numerical"}, "numeric"},
    {2, "mnuSpecialPoly", "&Polynomial Functions...", "", nullptr, ByDialog, 5, Type, 97, "frmPoly", {"Polynomial"}, "poly"},
    {2, "mnuSpecialInt", "&Integer Functions...", "", nullptr, ByDialog, 5, Type, 71, "frmIntFunction", {"Integer Function"}, "intfn"},
    {2, "mnuSpecialError", "&Error Function...", "", nullptr, ByDialog, 5, Type, 46, "frmErrorFunction", {"Error Function"}, "errorfn"},
    {2, "mnuSpecialBeta", "Beta, &Gamma and Related Functions...", "", nullptr, ByDialog, 5, Type, 14, "frmBetaFunc", {"Beta Function"}, "beta"},
    {1, "mnuString", "S&tring Functions"},
    {2, "mnuStringMake", "String &Make", "", nullptr, ByDialog, 5, Type, 129, "frmStrMake", {"String Make"}, "strings"},
    {2, "mnuStringCompare", "String &Compare", "", nullptr, ByDialog, 5, Type, 127, "frmStrCompare", {"String Compare"}, "strings"},
    {2, "mnuStringConvert", "String C&onvert", "", nullptr, ByDialog, 5, Type, 128, "frmStrConvert", {"String Convert"}, "strings"},
    {1, "mnuSounds", "S&ound Commands...", "", nullptr, ByDialog, 5, Type, 123, "frmSound", {"Sound"}, "sound"},
    {1, "mnuSpec", "&Special Commands"},
    {2, "mnuSpecDummy", "&Start", "Dummy Input", nullptr, 0, 5, Type, 40, "", {"Dummy Input"}, "inputs"},
    {2, "mnuSpecMatlab", "&Matlab Command", "Matlab Command", nullptr, ByDialog, 5, Type, 84, "frmMatlabFunction", {"Matlab Command"}, "matlabfunction"},
    {2, "mnuSpecComment", "&Comment", "Comment", nullptr, 0, 0, Type, 20, "frmComment", {"Comment"}, "specialcommands"},
    {2, "mnuSpecPickup", "&Pick up a variable", "Pickup", nullptr, 0, 5, Type, 93, "input box", {"Pickup"}, "specialcommands"},
    {2, "mnuSpecSub", "&Subroutines", "", nullptr, NoBox, 0, Type, 130, "", {"Subroutine"}},
    {3, "mnuSpecSubInsert", "&Insert Subroutine", "", "Subroutine", 1, 1, Text, 0, "frmSubs", {}, "subroutine"},
    {3, "mnuSpecSubStart", "&Start a Subroutine", "", "Subroutine", 0, 5, Text, 0, "input box", {}, "subroutine"},
    {3, "mnuSpecSubEnd", "&End a Subroutine", "End Subroutine", "Subroutine", 3, 0, Text, 0, "", {}, "subroutine"},
};
// clang-format on

bool HasKey(const BoxCommand& row, std::string_view key) {
    return std::find(row.ToolboxKeys.begin(), row.ToolboxKeys.end(), key) != row.ToolboxKeys.end();
}

/// The pictures of the commands.
KeyTable<int> MakeCells() {
    KeyTable<int> table;
    for (const auto& row : rows) {
        if (row.Cell == 0) continue;
        for (const auto key : row.ToolboxKeys) {
            if (!key.empty()) table.Add(key, row.Cell);
        }
        if (row.Icon == Type && !row.BoxType.empty()) table.Add(row.BoxType, row.Cell);
    }
    return table;
}

template <class Test>
const BoxCommand* FindRow(Test&& test) {
    const auto* row = std::find_if(std::begin(rows), std::end(rows), test);
    return row == std::end(rows) ? nullptr : row;
}

}  // namespace

const std::span<const BoxCommand> boxCommands = rows;

const BoxCommand* FindBoxCommand(std::string_view control) {
    return FindRow([&](const BoxCommand& row) { return MakesBox(row) && row.Control == control; });
}

const BoxCommand* FindCommandOfDialog(std::string_view dialog) {
    return FindRow([&](const BoxCommand& row) { return row.Dialog == dialog; });
}

std::string PlainCaption(std::string_view caption) {
    std::string plain(caption);
    std::erase(plain, '&');
    while (plain.ends_with('.') || plain.ends_with(' ')) plain.pop_back();
    return plain;
}

std::string_view ToolboxCommand(std::string_view key) {
    if (key.empty()) return "";
    if (key == "Arrow") return "mnuArrow";
    const auto* row = FindRow([&](const BoxCommand& candidate) { return HasKey(candidate, key); });
    return row ? row->Control : "";
}

int CommandCell(std::string_view key) {
    static const auto cells = MakeCells();
    const auto* cell = cells.Find(key);
    return cell ? *cell : 0;
}

}  // namespace quorvane
