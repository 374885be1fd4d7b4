// SPDX-License-Identifier: MIT
#include "generator/emission_chain.h"

#include <algorithm>

#include "catalogue/box_commands.h"
#include "catalogue/key_table.h"
#include "generator/box_writers.h"
#include "generator/control_flow.h"
#include "generator/line.h"
#include "platform/numbers.h"

namespace quorvane {

// clang-format off
// Keys; gate; head, pieces, close; or writer
const std::vector<EmissionRow> emissionChain = {
    // Sources
    {.Keys = {"Keyboard Input"}, .Write = WriteKeyboardInput},
    {.Keys = {"Matrix Input"}, .Write = WriteMatrixInput},
    {.Keys = {"Matrix Make Input"}, .Write = WriteMatrixMake},
    {.Keys = {"Vector Make Input"}, .Write = WriteVectorMake},
    {.Keys = {"Constant Input"}, .Head = "box{id}={value};"},
    {.Keys = {"Dummy Input"}, .Write = [](Run&, int, int) { return true; }},
    {.Keys = {"Ascii File Input"}, .Write = WriteFileInput},

    // Arithmetic and free texts
    {.Keys = {"+"}, .Opens = Gate::Inputs, .Write = WriteSum},
    {.Keys = {"-"}, .Opens = Gate::Inputs, .Head = "box{id}=box{in1}-box{in2};"},
    {.Keys = {"/", "^"}, .Opens = Gate::Inputs, .Head = "box{id}=box{in1}{value}{type}box{in2};"},
    {.Keys = {"*"}, .Opens = Gate::Inputs, .Head = "box{id}=box{in1}{value}*box{in2};"},
    {.Keys = {"Compute Function", "Matlab Command"}, .Opens = Gate::Inputs, .Write = WriteFunction},
    {.Keys = {"Logic Operator"}, .Opens = Gate::Inputs, .Write = WriteLogic},
    {.Keys = {"Matrix Manipulation"}, .Opens = Gate::Inputs, .Write = WriteMatrixManipulation},
    {.Keys = {"Split"}, .Opens = Gate::Inputs, .Write = WriteSplit},

    // Functions
    {.Keys = {"ODE23", "ODE45"}, .Opens = Gate::Inputs,
     .Head = "box{id}={lctype}('yprime',box{in1},box{in2},box{in3} );"},
    // "Polynomial Evaluation" stands among the lower-cased texts and so never takes its third entry.
    {.Keys = {"Low Integrate", "High Integrate", "Interpolate", "Interpolate with FFT",
              "Multiply Polynomials", "Devide Polynomials", "Differentiate Polynomial",
              "Fit Polynomial", "Partial Fraction Expantion", "Matrix Polynomial Evaluation",
              "Polynomial Evaluation", "Construct Polynomial", "Polynomial Roots", "Sort Complex"},
     .Opens = Gate::Inputs,
     .Head = "box{id}={lcvalue}(box{in1},box{in2}",
     .Pieces = {{"", ",box{in3}", For::Texts,
                 {"quad", "quad8", "polyfit", "residue", "Polynomial Evaluation"}}},
     .Close = " );"},
    {.Keys = {"Dot", "Cross", "GCD", "LCM"}, .Opens = Gate::Inputs,
     .Head = "box{id}={lctype}(box{in1},box{in2} );"},
    {.Keys = {"IsStr", "IsLetter", "IsSpace", "All", "Any", "Find", "IsNAN", "IsINF", "Finite",
              "IsEmpty", "IsReal", "IsSparse", "IsGlobal"},
     .Opens = Gate::Inputs,
     .Head = "box{id}={lctype}(box{in1}",
     .Pieces = {{"", "{value}", For::Types, {"Find"}}},
     .Close = " );"},
    {.Keys = {"Beta function", "Incomplete beta function", "Logarithm of beta function",
              "Gamma function", "Incomplete gamma function", "Logarithm of gamma function",
              "Exponential integral function", "Associated Legendre function", "Error function",
              "Complementary error function", "Scaled complementary error function",
              "Inverse error function"},
     .Opens = Gate::Inputs,
     .Head = "box{id}={lcvalue}(box{in1}",
     .Pieces = {{"2", ",box{in2}"}, {"23", ",box{in3}"}},
     .Close = ");"},
    // The bracket in front of the second entry stands in place of a comma.
    {.Keys = {"StrCmp", "FindStr", "Upper", "Lower", "StrRep", "StrTok"}, .Opens = Gate::Inputs,
     .Head = "box{id}={lctype}(box{in1}",
     .Pieces = {{"", "(box{in2}", For::OtherTypes, {"Upper", "Lower"}},
                {"", ",box{in3}", For::Types, {"StrRep"}}},
     .Close = ");"},
    {.Keys = {"SetStr", "Blanks", "Deblank", "Eval"}, .Opens = Gate::Inputs,
     .Head = "box{id}={lctype}(box{in1}",
     .Pieces = {{"", ",box{in2}", For::Types, {"Eval"}}},
     .Close = ");"},
    {.Keys = {"Str2Mat", "Num2Str", "Int2Str", "Str2Num", "Mat2Str", "Hex2Num", "Hex2Dec",
              "Dec2Hex"},
     .Opens = Gate::Inputs,
     .Head = "box{id}={lctype}(box{in1}",
     .Pieces = {{"2", ",box{in2}", For::Types, {"Str2Mat", "Mat2Str"}},
                {"3", ",box{in3}", For::Types, {"Mat2Str"}}},
     .Close = ");"},
    {.Keys = {"Pause"}, .Opens = Gate::Inputs, .Write = WritePause},
    {.Keys = {"Companion matrix", "Several small test matrices", "Hadamard matrix", "Hankel matrix",
              "Hilbert matrix", "Inverse Hilbert matrix", "Kronecker tensor product", "Magic square",
              "Pascal matrix", "Toeplitz matrix", "Vandermonde matrix",
              "Wilkinson's eigenvalue test matrix", "Characteristic polynomial", "Eigenvalues"},
     .Opens = Gate::Inputs,
     .Head = "box{id}={lcvalue}(box{in1}",
     .Pieces = {{"2", ",box{in2}"}},
     .Close = ");"},
    {.Keys = {"Eigenvectors"}, .Opens = Gate::Inputs,
     .Head = "[box{id},temp1]={lcvalue}(box{in1}",
     .Pieces = {{"2", ",box{in2}"}},
     .Close = ");\r\nclear temp1;"},
    // The whole line comes before the tail.
    {.Keys = {"Trapz", "Diff", "Gradient", "Del2", "Norm", "Rank", "Rref", "Trace", "Rcond", "Sound",
              "Auread", "Auwrite", "Wavwrite", "Wavread", "lin2mu", "mu2lin"},
     .Opens = Gate::Inputs,
     .Head = "box{id}={lctype}(box{in1},box{in2} );\r\n",
     .Pieces = {{"2", ",box{in2}"}, {"3", ",box{in3}"}},
     .Close = " );"},
    {.Keys = {"Filter", "Filter2"}, .Opens = Gate::Inputs,
     .Head = "box{id}={lctype}(box{in1},box{in2},box{in3} );"},
    {.Keys = {"Correlation coefficients", "Covariance matrix", "Angle between subspaces",
              "Cumulative Sum", "Cumulative Product", "Matrix condition number", "Determinant",
              "Null space", "Orthogonalization", "Saxis"},
     .Opens = Gate::Inputs,
     .Head = "box{id}={lcvalue}(box{in1}",
     .Pieces = {{"2", ",box{in2}"}},
     .Close = " );"},
    {.Keys = {"Unwrap"}, .Opens = Gate::Inputs,
     .Head = "box{id}={lctype}(box{in1}",
     .Pieces = {{"2", ",box{in2}"}},
     .Close = " );"},
    {.Keys = {"Sin", "Cos", "Tan", "Cot", "ASin", "ACos", "ATan", "ACot", "FFT", "IFFT", "FFT2",
              "Log", "Sqrt", "Abs", "Angle", "Real", "Conj", "Imag", "Fix", "Floor", "Ceil", "Rem",
              "Sign", "Round", "FFTShift", "Prod", "Sum", "Sort"},
     .Opens = Gate::Inputs,
     .Head = "box{id}={lctype}(box{in1}",
     .Pieces = {{"2", ",box{in2}", For::Types, {"FFT", "FFT2", "IFFT", "IFFT2"}},
                {"3", ",box{in3}", For::Types, {"FFT2", "IFFT2"}}},
     .Close = ");"},
    {.Keys = {"BesselJ", "BesselK", "BesselI", "BesselY"}, .Opens = Gate::Inputs,
     .Head = "box{id}={lctype}({value},box{in1});"},

    // Sinks
    {.Keys = {"Ascii File Output"}, .Opens = Gate::Inputs, .Write = WriteFileOutput},
    {.Keys = {"Plot Output"}, .Opens = Gate::Inputs, .Write = WritePlot},
    {.Keys = {"Trash"}, .Opens = Gate::Inputs, .Write = WriteTrash},

    // Control flow
    {.Keys = {"For", "While"}, .Write = WriteLoop},
    {.Keys = {"Next"}, .Opens = Gate::Inputs, .Write = WriteNext},
    {.Keys = {"End Subroutine"}, .Opens = Gate::Inputs, .Write = WriteEndSubroutine},
    {.Keys = {"Break"}, .Opens = Gate::Inputs, .Head = "box{id}=box{in1};\r\nbreak;"},
    {.Keys = {"If"}, .Write = WriteIf},
    {.Keys = {"End If"}, .Opens = Gate::Inputs, .Write = WriteEndIf},
    {.Keys = {}, .Write = WriteSubroutineCall, .Knows = IsSubroutineCall},
    {.Keys = {}, .Write = WriteSubroutineHead, .Knows = IsSubroutineHead},
};
// clang-format on

namespace {

bool Contains(const std::vector<std::string_view>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// Adds what a hole stands for.
void FillHole(Line& line, const RowText::Part& part, const Box& box, int number) {
    switch (part.Behind) {
        case Hole::Number: return line.AddNumber(number);
        case Hole::Entry: return line.AddNumber(box.BoxIn[part.Entry]);
        case Hole::Value: return line.AddText(box.BoxText);
        case Hole::Type: return line.AddText(box.BoxType);
        case Hole::LowerValue: return line.AddLowerCase(box.BoxText);
        case Hole::LowerType: return line.AddLowerCase(box.BoxType);
        case Hole::None: break;
    }
}

/// Adds a text of a row with its holes filled.
void Fill(Line& line, const RowText& text, const Box& box, int number) {
    for (const auto& part : text.Parts()) {
        line.AddLiteral(part);
        FillHole(line, part, box, number);
    }
}

bool Applies(const Piece& piece, const Box& box) {
    for (const char entry : piece.Wired) {
        if (box.BoxIn[entry - '0'] <= 0) return false;
    }
    return IsFor(piece, box);
}

void WriteTexts(Run& run, const EmissionRow& row, int number) {
    static constexpr RowText lineEnd = "\r\n";
    const Box& box = Boxes[number];
    Line line(run.scriptText);
    Fill(line, row.Head, box, number);
    for (const auto& piece : row.Pieces) {
        if (Applies(piece, box)) Fill(line, piece.Text, box, number);
    }
    Fill(line, row.Close, box, number);
    Fill(line, lineEnd, box, number);
    line.Flush();
}

/// A row for each command whose type writes a single plain line.
std::vector<EmissionRow> PlainRows() {
    std::vector<EmissionRow> rows;
    for (const auto& command : boxCommands) {
        if (command.Line.empty()) continue;
        rows.push_back({.Keys = {command.BoxType}, .Opens = Gate::Inputs, .Head = command.Line});
    }
    return rows;
}

}  // namespace

bool IsFor(const Piece& piece, const Box& box) {
    switch (piece.Whom) {
        case For::Types: return Contains(piece.Names, box.BoxType);
        case For::OtherTypes: return !Contains(piece.Names, box.BoxType);
        case For::Texts: return Contains(piece.Names, LowerCase(box.BoxText));
        case For::All: break;
    }
    return true;
}

const EmissionRow* FindEmissionRow(std::string_view type) {
    // The rows that list their types are looked up; those that can't list them stand at the end of
    // the chain and are asked in turn.
    static const auto byKey = [] {
        static const auto plainRows = PlainRows();
        KeyTable<const EmissionRow*> rows;
        for (const auto& row : plainRows) rows.Add(row.Keys.front(), &row);
        for (const auto& row : emissionChain) {
            for (const auto key : row.Keys) rows.Add(key, &row);
        }
        return rows;
    }();
    if (const auto* found = byKey.Find(type)) return *found;
    for (const auto& row : emissionChain) {
        if (row.Knows && row.Knows(type)) return &row;
    }
    return nullptr;
}

void EmitBox(Run& run, int box, int slot) {
    const auto* row = FindEmissionRow(ReadBox(run, box).BoxType);
    if (!row) return;
    if (row->Opens == Gate::Inputs && !Ready(run, box)) return;
    if (row->Write) {
        if (!row->Write(run, box, slot)) return;
    } else {
        WriteTexts(run, *row, box);
    }
    MarkDone(Boxes[box]);
}

}  // namespace quorvane
