// SPDX-License-Identifier: MIT
#include "catalogue/box_commands.h"

#include "catalogue/flow_dialogs.h"
#include "catalogue/option_lists.h"
#include "catalogue/plot_box.h"
#include "platform/numbers.h"
#include "support/diagram_fixture.h"

namespace quorvane::testing {

namespace {

using Texts = std::vector<std::string>;

struct CommandCase {
    std::string Control, Caption, Dialog, BoxType, BoxText, Entries;
    int Exits, Cell;
};

// clang-format off
// Control, caption, dialog; what OK at once makes: type, text, open entries, open exits, icon cell
const std::vector<CommandCase> commandCases = {
    {"mnuInputKeyboardScalar", "&Vector or Scalar", "", "Keyboard Input", "", "", 5, 72},
    {"mnuInputKeyboardMatrix", "&Matrix", "", "Matrix Input", "", "", 5, 86},
    {"mnuInputAscii", "&Ascii File", "", "Ascii File Input", "", "", 5, 57},
    {"mnuInputUser", "&Prompt for user input", "frmUserInput", "User Input", "", "1", 5, 140},
    {"mnuInputPause", "Pause for user &Response", "frmPause", "Pause", "1", "1", 5, 90},
    {"mnuOutputScreen", "Matlab &Screen", "", "Screen Output", "", "1", 0, 119},
    {"mnuOutputPlot", "Matlab &Plot", "frmPlot", "Plot Output", "Plot2d;plot([1:1:length(Input1)],Input1,'y')\r\n", "1", 0, 94},
    {"mnuOutputAsciiFile", "&Ascii File", "", "Ascii File Output", "", "1", 0, 39},
    {"mnuOutputTrash", "&Trash", "", "Trash", "", "123", 0, 136},
    {"mnuConst", "&Constants...", "frmConst", "Constant Input", "pi", "", 5, 24},
    {"mnuOperatorsArith", "&Arithmatic Operators ...", "frmBasic", "", "", "123", 5, 0},
    {"mnuOperatorsLogic", "&Logic Operators ...", "frmLogic", "Logic Operator", "|", "123", 5, 78},
    {"mnuOperatorsComplex", "&Complex Numbers Operators ...", "frmCmplx", "Abs", "", "1", 5, 1},
    {"mnuOperatorsFunc", "&Function (and Single-Cell Manipulation)", "frmFunc", "Compute Function", "box1=Input1;\r\noutput(1,1)=;", "1", 5, 59},
    {"mnuOperatorsLog", "&Natural Logarithm", "", "Log", "", "1", 5, 75},
    {"mnuOperatorsRoot", "&Square Root", "", "Sqrt", "", "1", 5, 125},
    {"mnuOperatorsRound", "&Round a Number ...", "frmRound", "Fix", "", "1", 5, 53},
    {"mnuMatMakeVec", "Create a Linearly Spaced &Vector ...", "frmMakeVector", "Vector Make Input", "[1:1:1];", "", 5, 142},
    {"mnuMatMake", "&Create a Matrix ...", "frmMakeMat", "Matrix Make Input", "ones(1,1)", "", 5, 82},
    {"mnuMatSpecMat", "Create a Special Matrix...", "frmSpecMat", "Companion matrix", "Compan", "1", 5, 124},
    {"mnuMatLength", "&Length", "", "Matrix Length", "", "1", 5, 73},
    {"mnuMatSize", "&Size", "", "Matrix Size", "", "1", 5, 120},
    {"mnuMatSplit", "Matrix &Splitting...", "frmSplit", "Split", "Col1:1", "1", 5, 146},
    {"mnuMatAnalysis", "Matrix &Analysis...", "frmMatAnalysis", "Matrix condition number", "cond", "1", 5, 83},
    {"mnuMatMan", "Matrix &Manipulation...", "frmMatMan", "Matrix Manipulation", "Diag|1", "1", 5, 35},
    {"mnuMatEig", "&Eigen Functions...", "frmEig", "Eigenvalues", "Eig", "12", 5, 42},
    {"mnuMatVectorOperations", "Vector &Operations ...", "frmVec", "Sort", "", "1", 5, 122},
    {"mnuMatDiff", "&Differential and Integral Operations ..", "frmDiff", "Diff", "", "123", 5, 37},
    {"mnuMatCorr", "&Correlation Operators ...", "frmCorr", "Correlation coefficients", "corrcoef", "12", 5, 26},
    {"mnuLoopFor", "&For", "frmForLoop", "For", "1:1:1,", "123", 5, 58},
    {"mnuLoopWhile", "&While", "input box", "While", "", "123", 5, 145},
    {"mnuLoopNext", "&Next", "", "Next", "", "1", 5, 88},
    {"mnuLoopBreak", "&Break Loop Execution", "", "Break", "", "123", 5, 63},
    {"mnuCondIf", "&Condition (If ...)", "frmIf", "If", "", "123", 5, 64},
    {"mnuCondEndIf", "&End Branch", "", "End If", "", "1", 5, 44},
    {"mnuTrigSin", "&Sin", "", "Sin", "", "1", 5, 118},
    {"mnuTrigCos", "&Cos", "", "Cos", "", "1", 5, 27},
    {"mnuTrigTan", "&Tan", "", "Tan", "", "1", 5, 133},
    {"mnuTrigCot", "C&ot", "", "Cot", "", "1", 5, 28},
    {"mnuTrigArcSin", "Arc Sin", "", "ASin", "", "1", 5, 5},
    {"mnuTrigArcCos", "Arc Cos", "", "ACos", "", "1", 5, 2},
    {"mnuTrigArcTan", "Arc Tan", "", "ATan", "", "1", 5, 6},
    {"mnuTrigArcCot", "Arc Cot", "", "ACot", "", "1", 5, 3},
    {"mnuFFTfft", "One Dimentional &FFT", "", "FFT", "", "12", 5, 49},
    {"mnuFFTFFT2", "&Two Dimentional FFT", "", "FFT2", "", "123", 5, 50},
    {"mnuFFTIFFT", "One Dimentional &Inverse FFT", "", "IFFT", "", "12", 5, 65},
    {"mnuFFTIFFT2", "Two Dimentional Inverse FFT", "", "IFFT2", "", "123", 5, 65},
    {"mnuFFTfftshift", "FFT Shift", "", "FFTShift", "", "1", 5, 51},
    {"mnuSpecialCheck", "Perform a &Test ...", "frmCheck", "IsStr", "", "1", 5, 19},
    {"mnuSpecialBessel", "&Bessel Functions...", "frmBessel", "BesselJ", "0", "1", 5, 11},
    {"mnuSpecialNumerical", "&Numerical Solution and Interpolation...", "frmNumeric", "ODE23", "", "123", 5, 36},
    {"mnuSpecialPoly", "&Polynomial Functions...", "frmPoly", "Polynomial Roots", "roots", "1", 5, 107},
    {"mnuSpecialInt", "&Integer Functions...", "frmIntFunction", "GCD", "", "12", 5, 71},
    {"mnuSpecialError", "&Error Function...", "frmErrorFunction", "Error function", "erf", "1", 5, 46},
    {"mnuSpecialBeta", "Beta, &Gamma and Related Functions...", "frmBetaFunc", "Beta function", "Beta", "123", 5, 14},
    {"mnuStringMake", "String &Make", "frmStrMake", "SetStr", "", "1", 5, 111},
    {"mnuStringCompare", "String &Compare", "frmStrCompare", "StrCmp", "", "12", 5, 127},
    {"mnuStringConvert", "String C&onvert", "frmStrConvert", "Str2Mat", "", "123", 5, 128},
    {"mnuSounds", "S&ound Commands...", "frmSound", "Sound", "", "12", 5, 123},
    {"mnuSpecDummy", "&Start", "", "Dummy Input", "", "", 5, 40},
    {"mnuSpecMatlab", "&Matlab Command", "frmMatlabFunction", "Matlab Command", "Output=", "", 0, 84},
    {"mnuSpecComment", "&Comment", "frmComment", "Comment", "", "", 0, 20},
    {"mnuSpecPickup", "&Pick up a variable", "input box", "Pickup", "", "", 5, 93},
    {"mnuSpecSubInsert", "&Insert Subroutine", "frmSubs", "Insert Subroutine ", "Subroutine", "1", 1, 130},
    {"mnuSpecSubStart", "&Start a Subroutine", "input box", " Subroutine", "Subroutine", "", 5, 130},
    {"mnuSpecSubEnd", "&End a Subroutine", "", "End Subroutine", "Subroutine", "123", 0, 130},
};

const std::vector<std::pair<std::string, std::string>> keyCases = {
    {"Arrow", "mnuArrow"}, {"Keyboard Input", "mnuInputKeyboardScalar"},
    {"Matrix Input", "mnuInputKeyboardMatrix"}, {"Matrix Make Input", "mnuMatMake"},
    {"Eigen", "mnuMatEig"}, {"Special Matrix", "mnuMatMake"},
    {"Vector Make Input", "mnuMatMakeVec"}, {"Constant Input", "mnuConst"},
    {"Dummy Input", "mnuSpecDummy"}, {"Ascii File Input", "mnuInputAscii"},
    {"Screen Output", "mnuOutputScreen"}, {"Plot Output", "mnuOutputPlot"},
    {"Trash", "mnuOutputTrash"}, {"Ascii File Output", "mnuOutputAsciiFile"},
    {"Basic Arithmatic", "mnuOperatorsArith"}, {"Compute Function", "mnuOperatorsFunc"},
    {"Logic Operators", "mnuOperatorsLogic"}, {"Complex Operators", "mnuOperatorsComplex"},
    {"Bessel Function", "mnuSpecialBessel"}, {"Round", "mnuOperatorsRound"},
    {"Natural Logarithm", "mnuOperatorsLog"}, {"Square Root", "mnuOperatorsRoot"},
    {"Matrix Manipulation", "mnuMatMan"}, {"Split Matrix", "mnuMatSplit"},
    {"Matrix Length", "mnuMatLength"}, {"Matrix Size", "mnuMatSize"},
    {"Matlab Command", "mnuSpecMatlab"}, {"Comment", "mnuSpecComment"},
    {"Pickup", "mnuSpecPickup"}, {"For", "mnuLoopFor"}, {"While", "mnuLoopWhile"},
    {"Next", "mnuLoopNext"}, {"Break", "mnuLoopBreak"}, {"Subroutine", "mnuSpecSub"},
    {"If", "mnuCondIf"}, {"End If", "mnuCondEndIf"}, {"Sin", "mnuTrigSin"},
    {"Cos", "mnuTrigCos"}, {"Tan", "mnuTrigTan"}, {"Cot", "mnuTrigCot"},
    {"ASin", "mnuTrigArcSin"}, {"ACos", "mnuTrigArcCos"}, {"ATan", "mnuTrigArcTan"},
    {"ACot", "mnuTrigArcCot"}, {"FFTFFT", "mnuFFTfft"}, {"FFTFFT2", "mnuFFTFFT2"},
    {"FFTIFFT", "mnuFFTIFFT"}, {"FFTShift", "mnuFFTfftshift"},
    {"Numerical", "mnuSpecialNumerical"}, {"Polynomial", "mnuSpecialPoly"},
    {"Correlation", "mnuMatCorr"}, {"Differences", "mnuMatDiff"},
    {"Vecops", "mnuMatVectorOperations"}, {"User", "mnuInputUser"},
    {"MatAnalysis", "mnuMatAnalysis"}, {"Beta Function", "mnuSpecialBeta"},
    {"Error Function", "mnuSpecialError"}, {"Integer Function", "mnuSpecialInt"},
    {"String Compare", "mnuStringCompare"}, {"String Make", "mnuStringMake"},
    {"String Convert", "mnuStringConvert"}, {"Check", "mnuSpecialCheck"},
    {"Sound", "mnuSounds"},
};
// clang-format on

std::string OpenEntries(const Box& box) {
    std::string open;
    for (int i = 1; i <= 3; ++i) {
        if (box.BoxIn[i] == 0) open += NumberText(i);
    }
    return open;
}

int OpenExits(const Box& box) {
    int open = 0;
    for (int i = 1; i <= 5; ++i) open += box.BoxOut[i] == 0 ? 1 : 0;
    return open;
}

}  // namespace

struct BoxCommands : DiagramTest {
    void SetUp() override {
        DiagramTest::SetUp();
        // The plot's dialog alone can't be left without a choice.
        screen.Forms["frmPlot"] = [] {
            frmPlot.cmbType.Text = "2-D Plot";
            frmPlot_cmbType_Change();
            frmPlot.chkInput1[2].Value = 1;
            frmPlot_cmdOK_Click();
        };
    }
    Worksheet& Sheet(int document = 1) { return *Documents[document]; }
    /// A fresh program in which one command has run.
    const Box& RunFresh(const std::string& control) {
        screen = {};
        SetUp();
        RunBoxCommand(Sheet(), control);
        return Boxes[1];
    }
};

TEST_F(BoxCommands, EachArmsOneBoxAsTheCatalogueSays) {
    ASSERT_EQ(boxCommands.size(), commandCases.size());
    for (std::size_t i = 0; i < commandCases.size(); ++i) {
        const auto& row = commandCases[i];
        SCOPED_TRACE(row.Control);
        EXPECT_EQ(boxCommands[i].Control, row.Control);
        EXPECT_EQ(boxCommands[i].Caption, row.Caption);
        EXPECT_EQ(boxCommands[i].Dialog, row.Dialog);
        const auto& box = RunFresh(row.Control);
        EXPECT_EQ(NextBox, 2);
        EXPECT_EQ(EditMode, 2);
        EXPECT_EQ(box.BoxType, row.BoxType);
        EXPECT_EQ(box.BoxMark, "");
        EXPECT_EQ(box.BoxText, row.BoxText);
        EXPECT_EQ(OpenEntries(box), row.Entries);
        EXPECT_EQ(OpenExits(box), row.Exits);
        EXPECT_EQ(Sheet().box[1].Picture, row.Cell);
        const bool form = row.Dialog.starts_with("frm");
        EXPECT_EQ(screen.FormsShown, form ? Texts{row.Dialog} : Texts{});
        EXPECT_EQ(screen.Prompts.size(), row.Dialog == "input box" ? 1u : 0u);
        EXPECT_TRUE(screen.Messages.empty());
    }
}

TEST_F(BoxCommands, ToolboxKeysRunTheirCommands) {
    ASSERT_EQ(toolboxKeys.size(), keyCases.size());
    for (std::size_t i = 0; i < keyCases.size(); ++i) {
        const auto& [key, control] = keyCases[i];
        SCOPED_TRACE(key);
        EXPECT_EQ(toolboxKeys[i].Key, key);
        const Box expected = RunFresh(control);
        screen = {};
        SetUp();
        Sheet().cmdEventFire = key;
        cmdEventFire_Click(Sheet());
        EXPECT_EQ(Boxes[1], expected);
        EXPECT_EQ(EditMode, key == "Arrow" ? 3 : key == "Subroutine" ? 1 : 2);
        EXPECT_EQ(screen.MenusPopped, key == "Subroutine" ? Texts{"mnuSpecSub"} : Texts{});
    }
    for (const char* unknown : {"", "Pause", "sin", "Two Dimentional Inverse FFT"}) {
        screen = {};
        SetUp();
        Sheet().cmdEventFire = unknown;
        cmdEventFire_Click(Sheet());
        EXPECT_EQ(NextBox, 1) << unknown;
    }
    RunBoxCommand(Sheet(), "mnuArrow");
    EXPECT_EQ(EditMode, 1);
}

TEST_F(BoxCommands, AnArmedBoxIsRetyped) {
    RunBoxCommand(Sheet(), "mnuConst");
    RunBoxCommand(Sheet(), "mnuTrigSin");
    const Box& box = Boxes[1];
    EXPECT_EQ(NextBox, 2);
    EXPECT_EQ(box.BoxType, "Sin");
    EXPECT_EQ(box.BoxText, "pi");     // "Sin" writes no text
    EXPECT_EQ(OpenEntries(box), "");  // and opens no entry
    EXPECT_EQ(Sheet().box[1].Picture, 118);
    // Options that differ from their list write their entries alone.
    screen.Forms["frmRound"] = [] { frmOptionList_Option_Click(3); };
    RunBoxCommand(Sheet(), "mnuOperatorsRound");
    EXPECT_EQ(box.BoxType, "Rem");
    EXPECT_EQ(OpenEntries(box), "2");
    // Without a choice the arithmetic operators leave type and picture; their text goes.
    RunBoxCommand(Sheet(), "mnuOperatorsArith");
    EXPECT_EQ(box.BoxType, "Rem");
    EXPECT_EQ(box.BoxText, "");
    EXPECT_EQ(Sheet().box[1].Picture, 106);
    // The two that ask first ask before the box changes.
    screen.Forms["frmSubs"] = [&] {
        EXPECT_EQ(box.BoxType, "Rem");
        frmSubs.available_subs.Text = "a Subroutine";
    };
    RunBoxCommand(Sheet(), "mnuSpecSubInsert");
    EXPECT_EQ(box.BoxType, "Insert Subroutine a");
    EXPECT_EQ(OpenExits(box), 1);
}

TEST_F(BoxCommands, OnlySubroutinesAskBeforeTheBoxIsArmed) {
    for (const auto& row : commandCases) {
        if (!row.Dialog.starts_with("frm")) continue;
        screen = {};
        SetUp();
        const auto user = screen.Forms[row.Dialog];
        int modeInDialog = -1;
        screen.Forms[row.Dialog] = [&] {
            modeInDialog = EditMode;
            if (user) user();
        };
        RunBoxCommand(Sheet(), row.Control);
        EXPECT_EQ(modeInDialog, row.Dialog == "frmSubs" ? 1 : 2) << row.Dialog;
    }
}

TEST_F(BoxCommands, APictureWithoutItsControlIsPassedOver) {
    // Armed in document 1 and retyped from document 2, which has no element 1.
    NewDocument();
    RunBoxCommand(Sheet(1), "mnuTrigSin");
    RunBoxCommand(Sheet(2), "mnuTrigCos");
    EXPECT_EQ(Boxes[1].BoxType, "Cos");
    EXPECT_EQ(Sheet(1).box[1].Picture, 118);
    EXPECT_FALSE(Sheet(2).box.Has(1));
    // A sheet without a document.
    for (const char* tag : {"", "0", "9", "x"}) {
        Worksheet stray;
        stray.Tag = tag;
        RunBoxCommand(stray, "mnuTrigTan");
        EXPECT_EQ(Boxes[1].BoxType, "Tan") << tag;
    }
    EXPECT_EQ(Sheet(1).box[1].Picture, 118);
    EXPECT_TRUE(screen.Messages.empty());
}

TEST_F(BoxCommands, WithAllBoxesInUseTheLastButOneIsOverwritten) {
    for (int i = 1; i <= MaxBoxes; ++i) Draw({{"Sin", ""}});
    EditMode = 1;
    RunBoxCommand(Sheet(), "mnuSpecDummy");
    ASSERT_EQ(screen.Messages.size(), 1u);
    EXPECT_EQ(NextBox, 350);
    EXPECT_EQ(Boxes[349].BoxType, "Dummy Input");
    EXPECT_EQ(Boxes[350].BoxType, "Sin");
}

TEST_F(BoxCommands, WritesFallBehindWhereTheModeDoesNotCount) {
    Draw({{"Cos", "", {0}}, {"Tan", "", {0}}});
    EditMode = 5;
    RunBoxCommand(Sheet(), "mnuSpecDummy");
    EXPECT_EQ(Boxes[2].BoxType, "Dummy Input");
    EXPECT_EQ(NextBox, 3);
    EditMode = 3;  // Takes record 2 back, which is then cleared, and writes record 1
    RunBoxCommand(Sheet(), "mnuSpecDummy");
    EXPECT_EQ(NextBox, 2);
    EXPECT_EQ(Boxes[1].BoxType, "Dummy Input");
    EXPECT_EQ(Boxes[2].BoxType, "");
    // With no box at all there is no record to write.
    ResetBoxTable();
    EditMode = 3;
    RunBoxCommand(Sheet(), "mnuSpecDummy");
    EXPECT_EQ(NextBox, 0);
    EXPECT_EQ(Boxes[0].BoxType, "");
}

}  // namespace quorvane::testing
