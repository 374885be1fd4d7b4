// SPDX-License-Identifier: MIT
#include "catalogue/option_lists.h"

#include "catalogue/box_commands.h"
#include "platform/numbers.h"
#include "support/diagram_fixture.h"

namespace quorvane::testing {

namespace {

struct DialogCase {
    std::string Dialog, Control, Caption, FrameCaption;
};
struct OptionCase {
    std::string Dialog, Option, Caption, BoxType, BoxText, Entries;
    int Cell;
};

// clang-format off
const std::vector<DialogCase> dialogCases = {
    {"frmBasic", "mnuOperatorsArith", "Basic Arithmatic", "Choose a function"},
    {"frmLogic", "mnuOperatorsLogic", "Logic Operators", "Choose an operator"},
    {"frmCmplx", "mnuOperatorsComplex", "Complex Number Manipulation", "Select the required operation"},
    {"frmRound", "mnuOperatorsRound", "Round Numbers", "Select how to round:"},
    {"frmConst", "mnuConst", "Get a Constant", "Select the required constant"},
    {"frmSpecMat", "mnuMatSpecMat", "Create a Special Matrix", "Select the type of matrix:"},
    {"frmMatAnalysis", "mnuMatAnalysis", "Matrix Analysis", "Select how to analyse the matrix"},
    {"frmMatMan", "mnuMatMan", "Manipulate a Matrix", "Select how to manipulate the matrix:"},
    {"frmEig", "mnuMatEig", "Manipulate a Matrix", "Select required manipulation:"},
    {"frmVec", "mnuMatVectorOperations", "Vector Operations", "Select the required operation:"},
    {"frmDiff", "mnuMatDiff", "Differential & Integral Operations", "Select the required operator:"},
    {"frmCorr", "mnuMatCorr", "Correlation Operators", "Select the required operator:"},
    {"frmCheck", "mnuSpecialCheck", "Make Checks", "Select what to check"},
    {"frmBessel", "mnuSpecialBessel", "Bessel Functions", ""},
    {"frmNumeric", "mnuSpecialNumerical", "Numerical Solution & Integration", "Select the required operation:"},
    {"frmPoly", "mnuSpecialPoly", "Polynomial Functions", "Select the required function:"},
    {"frmIntFunction", "mnuSpecialInt", "Integer Functions", "Select the required function"},
    {"frmErrorFunction", "mnuSpecialError", "Error Function", "Select the required error function:"},
    {"frmBetaFunc", "mnuSpecialBeta", "Beta, Gamma & Other Functions", "Select Function"},
    {"frmStrMake", "mnuStringMake", "Create a String", "Select how to create the string:"},
    {"frmStrCompare", "mnuStringCompare", "Compare & Change Strings", ""},
    {"frmStrConvert", "mnuStringConvert", "Convert Strings", "Select how to convert the string"},
    {"frmSound", "mnuSounds", "Sound Proccessing", "Select how to proccess the sound:"},
};

// Dialog, button, caption; what it makes of a box: type, text, open entries, icon cell
const std::vector<OptionCase> optionCases = {
    {"frmBasic", "add", "+", "+", "", "123", 113},
    {"frmBasic", "sub", "-", "-", "", "123", 117},
    {"frmBasic", "mul", "*", "*", "", "123", 115},
    {"frmBasic", "div", "/", "/", "", "12", 114},
    {"frmBasic", "power", "^", "^", "", "12", 116},
    {"frmLogic", "btnOps(1)", "OR", "Logic Operator", "|", "123", 78},
    {"frmLogic", "btnOps(2)", "AND", "Logic Operator", "&", "123", 76},
    {"frmLogic", "btnOps(3)", "NOT", "Logic Operator", "~", "1", 77},
    {"frmLogic", "btnOps(4)", "XOR", "Logic Operator", "xor", "12", 79},
    {"frmCmplx", "opn(0)", "Absolute", "Abs", "", "1", 1},
    {"frmCmplx", "opn(1)", "Angle (phase)", "Angle", "", "1", 92},
    {"frmCmplx", "opn(2)", "Complex conjugate", "Conj", "", "1", 22},
    {"frmCmplx", "opn(3)", "Imaginary part", "Imag", "", "1", 66},
    {"frmCmplx", "opn(4)", "Real part", "Real", "", "1", 105},
    {"frmCmplx", "opn(5)", "Unwrap the phase of a vector", "Unwrap", "", "12", 137},
    {"frmCmplx", "opn(6)", "Sort numbers into complex conjugate pairs", "Sort Complex", "cplxpair", "12", 122},
    {"frmRound", "opn(0)", "To zero", "Fix", "", "1", 53},
    {"frmRound", "opn(1)", "To minus Infinity", "Floor", "", "1", 56},
    {"frmRound", "opn(2)", "To plus Infinity", "Ceil", "", "1", 17},
    {"frmRound", "opn(3)", "To Nearest Integer", "Rem", "", "12", 106},
    {"frmRound", "opn(4)", "Remainder from Division", "Sign", "", "1", 112},
    {"frmRound", "opn(5)", "Sign of a Number", "Round", "", "1", 109},
    {"frmConst", "opn(0)", "pi", "Constant Input", "pi", "", 24},
    {"frmConst", "opn(1)", "e", "Constant Input", "exp(1)", "", 24},
    {"frmConst", "opn(2)", "Minimum accuracy", "Constant Input", "eps", "", 24},
    {"frmConst", "opn(3)", "Imaginary unit (j)", "Constant Input", "sqrt(-1)", "", 24},
    {"frmConst", "opn(4)", "Number of floating point operations", "Constant Input", "flops", "", 24},
    {"frmConst", "opn(5)", "Arbiturary constant:", "Constant Input", "7.5", "", 24},
    {"frmSpecMat", "opn(0)", "Companion matrix", "Companion matrix", "Compan", "1", 124},
    {"frmSpecMat", "opn(1)", "Test matrices", "Several small test matrices", "Gallery", "1", 124},
    {"frmSpecMat", "opn(2)", "Hadamard matrix", "Hadamard matrix", "Hadamard", "1", 124},
    {"frmSpecMat", "opn(3)", "Hankel matrix", "Hankel matrix", "Hankel", "12", 124},
    {"frmSpecMat", "opn(4)", "Hilbert matrix", "Hilbert matrix", "Hilb", "1", 124},
    {"frmSpecMat", "opn(5)", "Inverse Hilbert matrix", "Inverse Hilbert matrix", "Invhilb", "1", 124},
    {"frmSpecMat", "opn(6)", "Kronecker tensor product", "Kronecker tensor product", "Kron", "12", 124},
    {"frmSpecMat", "opn(7)", "Magic square", "Magic square", "Magic", "1", 124},
    {"frmSpecMat", "opn(8)", "Pascal matrix", "Pascal matrix", "Pascal", "12", 124},
    {"frmSpecMat", "opn(9)", "Toeplitz matrix", "Toeplitz matrix", "Toeplitz", "12", 124},
    {"frmSpecMat", "opn(10)", "Vandermonde matrix", "Vandermonde matrix", "Vander", "1", 124},
    {"frmSpecMat", "opn(11)", "Wilkinson's eigenvalue test matrix", "Wilkinson's eigenvalue test matrix", "Wilkinson", "1", 124},
    {"frmMatAnalysis", "opn(0)", "Matrix condition number", "Matrix condition number", "cond", "1", 83},
    {"frmMatAnalysis", "opn(1)", "Matrix or vector norm", "Norm", "", "12", 83},
    {"frmMatAnalysis", "opn(2)", "LINPACK reciprocal condition estimator", "Rcond", "", "1", 83},
    {"frmMatAnalysis", "opn(3)", "Num of linearly independent rows/cols", "Rank", "", "12", 83},
    {"frmMatAnalysis", "opn(4)", "Determinant", "Determinant", "det", "1", 34},
    {"frmMatAnalysis", "opn(5)", "Sum of diagonal elements", "Trace", "", "1", 83},
    {"frmMatAnalysis", "opn(6)", "Null Space", "Null Space", "null", "1", 83},
    {"frmMatAnalysis", "opn(7)", "Orthogonalization", "Orthogonalization", "orth", "1", 83},
    {"frmMatAnalysis", "opn(8)", "Reduced row echelon form", "Rref", "", "12", 83},
    {"frmMatMan", "opn(0)", "Create or Extract Diagonal no.", "Matrix Manipulation", "Diag|1", "1", 35},
    {"frmMatMan", "opn(1)", "Flip left to right", "Matrix Manipulation", "Fliplr", "1", 54},
    {"frmMatMan", "opn(2)", "Flip Up to Down", "Matrix Manipulation", "Flipud", "1", 55},
    {"frmMatMan", "opn(3)", "Rotate 90 Degrees Counter Clockwise", "Matrix Manipulation", "Rot90", "1", 108},
    {"frmMatMan", "opn(4)", "Transpose", "Matrix Manipulation", "Transpose", "1", 134},
    {"frmMatMan", "opn(5)", "Get lower triangle", "Matrix Manipulation", "Tril", "1", 81},
    {"frmMatMan", "opn(6)", "Get upper triangle", "Matrix Manipulation", "Triu", "1", 139},
    {"frmEig", "opn(0)", "Eigenvalues", "Eigenvalues", "Eig", "12", 42},
    {"frmEig", "opn(1)", "Eigenvectors", "Eigenvectors", "Eig", "12", 43},
    {"frmEig", "opn(2)", "Characteristic polynomial", "Characteristic polynomial", "Poly", "1", 18},
    {"frmVec", "opn(0)", "Sort in ascending order", "Sort", "", "1", 122},
    {"frmVec", "opn(1)", "Sum of elements", "Sum", "", "1", 132},
    {"frmVec", "opn(2)", "Product of elements", "Prod", "", "1", 102},
    {"frmVec", "opn(3)", "Cumulative sum of elements", "Cumulative sum", "cumsum", "1", 141},
    {"frmVec", "opn(4)", "Cumulative product of elements", "Cumulative Product", "cumprod", "1", 141},
    {"frmVec", "opn(5)", "Cross product", "Cross", "", "12", 30},
    {"frmVec", "opn(6)", "Dot product", "Dot", "", "12", 38},
    {"frmVec", "opn(7)", "One-dimensional digital filter", "Filter", "", "123", 52},
    {"frmVec", "opn(8)", "Two-dimensional digital filter", "Filter2", "", "123", 52},
    {"frmDiff", "opn(0)", "Difference function", "Diff", "", "123", 37},
    {"frmDiff", "opn(1)", "Approximate gradient", "Gradient", "", "123", 61},
    {"frmDiff", "opn(2)", "Five-point discrete Laplacian", "Del2", "", "1", 33},
    {"frmDiff", "opn(3)", "Numerical integration using trapezoidal method", "Trapz", "", "12", 135},
    {"frmCorr", "opn(0)", "Correlation coefficients", "Correlation coefficients", "corrcoef", "12", 26},
    {"frmCorr", "opn(1)", "Covarience matrix", "Covariance matrix", "cov", "12", 26},
    {"frmCorr", "opn(2)", "Angle between subspaces", "Angle between subspaces", "subspace", "12", 131},
    {"frmCheck", "opn(0)", "True for string", "IsStr", "", "1", 19},
    {"frmCheck", "opn(1)", "True for letters of the alphabet", "IsLetter", "", "1", 19},
    {"frmCheck", "opn(2)", "True for white space characters", "IsSpace", "", "1", 19},
    {"frmCheck", "opn(3)", "True if all elements of a vector are true", "All", "", "1", 19},
    {"frmCheck", "opn(4)", "True if any element of the vector is true", "Any", "", "1", 19},
    {"frmCheck", "opn(5)", "True for Not-A-Number (NAN)", "Find", "", "1", 19},
    {"frmCheck", "opn(6)", "Find indices of non-zero elements.", "IsNAN", "", "1", 19},
    {"frmCheck", "opn(7)", "True for empty matrix", "IsINF", "", "1", 19},
    {"frmCheck", "opn(8)", "True for real matrix", "Finite", "", "1", 19},
    {"frmCheck", "opn(9)", "True for sparse matrix", "IsEmpty", "", "1", 19},
    {"frmCheck", "opn(10)", "True for global variables", "IsReal", "", "1", 19},
    {"frmCheck", "opn(11)", "True for finite elements", "IsSparse", "", "1", 19},
    {"frmBessel", "opn(0)", "Bessel function of the first kind (J)", "BesselJ", "0", "1", 11},
    {"frmBessel", "opn(1)", "Bessel function of the second kind (Y)", "BesselY", "0", "1", 13},
    {"frmBessel", "opn(2)", "Modified Bessel func. of the first kind (I)", "BesselI", "0", "1", 10},
    {"frmBessel", "opn(3)", "Modified Bessel func. of the second kind (K)", "BesselK", "0", "1", 12},
    {"frmNumeric", "opn(0)", "Solve differential equation using ODE23", "ODE23", "", "123", 36},
    {"frmNumeric", "opn(1)", "Solve differential equation using ODE45", "ODE45", "", "123", 36},
    {"frmNumeric", "opn(2)", "Evaluate integral (Low order method)", "Low Integrate", "quad", "123", 68},
    {"frmNumeric", "opn(3)", "Evaluate integral (High order method)", "High Integrate", "quad8", "123", 68},
    {"frmNumeric", "opn(4)", "Data interpolation", "Interpolate with FFT", "interpft", "12", 70},
    {"frmNumeric", "opn(5)", "1-D interpolation using FFT", "Interpolate", "interp", "12", 69},
    {"frmPoly", "opn(0)", "Find polynomial roots", "Polynomial Roots", "roots", "1", 107},
    {"frmPoly", "opn(1)", "Construct polynomial with specified roots", "Construct Polynomial", "poly", "1", 23},
    {"frmPoly", "opn(2)", "Polynomial evaluation", "Polynomial Evaluation", "polyval", "123", 100},
    {"frmPoly", "opn(3)", "Matrix polynomial evaluation", "Matrix Polynomial Evaluation", "polyvalm", "12", 101},
    {"frmPoly", "opn(4)", "Partial fractions expansion", "Partial Fraction Expantion", "residue", "123", 91},
    {"frmPoly", "opn(5)", "Fit polynomial to data", "Fit Polynomial", "polyfit", "123", 99},
    {"frmPoly", "opn(6)", "Differentiate polynomial", "Differentiate Polynomial", "polyder", "12", 98},
    {"frmPoly", "opn(7)", "Divide polynomials", "Devide Polynomials", "deconv", "12", 32},
    {"frmPoly", "opn(8)", "Multiply polynomials", "Multiply Polynomials", "conv", "12", 25},
    {"frmIntFunction", "opn(0)", "Greatest common divisor", "GCD", "", "12", 71},
    {"frmIntFunction", "opn(1)", "Least common multiple", "LCM", "", "12", 71},
    {"frmErrorFunction", "opn(0)", "Error function", "Error function", "erf", "1", 46},
    {"frmErrorFunction", "opn(1)", "Complementary error function", "Complementary error function", "erfc", "1", 46},
    {"frmErrorFunction", "opn(2)", "Scaled complementary error function", "Scaled complementary error function", "erfcx", "1", 46},
    {"frmErrorFunction", "opn(3)", "Inverse error function", "Inverse error function", "erfinv", "1", 46},
    {"frmBetaFunc", "opn(0)", "Beta function", "Beta function", "Beta", "123", 14},
    {"frmBetaFunc", "opn(1)", "Incomplete Beta function", "Incomplete beta function", "Betainc", "123", 14},
    {"frmBetaFunc", "opn(2)", "Logarithm of the Beta function", "Logarithm of beta function", "Betaln", "123", 14},
    {"frmBetaFunc", "opn(3)", "Gamma function", "Gamma function", "Gamma", "1", 60},
    {"frmBetaFunc", "opn(4)", "Incomplete Gamma function", "Incomplete gamma function", "GammaInc", "123", 60},
    {"frmBetaFunc", "opn(5)", "Logarithm of the Gamma function", "Logarithm of gamma function", "gammaln", "1", 60},
    {"frmBetaFunc", "opn(6)", "Exponential integral function", "Exponential integral function", "Expint", "1", 48},
    {"frmBetaFunc", "opn(7)", "Associated Legandre function", "Associated Legendre function", "Legendre", "12", 71},
    {"frmStrMake", "opn(0)", "Convert numeric values to string", "SetStr", "", "1", 111},
    {"frmStrMake", "opn(1)", "String of blanks", "Blanks", "", "1", 15},
    {"frmStrMake", "opn(2)", "Remove trailing blanks", "Deblank", "", "1", 31},
    {"frmStrMake", "opn(3)", "Execute string with MATLAB expression", "Eval", "", "12", 47},
    {"frmStrCompare", "opn(0)", "Compare strings", "StrCmp", "", "12", 127},
    {"frmStrCompare", "opn(1)", "Find one string within another", "FindStr", "", "12", 127},
    {"frmStrCompare", "opn(2)", "Convert string to uppercase", "Upper", "", "1", 138},
    {"frmStrCompare", "opn(3)", "Convert string to lowercase", "Lower", "", "1", 80},
    {"frmStrCompare", "opn(4)", "Replace a string with another", "StrRep", "", "123", 127},
    {"frmStrCompare", "opn(5)", "Find a token in a string", "StrTok", "", "12", 127},
    {"frmStrConvert", "opn(0)", "Form text matrix from individual strings", "Str2Mat", "", "123", 128},
    {"frmStrConvert", "opn(1)", "Convert string to number", "Str2Num", "", "1", 128},
    {"frmStrConvert", "opn(2)", "Convert number to string", "Num2Str", "", "1", 128},
    {"frmStrConvert", "opn(3)", "Convert integer to string", "Int2Str", "", "1", 128},
    {"frmStrConvert", "opn(4)", "Convert matrix to string", "Mat2Str", "", "13", 128},
    {"frmStrConvert", "opn(5)", "Convert hex string to IEEE floating point number", "Hex2Num", "", "1", 128},
    {"frmStrConvert", "opn(6)", "Convert hex string to decimal integer", "Hex2Dec", "", "1", 128},
    {"frmStrConvert", "opn(7)", "Convert decimal integer to hex string", "Dec2Hex", "", "1", 128},
    {"frmSound", "opn(0)", "Convert vector into sound", "Sound", "", "12", 123},
    {"frmSound", "opn(1)", "Sound axis scaling", "Sound axis scaling", "saxis", "1", 110},
    {"frmSound", "opn(2)", "Write mu-law encloded audio file", "Auwrite", "", "12", 8},
    {"frmSound", "opn(3)", "Read mu-law encloded audio file", "Auread", "", "1", 7},
    {"frmSound", "opn(4)", "Write MS Windows .WAV audio file", "wavwrite", "", "123", 104},
    {"frmSound", "opn(5)", "Read MS Windows .WAV audio file", "wavread", "", "1", 143},
    {"frmSound", "opn(6)", "Mu-law to linear conversion", "mu2lin", "", "1", 87},
    {"frmSound", "opn(7)", "Linear to mu-law conversion", "lin2mu", "", "1", 74},
};
// clang-format on

}  // namespace

struct OptionLists : DiagramTest {
    /// The user presses the buttons and types into the field of a dialog, then OK, on a new box.
    const Box& Make(const std::string& dialog, const std::vector<std::string>& buttons,
                    const std::string& field = "") {
        EditMode = 1;
        screen.Forms[dialog] = [&] {
            const auto form = OptionList_Table(*FindOptionList(dialog));
            const auto row = [&](const std::string& name) {
                for (const auto& control : form.Controls) {
                    if (control.Name == name) return control;
                }
                ADD_FAILURE() << dialog << " has no " << name;
                return ControlRow();
            };
            frmOptionList.Form.Visible = true;
            if (!field.empty()) {
                const auto typed = row(std::string(FindOptionList(dialog)->Field.Control));
                *std::get<TextBox*>(typed.Record) = {.Text = field};
                typed.Event();
            }
            for (const auto& button : buttons) {
                const auto pressed = row(button);
                std::get<OptionButton*>(pressed.Record)->Value = true;
                if (pressed.Event) pressed.Event();
            }
            row("cmdOK").Event();
            StaysOpen = frmOptionList.Form.Visible;
        };
        for (const auto& known : dialogCases) {
            if (known.Dialog == dialog) RunBoxCommand(*Documents[1], known.Control);
        }
        return Boxes[NextBox - 1];
    }
    bool StaysOpen = false;
};

TEST_F(OptionLists, EachDialogHasItsCaptionsAndCommand) {
    ASSERT_EQ(optionLists.size(), dialogCases.size());
    for (std::size_t i = 0; i < dialogCases.size(); ++i) {
        const auto& row = dialogCases[i];
        EXPECT_EQ(optionLists[i].Dialog, row.Dialog);
        EXPECT_EQ(optionLists[i].Caption, row.Caption);
        EXPECT_EQ(optionLists[i].FrameCaption, row.FrameCaption);
        std::vector<std::string> options;
        for (const auto& option : optionLists[i].Options) {
            const auto name = OptionName(optionLists[i], option);
            if (!name.empty()) options.push_back(name + " " + std::string(option.Caption));
        }
        std::vector<std::string> expected;
        for (const auto& option : optionCases) {
            if (option.Dialog == row.Dialog) {
                expected.push_back(option.Option + " " + option.Caption);
            }
        }
        if (row.Dialog == "frmCheck") expected.emplace_back("Option1 True for infinite elements");
        EXPECT_EQ(options, expected);
    }
}

TEST_F(OptionLists, EachOptionMakesItsBox) {
    for (const auto& row : optionCases) {
        if (NextBox > 300) DiagramTest::SetUp();
        SCOPED_TRACE(row.Dialog + " " + row.Option);
        const Box& box = Make(row.Dialog, {row.Option}, row.BoxText == "7.5" ? "7.5" : "");
        EXPECT_FALSE(StaysOpen);
        EXPECT_EQ(box.BoxType, row.BoxType);
        EXPECT_EQ(box.BoxText, row.BoxText);
        std::string open;
        for (int i = 1; i <= 3; ++i) {
            if (box.BoxIn[i] == 0) open += NumberText(i);
        }
        EXPECT_EQ(open, row.Entries);
        EXPECT_EQ(Documents[1]->box[NextBox - 1].Picture, row.Cell);
    }
}

TEST_F(OptionLists, ButtonsOutsideTheArrayKeepTheIndex) {
    EXPECT_EQ(Make("frmCheck", {"opn(9)", "Option1"}).BoxType, "IsEmpty");
    EXPECT_EQ(Make("frmCheck", {"Option1"}).BoxType, "IsStr");
    // The buttons of a frame exclude each other.
    EXPECT_EQ(Make("frmBasic", {"add", "power"}).BoxType, "^");
}

TEST_F(OptionLists, FieldsGoIntoTheText) {
    screen.Forms["frmBasic"] = [] {
        frmOptionList_Option_Click(2);
        frmOptionList.chkElement.Value = 1;
        frmOptionList_cmdOK_Click();
    };
    RunBoxCommand(*Documents[1], "mnuOperatorsArith");
    EXPECT_EQ(Boxes[1].BoxType, "*");
    EXPECT_EQ(Boxes[1].BoxText, ".");
    EXPECT_EQ(Make("frmCheck", {"opn(5)"}, ">3").BoxText, ">3");
    EXPECT_EQ(Make("frmCheck", {"opn(6)"}, ">3").BoxText, "");
    EXPECT_EQ(Make("frmBessel", {"opn(2)"}, "n+1").BoxText, "n+1");
    EXPECT_EQ(Make("frmMatMan", {"opn(0)"}, "-2").BoxText, "Diag|-2");
    screen.Forms["frmMatMan"] = [] { frmOptionList.Field.Text = ""; };
    EditMode = 1;
    RunBoxCommand(*Documents[1], "mnuMatMan");
    EXPECT_EQ(Boxes[NextBox - 1].BoxText, "Diag|");
    // A condition that is left empty leaves the text of the box as it was.
    Boxes[NextBox - 1].BoxText = "old";
    screen.Forms["frmCheck"] = [] { frmOptionList_Option_Click(5); };
    RunBoxCommand(*Documents[1], "mnuSpecialCheck");
    EXPECT_EQ(Boxes[NextBox - 1].BoxText, "old");
}

TEST_F(OptionLists, AConstantOfOnesOwnIsANumber) {
    EXPECT_EQ(Make("frmConst", {}, "1e3").BoxText, "1e3");
    EXPECT_EQ(Make("frmConst", {"opn(1)"}, "4").BoxText, "exp(1)");
    EXPECT_TRUE(screen.Messages.empty());
    for (const char* notANumber : {"a", "1,5", "-"}) {
        EXPECT_EQ(Make("frmConst", {}, notANumber).BoxText, "");
        EXPECT_TRUE(StaysOpen) << notANumber;
    }
    ASSERT_EQ(screen.Messages.size(), 3u);
    EXPECT_EQ(screen.Messages[0].Text, "Please enter a value for the constant.");
    EXPECT_EQ(screen.Messages[0].Picture, Icon::Exclamation);
    EXPECT_EQ(screen.Messages[0].Title, "Quorvane");
    Make("frmConst", {"opn(5)"});
    EXPECT_TRUE(StaysOpen);
    Make("frmConst", {"opn(5)", "opn(0)"});
    EXPECT_FALSE(StaysOpen);
}

TEST_F(OptionLists, EachOpeningStartsFromTheDefaults) {
    Make("frmSound", {"opn(4)"});
    EXPECT_EQ(Make("frmSound", {}).BoxType, "Sound");
    Make("frmBessel", {"opn(1)"}, "9");
    EXPECT_EQ(Make("frmBessel", {}).BoxText, "0");
}

}  // namespace quorvane::testing
