// SPDX-License-Identifier: MIT
#include "check/check_rows.h"

#include <algorithm>

#include "generator/box_writers.h"
#include "generator/control_flow.h"
#include "generator/emission_chain.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

constexpr std::string_view Bracket = "a bracket stands in place of a comma";
constexpr std::string_view Tail = "the rest of another line follows";
constexpr std::string_view OneToo = "it names an entry that the box doesn't have";
constexpr std::string_view Lone = "the second argument is missing";

// clang-format off
// Type, what is wrong with its line, function in its place. Functions that newer versions of MATLAB
// have dropped are not listed: these lines have never been right.
constexpr TroubledType troubledTypes[] = {
    // The menus make these, and no row of the emission chain has them.
    {"Cumulative sum", "", "cumsum(input1);"},
    {"IFFT2", "", "ifft2(input1);"},
    {"Null Space", "", "null(input1);"},
    {"Sound axis scaling", "", "saxis(input1);"},
    {"wavread", "", "wavread(input1);"},
    {"wavwrite", "", "wavwrite(input1,input2,input3);"},
    // Rows whose texts don't make a valid line.
    {"StrCmp", Bracket, "strcmp(input1,input2);"},
    {"FindStr", Bracket, "findstr(input1,input2);"},
    {"StrRep", Bracket, "strrep(input1,input2,input3);"},
    {"StrTok", Bracket, "strtok(input1,input2);"},
    {"Trapz", Tail, "trapz(input1,input2);"},
    {"Diff", Tail, "diff(input1);"},
    {"Gradient", Tail, "gradient(input1);"},
    {"Del2", Tail, "del2(input1);"},
    {"Norm", Tail, "norm(input1);"},
    {"Rank", Tail, "rank(input1);"},
    {"Rref", Tail, "rref(input1);"},
    {"Trace", Tail, "trace(input1);"},
    {"Rcond", Tail, "rcond(input1);"},
    {"Sound", Tail, "sound(input1);"},
    {"Auread", Tail, "auread(input1);"},
    {"Auwrite", Tail, "auwrite(input1,input2);"},
    {"Wavwrite", Tail, "wavwrite(input1,input2,input3);"},
    {"Wavread", Tail, "wavread(input1);"},
    {"lin2mu", Tail, "lin2mu(input1);"},
    {"mu2lin", Tail, "mu2lin(input1);"},
    {"Construct Polynomial", OneToo, "poly(input1);"},
    {"Polynomial Roots", OneToo, "roots(input1);"},
    {"Rem", Lone, "rem(input1,input2);"},
};

/// Entries that a type needs although its row doesn't say so: a writer makes its line, or the row
/// leaves out an argument that the function needs.
struct EntriesOfType {
    std::string_view Key;
    std::string_view Entries;
};
constexpr EntriesOfType entriesOfTypes[] = {
    {"Matrix Manipulation", "1"},
    {"Split", "1"},
    {"Ascii File Output", "1"},
    {"Next", "1"},
    {"End Subroutine", "1"},
    {"If", "1"},
    {"Kronecker tensor product", "12"},
    {"Angle between subspaces", "12"},
    {"Beta function", "12"},
    {"Logarithm of beta function", "12"},
    {"Incomplete beta function", "123"},
    {"Incomplete gamma function", "12"},
    {"Associated Legendre function", "12"},
};

// Matrix Manipulation: text, function in its place.
constexpr EntriesOfType manipulations[] = {
    {"Fliplr", "fliplr(input1);"},
    {"Flipud", "flipud(input1);"},
    {"Rot90", "rot90(input1);"},
    {"Transpose", "input1';"},
    {"Tril", "tril(input1);"},
    {"Triu", "triu(input1);"},
};

constexpr std::string_view typesWithoutValue[] = {
    "Dummy Input", "While", "End If", "Comment", "Trash", "Plot Output", "Ascii File Output",
    "End Subroutine",
};

// Types whose line consists of their text and is invalid without it.
constexpr TroubledType textsOfTypes[] = {
    {"While", "a condition", ""},
    {"Pickup", "the name of a variable", ""},
    {"Constant Input", "a value", ""},
    {"Vector Make Input", "a range", ""},
    {"Matrix Make Input", "a call", ""},
    {"BesselI", "an order", ""}, {"BesselJ", "an order", ""},
    {"BesselK", "an order", ""}, {"BesselY", "an order", ""},
};
// clang-format on

