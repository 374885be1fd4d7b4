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
