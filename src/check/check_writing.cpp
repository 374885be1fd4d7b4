// SPDX-License-Identifier: MIT
#include "check/check_writing.h"

#include <algorithm>
#include <cctype>
#include <charconv>

#include "check/check_rows.h"
#include "generator/box_writers.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

/// Gathers the names that the texts of the boxes mention.
void FindWords(Check& check) {
    for (const int box : check.Own) {
        if (IsPassive(Boxes[box])) continue;
        const std::string_view text = Boxes[box].BoxText;
        auto begin = text.begin();
        while ((begin = std::find_if(begin, text.end(), IsNameLetter)) != text.end()) {
            const auto end = std::find_if_not(begin, text.end(), IsNameLetter);
            check.Words.emplace_back(begin, end);
            begin = end;
        }
        if (text.starts_with("else")) {
            const auto behind = text.substr(4);
            check.Words.emplace_back(behind.begin(),
                                     std::find_if_not(behind.begin(), behind.end(), IsNameLetter));
        }
    }
    std::sort(check.Words.begin(), check.Words.end());
}

/// True when a text of a box mentions a variable, and so may set it.
bool IsMentioned(Check& check, const std::string& name) {
    if (check.Words.empty()) FindWords(check);
    return std::binary_search(check.Words.begin(), check.Words.end(), name);
}

/// True when a box of the document sets the variable that a Pickup names: its own, or what it
/// loads, which is called as its file is.
bool IsSet(const Check& check, std::string_view name, int pickup) {
    int number = 0;
    if (name.starts_with("box"))
        std::from_chars(name.data() + 3, name.data() + name.size(), number);
    if (IsThere(number) && number != pickup && name == BoxName(number) &&
        Boxes[number].BoxDocument == check.Document && SetsItsVariable(Boxes[number])) {
        return true;
    }
    return std::any_of(check.Own.begin(), check.Own.end(),
                       [](int each) { return Boxes[each].BoxType == "Ascii File Input"; });
}

/// The text of a plot from its drawing command on: behind its icon's key and a "figure;", whose end
/// of line a diagram file has as ";;".
std::string_view PlotCommand(std::string_view text) {
    constexpr std::string_view figure = "figure;";
    text.remove_prefix(std::min(text.find(';'), text.size() - 1) + 1);
    if (!text.starts_with(figure)) return text;
    return text.substr(std::min(text.find_first_not_of(";\r\n", figure.size()), text.size()));
}

/// Plots that "Plot Options" writes, and that don't draw what was marked there.
void CheckPlot(Check& check, int number) {
    const auto& text = Boxes[number].BoxText;
    if (Boxes[number].BoxType != "Plot Output" || text.empty()) return;
    const auto command = PlotCommand(text);
    const auto begin = std::min(command.find('('), command.size());
    const auto function = command.substr(0, begin);
    auto arguments = command.substr(begin);
    if ((function == "polar" || function == "stem") && arguments.starts_with("('")) {
        Report(check, number, "MATLAB refuses its line: it names no input",
               InPlace(std::string(function) + "(input1,input2);"));
    }
    constexpr std::string_view styled = "(Input1,'";
    if (!arguments.starts_with(styled)) return;
    arguments.remove_prefix(std::min(arguments.find('\'', styled.size()), arguments.size()));
    if (arguments.starts_with("',Input")) {
        Report(check, number,
               "Input 1 is marked as X axis: it is drawn as a curve, not as the X of the others",
               "Mark another input as X axis with F2, and draw the arrow of its data there");
    }
}

}  // namespace

void CheckEntries(Check& check, int number) {
    const Box& box = Boxes[number];
    for (const char digit : NeededEntries(box)) {
        const std::string entry(1, digit);
        const int feeder = box.BoxIn[digit - '0'];
        if (feeder == LockedSlot) {
            Report(check, number, "Its line needs entry " + entry + ", which is locked",
                   "Open it in the information on the box and draw an arrow there");
        } else if (feeder <= 0) {
            Report(check, number, "No arrow leads to entry " + entry + ": its line reads box0",
                   "Draw an arrow to it");
        } else if (IsThere(feeder) && !SetsItsVariable(Boxes[feeder]) &&
                   !IsMentioned(check, BoxName(feeder))) {
            Report(check, number, "It reads the value of " + Named(feeder) + ", which has none",
                   "Draw the arrow from a box that has a value");
        }
    }
}

void CheckText(Check& check, int number) {
    const Box& box = Boxes[number];
    if (const auto missing = MissingInText(box); !missing.empty()) {
        Report(check, number, "MATLAB refuses its line: its text lacks " + std::string(missing),
               "Delete it and make it again with the whole text");
    }
    if (const auto* row = FindTroubledType(box.BoxType); row && !row->Fault.empty()) {
        Report(check, number, "MATLAB refuses its line: " + std::string(row->Fault),
               InPlace(row->Function));
    }
    if (box.BoxType == "Matrix Manipulation" && !ManipulationInstead(box.BoxText).empty()) {
        Report(check, number, "MATLAB refuses its line: the name of the function is cut off",
               InPlace(ManipulationInstead(box.BoxText)));
    }
    const auto& in = box.BoxIn;
    if (box.BoxType == "Matrix Make Input" && !IsMadeByText(box)) {
        Report(check, number, "Its line takes the number of a box as a size and keeps nothing",
               InPlace("zeros(input1,input2);"));
    }
    if (box.BoxType == "Logic Operator" && !IsLogicOperator(box.BoxText)) {
        Report(check, number, "It has no operator and writes no line",
               InPlace("not(input1);") + " or another one");
    }
    const auto wired = std::count_if(in.begin(), in.end(), [](auto entry) { return entry > 0; });
    if (box.BoxType == "+" && wired < 2) {
        Report(check, number, "Fewer than two arrows lead to it: it writes no line",
               "Draw a second arrow to it");
    }
    CheckPlot(check, number);
}

void CheckPickup(Check& check, int number) {
    const Box& box = Boxes[number];
    const auto readers =
        std::count_if(box.BoxOut.begin(), box.BoxOut.end(), [](auto exit) { return exit > 0; });
    if (readers == 0) return;
    if (readers > 1) {
        Report(check, number,
               "It is read " + NumberText(readers) +
                   " times: its line is written again each time, with the value at that point",
               "Use a Pickup for each reader, or pass the value on from box to box");
    }
    CheckText(check, number);
    constexpr std::string_view constants[] = {"ans", "pi", "eps", "inf",   "Inf",     "nan",
                                              "NaN", "i",  "j",   "flops", "realmax", "realmin"};
    const auto& name = box.BoxText;
    const bool isName = !name.empty() && !std::isdigit(static_cast<unsigned char>(name[0])) &&
                        std::all_of(name.begin(), name.end(), IsNameLetter);
    const bool isKnown =
        std::find(std::begin(constants), std::end(constants), name) != std::end(constants);
    if (isName && !isKnown && !IsMentioned(check, name) && !IsSet(check, name, number)) {
        Report(check, number, "No box sets " + name + ", which it picks up",
               "Pick up a variable that is set before, such as that of a box");
    }
}

}  // namespace quorvane
