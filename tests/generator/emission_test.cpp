// SPDX-License-Identifier: MIT
#include "generator/emission_chain.h"

#include <algorithm>
#include <set>
#include <sstream>

#include "catalogue/matrix_input.h"
#include "generator/generator_fixture.h"
#include "platform/numbers.h"

namespace quorvane::testing {

namespace {

/// Boxes of the types in Keys (parted by "|") with a text and entries as box 4, behind the
/// constants 1 to 3, and what they write; "@" is the type in lower case.
struct EmissionCase {
    const char* Keys;
    const char* Text;
    std::vector<int> In;
    const char* Expected;
};

// clang-format off
const std::vector<EmissionCase> emissionCases = {
    {"Matrix Make Input", "zeros(3,4)", {}, "box4=zeros(3,4);\n"},
    {"Matrix Make Input", "zeros(3,4)", {-1, -1, 0}, "box4=zeros(3,4);\n"},
    {"Matrix Make Input", "zeros(3,4)", {1, 2, 0}, "zeros(box1,2);\n"},
    {"Matrix Make Input", "a(b(c", {-1, 2}, "a(box-1,2);\n"},
    {"Matrix Make Input", "rand", {3, 0}, "box3,0);\n"},
    {"Vector Make Input", "[1:2:9];", {}, "box4=[1:2:9];\n"},
    {"Vector Make Input", "x", {}, "box4=x\n"},
    {"Vector Make Input", "x", {1, 2, 3}, "box4=[box1:box2:box3];\n"},
    {"Vector Make Input", "x", {1, 0}, "box4=[box1:box0:box-1];\n"},
    {"Constant Input", "pi", {}, "box4=pi;\n"},
    {"Dummy Input", "x", {}, ""},
    {"+", "", {1, 2, 0}, "box4=box1+box2;\n"},
    {"+", "", {1, 2, 3}, "box4=box1+box2+box3;\n"},
    {"+", "", {0, 2, 3}, "box4=box2+box3;\n"},
    {"+", ".", {1, 2, 0}, "box4=box1+.box2+;\n"},
    {"+", "", {1, 0, -1}, "box4=box1+box-1;\n"},
    {"+", "", {1, 0, 0}, ""},
    {"+", "", {0, 0, 0}, ""},
    {"-", ".", {1, 2}, "box4=box1-box2;\n"},
    {"-", "", {1, 0}, "box4=box1-box0;\n"},
    {"/|^|*", "", {1, 2}, "box4=box1@box2;\n"},
    {"/|^|*", ".", {1, 2}, "box4=box1.@box2;\n"},
    {"*", "", {1}, "box4=box1*box-1;\n"},
    {"Compute Function|Matlab Command", "Output=Input1*Input3;", {1, 2, 3}, "box4=box1*box3;\n"},
    {"Compute Function|Matlab Command", "disp(input2)", {1, 2, 3}, "box4=0;disp(box2)\n"},
    {"Logic Operator", "|", {1, 2}, "box4=box1|box2;\n"},
    {"Logic Operator", "&", {1, 2}, "box4=box1&box2;\n"},
    {"Logic Operator", "~", {1, 2}, "box4=~box1;\n"},
    {"Logic Operator", "xor", {1, 2}, "box4=xor(box1,box2);\n"},
    {"Logic Operator", "XOR", {1, 2}, ""},
    {"Matrix Manipulation", "fliplr", {1}, "box4=fliplr(box1);\n"},
    {"Matrix Manipulation", "flipud", {1}, "box4=flipud(box1);\n"},
    {"Matrix Manipulation", "rot90", {1}, "box4=rot90(box1);\n"},
    {"Matrix Manipulation", "tril", {1}, "box4=tril(box1);\n"},
    {"Matrix Manipulation", "triu", {1}, "box4=triu(box1);\n"},
    {"Matrix Manipulation", "transpose", {1}, "box4=box1';\n"},
    {"Matrix Manipulation", "Fliplr", {1}, "box4=diag(box1,iplr);\n"},
    {"Matrix Manipulation", "Transpose", {1}, "box4=diag(box1,anspose);\n"},
    {"Matrix Manipulation", "Diag|1", {1}, "box4=diag(box1,ag|1);\n"},
    {"Matrix Manipulation", "D", {1}, "box4=diag(box1,);\n"},
    {"Split", "Row2:3", {1}, "box4=box1(2:3,:);\n"},
    {"Split", "Col4", {1}, "box4=box1(:,4);\n"},
    {"Split", "row4", {1}, "box4=box1(:,4);\n"},
    {"Matrix Length", "", {1}, "box4=length(box1);\n"},
    {"Matrix Size", "", {1}, "box4=size(box1);\n"},
    {"ODE23|ODE45", "", {1, 2, 3}, "box4=@('yprime',box1,box2,box3 );\n"},
    {"ODE45", "", {1, 0}, "box4=ode45('yprime',box1,box0,box-1 );\n"},
    {"Low Integrate|High Integrate|Interpolate|Interpolate with FFT|Multiply Polynomials|"
     "Devide Polynomials|Differentiate Polynomial|Fit Polynomial|Partial Fraction Expantion|"
     "Matrix Polynomial Evaluation|Polynomial Evaluation|Construct Polynomial|Polynomial Roots|"
     "Sort Complex", "PolyVal", {1, 2, 3}, "box4=polyval(box1,box2 );\n"},
    {"Low Integrate", "Quad", {1, 2, 3}, "box4=quad(box1,box2,box3 );\n"},
    {"High Integrate", "quad8", {1, 0}, "box4=quad8(box1,box0,box-1 );\n"},
    {"Fit Polynomial", "polyfit", {1, 2, 3}, "box4=polyfit(box1,box2,box3 );\n"},
    {"Sort Complex", "residue", {1, 2, 3}, "box4=residue(box1,box2,box3 );\n"},
    {"Polynomial Evaluation", "Polynomial Evaluation", {1, 2, 3},
     "box4=polynomial evaluation(box1,box2 );\n"},
    {"Dot|Cross|GCD|LCM", "x", {1, 2}, "box4=@(box1,box2 );\n"},
    {"IsStr|IsLetter|IsSpace|All|Any|IsNAN|IsINF|Finite|IsEmpty|IsReal|IsSparse|IsGlobal", ">1",
     {1, 2}, "box4=@(box1 );\n"},
    {"Find", "==Pi", {1}, "box4=find(box1==Pi );\n"},
    {"Find", "", {1}, "box4=find(box1 );\n"},
    {"Beta function|Incomplete beta function|Logarithm of beta function|Gamma function|"
     "Incomplete gamma function|Logarithm of gamma function|Exponential integral function|"
     "Associated Legendre function|Error function|Complementary error function|"
     "Scaled complementary error function|Inverse error function", "ErfInv", {1},
     "box4=erfinv(box1);\n"},
    {"Beta function", "beta", {1, 2, 0}, "box4=beta(box1,box2);\n"},
    {"Incomplete beta function", "betainc", {1, 2, 3}, "box4=betainc(box1,box2,box3);\n"},
    {"Incomplete beta function", "betainc", {1, 0, 3}, "box4=betainc(box1);\n"},
    {"Incomplete beta function", "betainc", {1, -1, 3}, "box4=betainc(box1);\n"},
    {"StrCmp|FindStr|StrTok", "", {1, 2, 3}, "box4=@(box1(box2);\n"},
    {"StrCmp", "", {1, 0}, "box4=strcmp(box1(box0);\n"},
    {"StrRep", "", {1, 2, 3}, "box4=strrep(box1(box2,box3);\n"},
    {"Upper|Lower", "", {1, 2, 3}, "box4=@(box1);\n"},
    {"SetStr|Blanks|Deblank", "x", {1, 2}, "box4=@(box1);\n"},
    {"Eval", "", {1, 2}, "box4=eval(box1,box2);\n"},
    {"Eval", "", {1}, "box4=eval(box1,box-1);\n"},
    {"Num2Str|Int2Str|Str2Num|Hex2Num|Hex2Dec|Dec2Hex", "", {1, 2, 3}, "box4=@(box1);\n"},
    {"Str2Mat|Mat2Str", "", {1, 0}, "box4=@(box1);\n"},
    {"Str2Mat", "", {1, 2, 3}, "box4=str2mat(box1,box2);\n"},
    {"Mat2Str", "", {1, 2, 3}, "box4=mat2str(box1,box2,box3);\n"},
    {"Mat2Str", "", {1, 0, 3}, "box4=mat2str(box1,box3);\n"},
    {"User Input", "How Many?", {1}, "box4=input('How Many?');\n"},
    {"Pause", "", {1}, "box4=box1;\npause;\n"},
    {"Pause", "2", {3}, "box4=box3;\npause(2);\n"},
    {"Pause", "2", {0}, "pause(2);\n"},
    {"Pause", "", {-1}, "pause;\n"},
    {"Companion matrix|Several small test matrices|Hadamard matrix|Hankel matrix|Hilbert matrix|"
     "Inverse Hilbert matrix|Kronecker tensor product|Magic square|Pascal matrix|Toeplitz matrix|"
     "Vandermonde matrix|Wilkinson's eigenvalue test matrix|Characteristic polynomial|Eigenvalues",
     "Hankel", {1, 2, 3}, "box4=hankel(box1,box2);\n"},
    {"Magic square", "magic", {1, 0}, "box4=magic(box1);\n"},
    {"Eigenvalues", "eig", {1, -1}, "box4=eig(box1);\n"},
    {"Eigenvectors", "Eig", {1, 0, 0}, "[box4,temp1]=eig(box1);\nclear temp1;\n"},
    {"Eigenvectors", "eig", {1, 2, 3}, "[box4,temp1]=eig(box1,box2);\nclear temp1;\n"},
    {"Trapz|Diff|Gradient|Del2|Norm|Rank|Rref|Trace|Rcond|Sound|Auread|Auwrite|Wavwrite|Wavread|"
     "lin2mu|mu2lin", "x", {1, 2, 0}, "box4=@(box1,box2 );\n,box2 );\n"},
    {"Diff", "", {1, 0, 0}, "box4=diff(box1,box0 );\n );\n"},
    {"Diff", "", {1}, "box4=diff(box1,box-1 );\n );\n"},
    {"Gradient", "", {1, 2, 3}, "box4=gradient(box1,box2 );\n,box2,box3 );\n"},
    {"Gradient", "", {1, 0, 3}, "box4=gradient(box1,box0 );\n,box3 );\n"},
    {"Filter|Filter2", "", {1, 2, 3}, "box4=@(box1,box2,box3 );\n"},
    {"Correlation coefficients|Covariance matrix|Angle between subspaces|Cumulative Sum|"
     "Cumulative Product|Matrix condition number|Determinant|Null space|Orthogonalization|Saxis",
     "CumSum", {1, 2, 3}, "box4=cumsum(box1,box2 );\n"},
    {"Determinant", "det", {1, 0}, "box4=det(box1 );\n"},
    {"Unwrap", "x", {1, 2}, "box4=unwrap(box1,box2 );\n"},
    {"Unwrap", "x", {1}, "box4=unwrap(box1 );\n"},
    {"Sin|Cos|Tan|Cot|ASin|ACos|ATan|ACot|Log|Sqrt|Abs|Angle|Real|Conj|Imag|Fix|Floor|Ceil|Rem|"
     "Sign|Round|FFTShift|Prod|Sum|Sort", "x", {1, 2, 3}, "box4=@(box1);\n"},
    {"FFT|IFFT|FFT2", "", {1, 0, 0}, "box4=@(box1);\n"},
    {"FFT|IFFT", "", {1, 2, 3}, "box4=@(box1,box2);\n"},
    {"FFT2", "", {1, 2, 3}, "box4=fft2(box1,box2,box3);\n"},
    {"FFT2", "", {1, -1, 3}, "box4=fft2(box1,box3);\n"},
    {"BesselJ|BesselK|BesselI|BesselY", "N", {1}, "box4=@(N,box1);\n"},
    {"Screen Output", "", {1}, "box4=box1\n"},
    {"Plot Output", "Plot2d;plot(Input2)\n", {1, 2}, "plot(box2)\n"},
    {"Break", "", {2}, "box4=box2;\nbreak;\n"},
};
// clang-format on

std::vector<std::string> Split(const std::string& names, char separator = '|') {
    std::vector<std::string> parts;
    std::istringstream stream(names);
    for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
    return parts;
}

std::string Replaced(std::string text, const std::string& word, const std::string& by) {
    for (auto at = text.find(word); at != std::string::npos; at = text.find(word, at + by.size())) {
        text.replace(at, word.size(), by);
    }
    return text;
}

}  // namespace

class EmissionTest : public GeneratorTest {
protected:
    /// Three constants, the box under test as box 4, a "Screen Output" behind it which shows that
    /// it was done, and a box that is never reached.
    std::string CompileAsBox4(const TestBox& tested) {
        Draw({{"Constant Input", "1", {}, {4}},
              {"Constant Input", "2", {}, {4}},
              {"Constant Input", "3", {}, {4}}});
        Draw({{tested.Type, Crlf(tested.Text), tested.In, {5}}});
        Draw({{"Screen Output", "", {4}}, {"Sin"}});
        return Compile();
    }
    static std::string Whole(const std::string& ofBox4) {
        return Crlf("box1=1;\nbox3=3;\nbox2=2;\n" + ofBox4 + "box5=box4\n");
    }
};

TEST_F(EmissionTest, EveryRowWritesItsText) {
    for (const auto& row : emissionCases) {
        for (const auto& key : Split(row.Keys)) {
            SCOPED_TRACE(key + " with \"" + row.Text + "\"");
            Restart();
            const auto expected = Whole(Replaced(row.Expected, "@", LowerCase(key)));
            EXPECT_EQ(CompileAsBox4({key, row.Text, row.In, {}}), expected);
            EXPECT_EQ(Told(), Texts{"Done !"});
        }
    }
}

TEST_F(EmissionTest, EveryRowWithAnArrowWaitsForIt) {
    for (const auto& row : emissionCases) {
        auto in = row.In;
        const auto arrow = std::find_if(in.begin(), in.end(), [](int entry) { return entry > 0; });
        if (arrow == in.end()) continue;
        *arrow = 6;
        for (const auto& key : Split(row.Keys)) {
            Restart();
            EXPECT_EQ(CompileAsBox4({key, row.Text, in, {}}), "") << key;
            EXPECT_EQ(Told(), Texts{StallText("box4 (" + key + ")")});
        }
    }
}

TEST_F(EmissionTest, KeysWithoutARowStall) {
    for (const char* key :
         {"Cumulative sum", "Null Space", "Sound axis scaling", "wavread", "wavwrite", "Pickup",
          "IFFT2", "Comment", "sin", "SubroutineX", "insert subroutine X", ""}) {
        Restart();
        EXPECT_EQ(CompileAsBox4({key, "x", {1}, {}}), "") << key;
        EXPECT_EQ(Told(), Texts{StallText("box4 (" + std::string(key) + ")")});
    }
}

TEST_F(EmissionTest, TheChainHoldsEachKeyOnceAndOnlyKnownHoles) {
    std::set<std::string, std::less<>> expected = {"Keyboard Input",
                                                   "Matrix Input",
                                                   "Ascii File Input",
                                                   "Ascii File Output",
                                                   "Trash",
                                                   "For",
                                                   "While",
                                                   "Next",
                                                   "End Subroutine",
                                                   "If",
                                                   "End If"};
    for (const auto& row : emissionCases) {
        for (const auto& key : Split(row.Keys)) expected.insert(key);
    }
    const std::set<std::string, std::less<>> holes = {"id",    "in1",  "in2",    "in3",
                                                      "value", "type", "lctype", "lcvalue"};
    std::set<std::string, std::less<>> known;
    for (const auto& row : emissionChain) {
        for (const auto key : row.Keys) EXPECT_TRUE(known.emplace(key).second) << key;
        std::string texts = std::string(row.Head) + std::string(row.Close);
        for (const auto& piece : row.Pieces) texts += piece.Text;
        const auto parts = Split(texts, '{');
        for (std::size_t i = 1; i < parts.size(); ++i) {
            EXPECT_TRUE(holes.contains(parts[i].substr(0, parts[i].find('}')))) << texts;
        }
    }
    EXPECT_EQ(known, expected);
}

TEST_F(EmissionTest, AMatrixMakeWithoutABracketTakesTheFormerPrefix) {
    Draw({{"Constant Input", "1", {}, {2}},
          {"Matrix Make Input", "ones(2,2)", {1, 1, 0}, {3}},
          {"Matrix Make Input", "eye", {2, 1, 0}}});
    EXPECT_EQ(Compile(), Crlf("box1=1;\nones(box1,1);\nones(box2,1);\n"));
}

TEST_F(EmissionTest, APauseBehindADummyInputOnlyPauses) {
    Draw({{"Dummy Input", "", {}, {2}}, {"Pause", "3", {1}}});
    EXPECT_EQ(Compile(), Crlf("pause(3);\n"));
}

TEST_F(EmissionTest, KeyboardInputKeepsTheAnswer) {
    screen.Texts = {"7 8"};
    EXPECT_EQ(CompileAsBox4({"Keyboard Input", "5 6"}), Whole("box4=[ 7 8 ];\n"));
    EXPECT_EQ(Boxes[4].BoxText, "7 8");
    EXPECT_EQ(Compile(), Whole("box4=[  ];\n"));
    EXPECT_EQ(Boxes[4].BoxText, "");
    EXPECT_EQ(screen.Prompts, (Texts{"Quorvane: box4|Enter the data devided by spaces|5 6",
                                     "Quorvane: box4|Enter the data devided by spaces|7 8"}));
}

TEST_F(EmissionTest, MatrixInputAsksAnewAtEachRun) {
    screen.Forms["frmMatrix"] = [] {
        frmMatrix_grid_KeyDown('9', "9");
        frmMatrix_cmdOK_Click();
    };
    const auto expected = Whole("box4= [9         ]; \n");
    EXPECT_EQ(CompileAsBox4({"Matrix Input", "ignored"}), expected);
    EXPECT_EQ(Compile(), expected);
    EXPECT_EQ(screen.FormsShown, (Texts{"frmMatrix", "frmMatrix"}));
    EXPECT_FALSE(frmMatrix.Form.Loaded);
}

TEST_F(EmissionTest, FilesAreAskedForAtEachRun) {
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"/data/in.txt", "load /data/in.txt;\nbox4=in;\n"},
        {"C:\\data\\a.b.dat", "load C:\\data\\a.b.dat;\nbox4=a.b;\n"},
        {"/data.d/series", "load /data.d/series -ascii ;\nbox4=series;\n"},
        {"/data/x.m", "load /data/x.m -ascii ;\nbox4=x.m;\n"},
    };
    for (const auto& [path, expected] : cases) {
        Restart();
        screen.Paths = {path};
        EXPECT_EQ(CompileAsBox4({"Ascii File Input"}), Whole(expected)) << path;
    }
    EXPECT_EQ(Compile(), Whole("")) << "cancelled";
    ASSERT_EQ(screen.FileDialogs.size(), 2U);
    EXPECT_TRUE(
        screen.FileDialogs[1].starts_with("open|Text Files (*.txt)|*.txt|All Files (*.*)|*.*|"));
}

TEST_F(EmissionTest, AFileOutputSavesItsEntry) {
    screen.Paths = {"/out/r.m"};
    EXPECT_EQ(CompileAsBox4({"Ascii File Output", "", {2}}),
              Whole("save /out/r.m box2 -ascii ;\n"));
    EXPECT_EQ(Compile(), Whole("")) << "cancelled";
    ASSERT_EQ(screen.FileDialogs.size(), 2U);
    EXPECT_TRUE(
        screen.FileDialogs[1].starts_with("save|Mathlab Files (*.m)|*.m|All Files (*.*)|*.*|"));
}

TEST_F(EmissionTest, TrashOnlyTalks) {
    EXPECT_EQ(CompileAsBox4({"Trash", "", {1}}), Whole(""));
    EXPECT_EQ(Told(), (Texts{"What's the use of collecting data and dumping it ???", "Done !"}));
    EXPECT_EQ(screen.Messages[0].Picture, Icon::Question);
    EXPECT_EQ(screen.Messages[0].Choice, Buttons::Ok);
}

}  // namespace quorvane::testing
