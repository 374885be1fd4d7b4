// SPDX-License-Identifier: MIT
#include "generator/check_document.h"

#include <algorithm>
#include <cctype>

#include "files/settings.h"
#include "generator/check_parts.h"
#include "generator/check_rows.h"
#include "generator/control_flow.h"
#include "generator/emission_chain.h"
#include "generator/trial_run.h"
#include "platform/numbers.h"

namespace quorvane {

void Report(Check& check, int box, const std::string& text, const std::string& advice) {
    const auto place = std::find_if(check.Found.begin(), check.Found.end(),
                                    [&](const Finding& other) { return other.Box > box; });
    check.Found.insert(place, {box, box == 0 ? "" : Boxes[box].BoxType, text, advice});
}

void ReportStop(Check& check, int box, const std::string& text, const std::string& advice) {
    check.Stops = true;
    Report(check, box, text, advice);
}

std::string Named(int box) { return BoxName(box) + " (" + BoxOrFree(box).BoxType + ")"; }

std::string InPlace(std::string_view function) {
    return "Put a Matlab Command box in its place, with the function \"" + std::string(function) +
           "\"";
}

bool IsThere(int box) { return box > 0 && box < NextBox; }

std::string HeadOf(const std::string& caller) {
    constexpr std::string_view words = "Insert Subroutine ";
    return caller.substr(std::min(words.size(), caller.size())) + " Subroutine";
}

bool IsReached(const Check& check, int box) { return check.Reached[static_cast<std::size_t>(box)]; }

namespace {

// Where the walk leads.

bool IsStart(const Box& box) {
    const auto all = [&](std::int16_t value) {
        return std::all_of(box.BoxIn.begin(), box.BoxIn.end(),
                           [&](auto entry) { return entry == value; });
    };
    return (box.BoxType.ends_with("Input") && all(LockedSlot)) ||
           (frmPrefs.chkInput.Value == 1 && all(0));
}

/// The boxes that enter the front behind this one. Nothing is taken up behind a Pickup, which the
/// walk passes by, and behind the end of a branch.
std::vector<int> Successors(int number) {
    const Box& box = Boxes[number];
    std::vector<int> behind;
    if (box.BoxType == "Pickup" || box.BoxType == "End If") return behind;
    for (const int exit : box.BoxOut) {
        if (IsThere(exit)) behind.push_back(exit);
    }
    if (!IsSubroutineCall(box.BoxType)) return behind;
    for (int i = 1; i < NextBox; ++i) {
        if (Boxes[i].BoxType == HeadOf(box.BoxType)) behind.push_back(i);
    }
    return behind;
}

void Reach(Check& check) {
    check.Reached.assign(MaxBoxes + 1, false);
    std::vector<int> waiting;
    for (const int box : check.Own) {
        if (IsStart(Boxes[box])) waiting.push_back(box);
    }
    if (waiting.empty()) {
        ReportStop(check, 0, "No box starts the run, which says \"There are no inputs !\"",
                   "Begin with a Start box or an input box");
        // What is wrong with the boxes themselves is told all the same.
        check.Reached.assign(MaxBoxes + 1, true);
    }
    while (!waiting.empty()) {
        const auto box = static_cast<std::size_t>(waiting.back());
        waiting.pop_back();
        if (check.Reached[box]) continue;
        check.Reached[box] = true;
        for (const int behind : Successors(static_cast<int>(box))) waiting.push_back(behind);
    }
}

void CheckOne(Check& check, int number) {
    const auto& type = Boxes[number].BoxType;
    if (type == "Pickup") CheckPickup(check, number);
    if (type == "Pickup" || type == "Comment") return;
    if (!IsReached(check, number)) return CheckUnreached(check, number);
    CheckArrows(check, number);
    const auto* row = FindTroubledType(type);
    if (!FindEmissionRow(type)) {
        ReportStop(check, number, "No script is known for this type: the run stops here and asks",
                   row ? InPlace(row->Function) : "Delete it and make it anew from the menu");
        return;
    }
    if (!row) CheckEntries(check, number);
    CheckText(check, number);
    CheckSubroutine(check, number);
}

// What only a run shows.

/// True when the script gives a value to the variable of a box.
bool IsAssigned(const std::string& script, int box) {
    const auto assigned = BoxName(box) + "=";
    for (auto at = script.find(assigned); at != std::string::npos;
         at = script.find(assigned, at + 1)) {
        if (at == 0 || !std::isalnum(static_cast<unsigned char>(script[at - 1]))) return true;
    }
    return false;
}

/// Why a box can't be written whose feeders are all done.
std::string OwnReason(const Box& box) {
    const auto& type = box.BoxType;
    if (box.BoxText == "Deleted") return "a box with the text \"Deleted\" is never written";
    const bool opens = type == "For" || type == "While" || type == "If" || IsSubroutineCall(type);
    return opens ? "a block opens only when no other box can go on" : "it can't be written here";
}

void CheckWaiting(Check& check, const TrialEnd& end) {
    const std::string stop = "The run stops here and asks: ";
    for (const auto& waiting : end.Waiting) {
        const Box& box = Boxes[waiting.Box];
        if (waiting.Feeder == 0) {
            Report(check, waiting.Box, stop + OwnReason(box),
                   "Let it come before the other boxes that wait, or behind them, or delete it");
        } else {
            Report(check, waiting.Box, stop + "it waits for " + Named(waiting.Feeder),
                   box.BoxType == "End If"
                       ? "Give each arm of a branch an End If of its own"
                       : "Lead the arrows so that what it waits for comes before it");
        }
    }
}

/// True for a box whose script begins by giving its variable a value.
bool Assigns(const Box& box) {
    const bool isFreeText = box.BoxType == "Compute Function" || box.BoxType == "Matlab Command";
    if (isFreeText) return box.BoxText.starts_with("Output=") || !box.BoxText.starts_with("Output");
    const auto* row = FindEmissionRow(box.BoxType);
    return row && row->Head.starts_with("box{id}=");
}

void CheckRun(Check& check) {
    const auto end = TryCompiling(check.Document);
    CheckWaiting(check, end);
    if (end.Error != 0) {
        const auto text = "The run ends with run-time error " + NumberText(end.Error);
        const auto before = check.Found.size();
        for (const int box : check.Own) {
            if (!IsReached(check, box) || !NamesNoEntry(Boxes[box])) continue;
            Report(check, box, text + ": its text names an entry that isn't there",
                   "Write Input1, Input2 or Input3, and no other word with \"input\" in it");
        }
        if (check.Found.size() == before) Report(check, 0, text, "Look at its blocks");
    }
    if (!end.Done) return;
    if (end.Depth != 0) {
        Report(check, 0, "The run ends inside a block and leaves out what waits outside",
               "Look at what leads into the block and what closes it");
    }
    for (const int box : check.Own) {
        if (!Assigns(Boxes[box]) || !IsReached(check, box) || IsAssigned(end.Script, box)) continue;
        Report(check, box, "It is left out of the script: its block is closed before its turn",
               "Lead an arrow from it, or from what it leads to, to the box that closes the block");
    }
}

}  // namespace

std::vector<Finding> CheckDocument(int document) {
    Check check;
    check.Document = document;
    for (int i = 1; i < NextBox; ++i) {
        if (Boxes[i].BoxDocument == document) check.Own.push_back(i);
    }
    Reach(check);
    for (const int box : check.Own) CheckOne(check, box);
    CheckBlocks(check);
    if (!check.Stops) CheckRun(check);
    return check.Found;
}

}  // namespace quorvane
