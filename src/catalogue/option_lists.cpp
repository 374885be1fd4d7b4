// SPDX-License-Identifier: MIT
#include "catalogue/option_lists.h"

#include <algorithm>

#include "platform/numbers.h"

namespace quorvane {

// clang-format off
// Dialog, caption, frame's caption, default open entries,
//     {index, caption, type, text, open entries, own name}
// Mismatched captions and keys, and rows that no button reaches, stay: saved diagrams hold them.
const std::vector<OptionList> optionLists = {
    {"frmBasic", "Basic Arithmatic", "Choose a function", "123", {
        {NoIndex, "+", "+", "{field}", "123", "add"},
        {NoIndex, "-", "-", "{field}", "123", "sub"},
        {NoIndex, "*", "*", "{field}", "123", "mul"},
        {NoIndex, "/", "/", "{field}", "12", "div"},
        {NoIndex, "^", "^", "{field}", "12", "power"}},
     {.What = ListField::Kind::Check, .Control = "chkElement", .Caption = "Element by element operation"}},

    {"frmLogic", "Logic Operators", "Choose an operator", "123", {
        {1, "OR", "", "|", "123", ""},
        {2, "AND", "", "&", "123", ""},
        {3, "NOT", "", "~", "1", ""},
        {4, "XOR", "", "xor", "12", ""}},
     {}, "btnOps", "1"},

    {"frmCmplx", "Complex Number Manipulation", "Select the required operation", "1", {
        {0, "Absolute", "Abs", nullptr, nullptr, ""},
        {1, "Angle (phase)", "Angle", nullptr, nullptr, ""},
        {2, "Complex conjugate", "Conj", nullptr, nullptr, ""},
        {3, "Imaginary part", "Imag", nullptr, nullptr, ""},
        {4, "Real part", "Real", nullptr, nullptr, ""},
        {5, "Unwrap the phase of a vector", "Unwrap", nullptr, "12", ""},
        {6, "Sort numbers into complex conjugate pairs", "Sort Complex", "cplxpair", "12", ""}}},

    {"frmRound", "Round Numbers", "Select how to round:", "1", {
        {0, "To zero", "Fix", nullptr, nullptr, ""},
        {1, "To minus Infinity", "Floor", nullptr, nullptr, ""},
        {2, "To plus Infinity", "Ceil", nullptr, nullptr, ""},
        {3, "To Nearest Integer", "Rem", nullptr, "12", ""},
        {4, "Remainder from Division", "Sign", nullptr, nullptr, ""},
        {5, "Sign of a Number", "Round", nullptr, nullptr, ""}}},

    {"frmConst", "Get a Constant", "Select the required constant", "", {
        {0, "pi", "", "pi", nullptr, ""},
        {1, "e", "", "exp(1)", nullptr, ""},
        {2, "Minimum accuracy", "", "eps", nullptr, ""},
        {3, "Imaginary unit (j)", "", "sqrt(-1)", nullptr, ""},
        {4, "Number of floating point operations", "", "flops", nullptr, ""},
        {5, "Arbiturary constant:", "", "{field}", nullptr, ""}},
     {.What = ListField::Kind::Text, .Control = "txtConst", .Beside = 5, .Number = true}},

    {"frmSpecMat", "Create a Special Matrix", "Select the type of matrix:", "1", {
        {0, "Companion matrix", "Companion matrix", "Compan", nullptr, ""},
        {1, "Test matrices", "Several small test matrices", "Gallery", nullptr, ""},
        {2, "Hadamard matrix", "Hadamard matrix", "Hadamard", nullptr, ""},
        {3, "Hankel matrix", "Hankel matrix", "Hankel", "12", ""},
        {4, "Hilbert matrix", "Hilbert matrix", "Hilb", nullptr, ""},
        {5, "Inverse Hilbert matrix", "Inverse Hilbert matrix", "Invhilb", nullptr, ""},
        {6, "Kronecker tensor product", "Kronecker tensor product", "Kron", "12", ""},
        {7, "Magic square", "Magic square", "Magic", nullptr, ""},
        {8, "Pascal matrix", "Pascal matrix", "Pascal", "12", ""},
        {9, "Toeplitz matrix", "Toeplitz matrix", "Toeplitz", "12", ""},
        {10, "Vandermonde matrix", "Vandermonde matrix", "Vander", nullptr, ""},
        {11, "Wilkinson's eigenvalue test matrix", "Wilkinson's eigenvalue test matrix", "Wilkinson", nullptr, ""}}},

    {"frmMatAnalysis", "Matrix Analysis", "Select how to analyse the matrix", "1", {
        {0, "Matrix condition number", "Matrix condition number", "cond", nullptr, ""},
        {1, "Matrix or vector norm", "Norm", nullptr, "12", ""},
        {2, "LINPACK reciprocal condition estimator", "Rcond", nullptr, nullptr, ""},
        {3, "Num of linearly independent rows/cols", "Rank", nullptr, "12", ""},
        {4, "Determinant", "Determinant", "det", nullptr, ""},
        {5, "Sum of diagonal elements", "Trace", nullptr, nullptr, ""},
        {6, "Null Space", "Null Space", "null", nullptr, ""},
        {7, "Orthogonalization", "Orthogonalization", "orth", nullptr, ""},
        {8, "Reduced row echelon form", "Rref", nullptr, "12", ""}}},

    {"frmMatMan", "Manipulate a Matrix", "Select how to manipulate the matrix:", "1", {
        {0, "Create or Extract Diagonal no.", "", "Diag|{field}", nullptr, ""},
        {1, "Flip left to right", "", "Fliplr", nullptr, ""},
        {2, "Flip Up to Down", "", "Flipud", nullptr, ""},
        {3, "Rotate 90 Degrees Counter Clockwise", "", "Rot90", nullptr, ""},
        {4, "Transpose", "", "Transpose", nullptr, ""},
        {5, "Get lower triangle", "", "Tril", nullptr, ""},
        {6, "Get upper triangle", "", "Triu", nullptr, ""}},
     {.What = ListField::Kind::Text, .Control = "diag", .Default = "1", .Beside = 0}},

    {"frmEig", "Manipulate a Matrix", "Select required manipulation:", "123", {
        {0, "Eigenvalues", "Eigenvalues", "Eig", "12", ""},
        {1, "Eigenvectors", "Eigenvectors", "Eig", "12", ""},
        {2, "Characteristic polynomial", "Characteristic polynomial", "Poly", "1", ""}}},

    {"frmVec", "Vector Operations", "Select the required operation:", "1", {
        {0, "Sort in ascending order", "Sort", nullptr, nullptr, ""},
        {1, "Sum of elements", "Sum", nullptr, nullptr, ""},
        {2, "Product of elements", "Prod", nullptr, nullptr, ""},
        {3, "Cumulative sum of elements", "Cumulative sum", "cumsum", nullptr, ""},
        {4, "Cumulative product of elements", "Cumulative Product", "cumprod", nullptr, ""},
        {5, "Cross product", "Cross", nullptr, "12", ""},
        {6, "Dot product", "Dot", nullptr, "12", ""},
        {7, "One-dimensional digital filter", "Filter", nullptr, "123", ""},
        {8, "Two-dimensional digital filter", "Filter2", nullptr, "123", ""}}},

    {"frmDiff", "Differential & Integral Operations", "Select the required operator:", "123", {
        {0, "Difference function", "Diff", nullptr, nullptr, ""},
        {1, "Approximate gradient", "Gradient", nullptr, nullptr, ""},
        {2, "Five-point discrete Laplacian", "Del2", nullptr, "1", ""},
        {3, "Numerical integration using trapezoidal method", "Trapz", nullptr, "12", ""}}},

    {"frmCorr", "Correlation Operators", "Select the required operator:", "12", {
        {0, "Correlation coefficients", "Correlation coefficients", "corrcoef", nullptr, ""},
        {1, "Covarience matrix", "Covariance matrix", "cov", nullptr, ""},
        {2, "Angle between subspaces", "Angle between subspaces", "subspace", nullptr, ""}}},

    {"frmCheck", "Make Checks", "Select what to check", "1", {
        {0, "True for string", "IsStr", nullptr, nullptr, ""},
        {1, "True for letters of the alphabet", "IsLetter", nullptr, nullptr, ""},
        {2, "True for white space characters", "IsSpace", nullptr, nullptr, ""},
        {3, "True if all elements of a vector are true", "All", nullptr, nullptr, ""},
        {4, "True if any element of the vector is true", "Any", nullptr, nullptr, ""},
        {5, "True for Not-A-Number (NAN)", "Find", "{field}", nullptr, ""},
        {6, "Find indices of non-zero elements.", "IsNAN", nullptr, nullptr, ""},
        {7, "True for empty matrix", "IsINF", nullptr, nullptr, ""},
        {8, "True for real matrix", "Finite", nullptr, nullptr, ""},
        {9, "True for sparse matrix", "IsEmpty", nullptr, nullptr, ""},
        {10, "True for global variables", "IsReal", nullptr, nullptr, ""},
        {11, "True for finite elements", "IsSparse", nullptr, nullptr, ""},
        {12, "", "IsGlobal", nullptr, nullptr, ""},
        {NoIndex, "True for infinite elements", "", nullptr, nullptr, "Option1"}},
     {.What = ListField::Kind::Text, .Control = "txtCond", .Caption = "Optional condition:", .SkipEmpty = true}},

    {"frmBessel", "Bessel Functions", "", "1", {
        {0, "Bessel function of the first kind (J)", "BesselJ", "{field}", nullptr, ""},
        {1, "Bessel function of the second kind (Y)", "BesselY", "{field}", nullptr, ""},
        {2, "Modified Bessel func. of the first kind (I)", "BesselI", "{field}", nullptr, ""},
        {3, "Modified Bessel func. of the second kind (K)", "BesselK", "{field}", nullptr, ""}},
     {.What = ListField::Kind::Text, .Control = "txtOrder", .Caption = "Order:", .Default = "0"}},

    {"frmNumeric", "Numerical Solution & Integration", "Select the required operation:", "123", {
        {0, "Solve differential equation using ODE23", "ODE23", "", nullptr, ""},
        {1, "Solve differential equation using ODE45", "ODE45", "", nullptr, ""},
        {2, "Evaluate integral (Low order method)", "Low Integrate", "quad", nullptr, ""},
        {3, "Evaluate integral (High order method)", "High Integrate", "quad8", nullptr, ""},
        {4, "Data interpolation", "Interpolate with FFT", "interpft", "12", ""},
        {5, "1-D interpolation using FFT", "Interpolate", "interp", "12", ""}}},

    {"frmPoly", "Polynomial Functions", "Select the required function:", "123", {
        {0, "Find polynomial roots", "Polynomial Roots", "roots", "1", ""},
        {1, "Construct polynomial with specified roots", "Construct Polynomial", "poly", "1", ""},
        {2, "Polynomial evaluation", "Polynomial Evaluation", "polyval", nullptr, ""},
        {3, "Matrix polynomial evaluation", "Matrix Polynomial Evaluation", "polyvalm", "12", ""},
        {4, "Partial fractions expansion", "Partial Fraction Expantion", "residue", nullptr, ""},
        {5, "Fit polynomial to data", "Fit Polynomial", "polyfit", nullptr, ""},
        {6, "Differentiate polynomial", "Differentiate Polynomial", "polyder", "12", ""},
        {7, "Divide polynomials", "Devide Polynomials", "deconv", "12", ""},
        {8, "Multiply polynomials", "Multiply Polynomials", "conv", "12", ""}}},

    {"frmIntFunction", "Integer Functions", "Select the required function", "12", {
        {0, "Greatest common divisor", "GCD", nullptr, nullptr, ""},
        {1, "Least common multiple", "LCM", nullptr, nullptr, ""}}},

    {"frmErrorFunction", "Error Function", "Select the required error function:", "1", {
        {0, "Error function", "Error function", "erf", nullptr, ""},
        {1, "Complementary error function", "Complementary error function", "erfc", nullptr, ""},
        {2, "Scaled complementary error function", "Scaled complementary error function", "erfcx", nullptr, ""},
        {3, "Inverse error function", "Inverse error function", "erfinv", nullptr, ""}}},

    {"frmBetaFunc", "Beta, Gamma & Other Functions", "Select Function", "123", {
        {0, "Beta function", "Beta function", "Beta", nullptr, ""},
        {1, "Incomplete Beta function", "Incomplete beta function", "Betainc", nullptr, ""},
        {2, "Logarithm of the Beta function", "Logarithm of beta function", "Betaln", nullptr, ""},
        {3, "Gamma function", "Gamma function", "Gamma", "1", ""},
        {4, "Incomplete Gamma function", "Incomplete gamma function", "GammaInc", nullptr, ""},
        {5, "Logarithm of the Gamma function", "Logarithm of gamma function", "gammaln", "1", ""},
        {6, "Exponential integral function", "Exponential integral function", "Expint", "1", ""},
        {7, "Associated Legandre function", "Associated Legendre function", "Legendre", "12", ""}}},

    {"frmStrMake", "Create a String", "Select how to create the string:", "1", {
        {0, "Convert numeric values to string", "SetStr", nullptr, nullptr, ""},
        {1, "String of blanks", "Blanks", nullptr, nullptr, ""},
        {2, "Remove trailing blanks", "Deblank", nullptr, nullptr, ""},
        {3, "Execute string with MATLAB expression", "Eval", nullptr, "12", ""}}},

    {"frmStrCompare", "Compare & Change Strings", "", "12", {
        {0, "Compare strings", "StrCmp", nullptr, nullptr, ""},
        {1, "Find one string within another", "FindStr", nullptr, nullptr, ""},
        {2, "Convert string to uppercase", "Upper", nullptr, "1", ""},
        {3, "Convert string to lowercase", "Lower", nullptr, "1", ""},
        {4, "Replace a string with another", "StrRep", nullptr, "123", ""},
        {5, "Find a token in a string", "StrTok", nullptr, nullptr, ""}}},

    {"frmStrConvert", "Convert Strings", "Select how to convert the string", "1", {
        {0, "Form text matrix from individual strings", "Str2Mat", nullptr, "123", ""},
        {1, "Convert string to number", "Str2Num", nullptr, nullptr, ""},
        {2, "Convert number to string", "Num2Str", nullptr, nullptr, ""},
        {3, "Convert integer to string", "Int2Str", nullptr, nullptr, ""},
        {4, "Convert matrix to string", "Mat2Str", nullptr, "13", ""},
        {5, "Convert hex string to IEEE floating point number", "Hex2Num", nullptr, nullptr, ""},
        {6, "Convert hex string to decimal integer", "Hex2Dec", nullptr, nullptr, ""},
        {7, "Convert decimal integer to hex string", "Dec2Hex", nullptr, nullptr, ""}}},

    {"frmSound", "Sound Proccessing", "Select how to proccess the sound:", "123", {
        {0, "Convert vector into sound", "Sound", nullptr, "12", ""},
        {1, "Sound axis scaling", "Sound axis scaling", "saxis", "1", ""},
        {2, "Write mu-law encloded audio file", "Auwrite", nullptr, "12", ""},
        {3, "Read mu-law encloded audio file", "Auread", nullptr, "1", ""},
        {4, "Write MS Windows .WAV audio file", "wavwrite", nullptr, nullptr, ""},
        {5, "Read MS Windows .WAV audio file", "wavread", nullptr, "1", ""},
        {6, "Mu-law to linear conversion", "mu2lin", nullptr, "1", ""},
        {7, "Linear to mu-law conversion", "lin2mu", nullptr, "1", ""}}},
};
// clang-format on

const OptionList* FindOptionList(std::string_view dialog) {
    const auto list =
        std::find_if(optionLists.begin(), optionLists.end(),
                     [&](const OptionList& candidate) { return candidate.Dialog == dialog; });
    return list == optionLists.end() ? nullptr : &*list;
}

std::string OptionName(const OptionList& list, const ListOption& option) {
    if (!option.Control.empty()) return std::string(option.Control);
    if (option.Caption.empty()) return "";
    return std::string(list.Array) + "(" + NumberText(option.Index) + ")";
}

}  // namespace quorvane
