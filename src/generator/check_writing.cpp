// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cctype>

#include "generator/check_parts.h"
#include "generator/check_rows.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

/// True when a text of a box mentions a variable, and so may set it.
bool IsMentioned(const Check& check, const std::string& name) {
    const auto isLetter = [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
    };
    return std::any_of(check.Own.begin(), check.Own.end(), [&](int box) {
        const auto& text = Boxes[box].BoxText;
        if (Boxes[box].BoxType == "Pickup" || Boxes[box].BoxType == "Comment") return false;
        for (auto at = text.find(name); at != std::string::npos; at = text.find(name, at + 1)) {
            const auto end = at + name.size();
            const bool begins =
                at == 0 || !isLetter(text[at - 1]) || text.compare(0, at, "else") == 0;
            if (begins && (end == text.size() || !isLetter(text[end]))) return true;
        }
        return false;
    });
}

}  // namespace

void CheckEntries(Check& check, int number) {
    const Box& box = Boxes[number];
    for (const char digit : NeededEntries(box)) {
        const std::string entry(1, digit);
        const int feeder = box.BoxIn[digit - '0'];
        if (feeder == LockedSlot) {
            Report(check, number, "Its line needs entry " + entry + ", which is locked",
                   "Open it in the information on the box and lead an arrow there");
        } else if (feeder <= 0) {
            Report(check, number, "No arrow leads to entry " + entry + ": its line reads box0",
                   "Lead an arrow to it");
        } else if (IsThere(feeder) && !SetsItsVariable(Boxes[feeder]) &&
                   !IsMentioned(check, BoxName(feeder))) {
            Report(check, number, "It reads the value of " + Named(feeder) + ", which has none",
                   "Lead the arrow from a box that has a value");
        }
    }
}

void CheckText(Check& check, int number) {
    const Box& box = Boxes[number];
    if (const auto missing = MissingInText(box); !missing.empty()) {
        Report(check, number, "MATLAB refuses its line: its text lacks " + std::string(missing),
               "Delete it and make it anew with the whole text");
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
    if (box.BoxType == "Matrix Make Input" && (in[1] != LockedSlot || in[2] != LockedSlot)) {
        Report(check, number, "Its line takes the number of a box as a size and keeps nothing",
               InPlace("zeros(input1,input2);"));
    }
    if (box.BoxType == "Logic Operator" && !HasOperator(box)) {
        Report(check, number, "It has no operator and writes no line",
               InPlace("not(input1);") + " or another one");
    }
    const auto wired = std::count_if(in.begin(), in.end(), [](auto entry) { return entry > 0; });
    if (box.BoxType == "+" && wired < 2) {
        Report(check, number, "Fewer than two arrows lead to it: it writes no line",
               "Lead a second arrow to it");
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
                   " times: its line is written again each time, with the value of then",
               "Use a Pickup for each reader, or hand the value on from box to box");
    }
    CheckText(check, number);
    constexpr std::string_view constants[] = {"ans", "pi", "eps", "inf",   "Inf",     "nan",
                                              "NaN", "i",  "j",   "flops", "realmax", "realmin"};
    const auto& name = box.BoxText;
    const bool isName = !name.empty() && !std::isdigit(static_cast<unsigned char>(name[0])) &&
                        std::all_of(name.begin(), name.end(),
                                    [](unsigned char c) { return std::isalnum(c) || c == '_'; });
    const bool isKnown =
        std::find(std::begin(constants), std::end(constants), name) != std::end(constants);
    // What a file holds is called as the file is.
    const bool isSet = std::any_of(check.Own.begin(), check.Own.end(), [&](int each) {
        return Boxes[each].BoxType == "Ascii File Input" ||
               (each != number && name == BoxName(each) && SetsItsVariable(Boxes[each]));
    });
    if (isName && !isKnown && !isSet && !IsMentioned(check, name)) {
        Report(check, number, "No box sets " + name + ", which it picks up",
               "Pick up a variable that is set before, such as that of a box");
    }
}

}  // namespace quorvane