template <class Row, std::size_t Count>
const Row* Find(const Row (&rows)[Count], std::string_view key) {
    const auto* row = std::find_if(rows, rows + Count, [&](auto& each) { return each.Key == key; });
    return row == rows + Count ? nullptr : row;
}

void AddEntry(std::string& entries, char digit) {
    if (entries.find(digit) == std::string::npos) entries += digit;
}

/// The entries that a text of a row writes.
void AddHoles(std::string& entries, const RowText& text) {
    for (const auto& part : text.Parts()) {
        if (part.Behind == Hole::Entry) AddEntry(entries, static_cast<char>('0' + part.Entry));
    }
}

/// The character after each word of a free text or a plot that names an entry; a blank at the end
/// of the text.
std::string BehindEntryWords(const Box& box) {
    const auto* row = FindEmissionRow(box.BoxType);
    const bool isPlot = row && row->Write == WritePlot;
    if (!isPlot && !(row && row->Write == WriteFunction)) return "";
    std::string behind;
    for (std::string_view text = box.BoxText; !text.empty(); text.remove_prefix(1)) {
        if (NamesEntry(text, isPlot)) behind += text.size() > 5 ? text[5] : ' ';
    }
    return behind;
}

bool IsEntryDigit(char c) { return c >= '1' && c <= '3'; }

std::string EntriesOfWriter(const Box& box) {
    const auto& type = box.BoxType;
    if (type == "Logic Operator") {
        if (!IsLogicOperator(box.BoxText)) return "";
        return box.BoxText == "~" ? "1" : "12";
    }
    if (type == "Vector Make Input") return IsMadeByText(box) ? "" : "123";
    if (type == "Matrix Make Input") return IsMadeByText(box) ? "" : "12";
    return IsSubroutineCall(type) ? "1" : "";
}

}  // namespace

const TroubledType* FindTroubledType(std::string_view type) { return Find(troubledTypes, type); }

std::string ManipulationInstead(std::string_view text) {
    if (const auto* row = Find(manipulations, text)) return std::string(row->Entries);
    constexpr std::string_view diagonal = "Diag|";
    if (!text.starts_with(diagonal)) return "";
    return "diag(input1," + std::string(text.substr(diagonal.size())) + ");";
}

std::string NeededEntries(const Box& box) {
    std::string entries = EntriesOfWriter(box);
    if (const auto* row = Find(entriesOfTypes, box.BoxType)) entries = row->Entries;
    for (const char behind : BehindEntryWords(box)) {
        if (IsEntryDigit(behind)) AddEntry(entries, behind);
    }
    if (const auto* row = FindEmissionRow(box.BoxType)) {
        AddHoles(entries, row->Head);
        for (const auto& piece : row->Pieces) {
            if (piece.Wired.empty() && IsFor(piece, box)) AddHoles(entries, piece.Text);
        }
    }
    std::sort(entries.begin(), entries.end());
    return entries;
}

std::string_view MissingInText(const Box& box) {
    const auto& text = box.BoxText;
    const auto& type = box.BoxType;
    if (type == "If") return ConditionOf(box).empty() ? "a condition" : "";
    if (type == "For") {
        const bool whole = !text.empty() && text[0] != ':' && text[0] != ',' &&
                           text.find("::") == std::string::npos &&
                           text.find(":,") == std::string::npos && !text.ends_with(":");
        return whole ? "" : "a part of its range";
    }
    if (!text.empty()) return "";
    if (type.ends_with("Make Input") && !IsMadeByText(box)) return "";
    if (const auto* row = Find(textsOfTypes, type)) return row->Fault;
    const auto* row = FindEmissionRow(type);
    const auto isNamed = [](const auto& part) { return part.Behind == Hole::LowerValue; };
    const auto parts = row ? row->Head.Parts() : std::span<const RowText::Part>();
    const bool named = std::any_of(parts.begin(), parts.end(), isNamed);
    return named ? "the name of its function" : "";
}

bool NamesNoEntry(const Box& box) {
    const auto behind = BehindEntryWords(box);
    return !std::all_of(behind.begin(), behind.end(), IsEntryDigit);
}

bool SetsItsVariable(const Box& box) {
    if (box.BoxType == "Pause") return HandsOn(box);
    return std::find(std::begin(typesWithoutValue), std::end(typesWithoutValue), box.BoxType) ==
           std::end(typesWithoutValue);
}

}  // namespace quorvane
