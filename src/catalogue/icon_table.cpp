// SPDX-License-Identifier: MIT
#include "catalogue/icon_table.h"

#include "catalogue/box_commands.h"
#include "catalogue/key_table.h"

namespace quorvane {

IconStrip icons;

namespace {

// Cell of the strip, key. A key stands once, here or in the row of a command.
constexpr IconRow rows[] = {
    {1, "Abs"},
    {4, "Arrow"},
    {7, "Auread"},
    {8, "Auwrite"},
    {9, "Bar"},
    {10, "BesselI"},
    {11, "BesselJ"},
    {12, "BesselK"},
    {13, "BesselY"},
    {14, "Beta function"},
    {14, "Incomplete beta function"},
    {14, "Logarithm of beta function"},
    {15, "Blanks"},
    {17, "Ceil"},
    {18, "Characteristic polynomial"},
    {19, "Find"},
    {19, "IsStr"},
    {19, "IsLetter"},
    {19, "IsSpace"},
    {19, "All"},
    {19, "Any"},
    {19, "IsNAN"},
    {19, "IsINF"},
    {19, "Finite"},
    {19, "IsEmpty"},
    {19, "IsReal"},
    {19, "IsSparse"},
    {19, "IsGlobal"},
    {22, "Conj"},
    {23, "Construct Polynomial"},
    {25, "Multiply Polynomials"},
    {26, "Correlation coefficients"},
    {26, "Covariance matrix"},
    {30, "Cross"},
    {31, "Deblank"},
    {32, "Devide Polynomials"},
    {33, "Del2"},
    {34, "Determinant"},
    {35, "Diag"},
    {36, "ODE23"},
    {36, "ODE45"},
    {37, "Diff"},
    {38, "Dot"},
    {42, "Eigenvalues"},
    {43, "Eigenvectors"},
    {45, "Error Bar"},
    {46, "Error function"},
    {46, "Complementary error function"},
    {46, "Scaled complementary error function"},
    {46, "Inverse error function"},
    {47, "Eval"},
    {48, "Exponential integral function"},
    {52, "Filter"},
    {52, "Filter2"},
    {53, "Fix"},
    {54, "Fliplr"},
    {55, "Flipud"},
    {56, "Floor"},
    {60, "Gamma function"},
    {60, "Incomplete gamma function"},
    {60, "Logarithm of gamma function"},
    {61, "Gradient"},
    {66, "Imag"},
    {68, "Low Integrate"},
    {68, "High Integrate"},
    {69, "Interpolate"},
    {70, "Interpolate with FFT"},
    {71, "GCD"},
    {71, "LCM"},
    {71, "Associated Legendre function"},
    {74, "lin2mu"},
    {76, "&"},
    {77, "~"},
    {78, "|"},
    {79, "xor"},
    {80, "Lower"},
    {81, "Tril"},
    {83, "Matrix condition number"},
    {83, "Norm"},
    {83, "Rcond"},
    {83, "Rank"},
    {83, "Trace"},
    {83, "Null Space"},
    {83, "Orthogonalization"},
    {83, "Rref"},
    {87, "mu2lin"},
    {91, "Partial Fraction Expantion"},
    {92, "Angle"},
    {94, "Plot2d"},
    {95, "Plot3d"},
    {96, "Polar"},
    {98, "Differentiate Polynomial"},
    {99, "Fit Polynomial"},
    {100, "Polynomial Evaluation"},
    {101, "Matrix Polynomial Evaluation"},
    {102, "Prod"},
    {103, "Pscolor"},
    {105, "Real"},
    {106, "Rem"},
    {107, "Polynomial Roots"},
    {108, "Rot90"},
    {110, "Sound axis scaling"},
    {111, "SetStr"},
    {112, "Sign"},
    {113, "+"},
    {114, "/"},
    {115, "*"},
    {116, "^"},
    {117, "-"},
    {122, "Sort Complex"},
    {122, "Sort"},
    {124, "Special Matrix"},
    {124, "Companion matrix"},
    {124, "Several small test matrices"},
    {124, "Hadamard matrix"},
    {124, "Hankel matrix"},
    {124, "Hilbert matrix"},
    {124, "Inverse Hilbert matrix"},
    {124, "Kronecker tensor product"},
    {124, "Magic square"},
    {124, "Pascal matrix"},
    {124, "Toeplitz matrix"},
    {124, "Vandermonde matrix"},
    {124, "Wilkinson's eigenvalue test matrix"},
    {126, "Stem"},
    {127, "StrCmp"},
    {127, "FindStr"},
    {127, "StrRep"},
    {127, "StrTok"},
    {128, "Str2Mat"},
    {128, "Str2Num"},
    {128, "Num2Str"},
    {128, "Int2Str"},
    {128, "Mat2Str"},
    {128, "Hex2Num"},
    {128, "Hex2Dec"},
    {128, "Dec2Hex"},
    {131, "Angle between subspaces"},
    {132, "Sum"},
    {134, "Transpose"},
    {135, "Trapz"},
    {137, "Unwrap"},
    {138, "Upper"},
    {139, "Triu"},
    {141, "Cumulative sum"},
    {141, "Cumulative Product"},
    {143, "wavread"},
    {144, "wavrite"},
};

constexpr auto cells = [] {
    KeyTable<int> table;
    for (const auto& row : rows) table.Add(row.Key, row.Cell);
    return table;
}();

}  // namespace

const std::span<const IconRow> iconTable = rows;

int IconCell(std::string_view key) {
    if (const auto* own = cells.Find(key)) return *own;
    const int cell = CommandCell(key);
    return cell != 0 ? cell : FallbackCell;
}

void SelectBoxIcon(std::string_view key) {
    const int place = IconCell(key) - 1;
    icons.ClipX = IconPixels * (place % IconColumns);
    icons.ClipY = IconPixels * (place / IconColumns);
}

int Clip() { return icons.ClipY / IconPixels * IconColumns + icons.ClipX / IconPixels + 1; }

}  // namespace quorvane
