// SPDX-License-Identifier: MIT
#include "check/check_document.h"

#include <algorithm>

#include "check/check_blocks.h"
#include "check/check_rows.h"
#include "check/check_structure.h"
#include "check/check_writing.h"
#include "check/trial_run.h"
#include "generator/control_flow.h"
#include "generator/emission_chain.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

void CheckOne(Check& check, int number) {
    const auto& type = Boxes[number].BoxType;
    if (type == "Pickup") CheckPickup(check, number);
    if (IsPassive(Boxes[number])) return;
    if (!IsReached(check, number)) return CheckUnreached(check, number);
    CheckArrows(check, number);
    const auto* row = FindTroubledType(type);
    if (!FindEmissionRow(type)) {
        ReportStop(check, number, "No script is known for this type: the run stops here and asks",
                   row ? InPlace(row->Function) : "Delete it and make it again from the menu");
        return;
    }
    if (!row) CheckEntries(check, number);
    CheckText(check, number);
    CheckSubroutine(check, number);
}

/// Why a box can't be written although its feeders are all done.
std::string OwnReason(const Box& box) {
    if (box.BoxText == "Deleted") return "a box with the text \"Deleted\" is never written";
    const bool opens = !CloserOf(box.BoxType).empty() || IsSubroutineCall(box.BoxType);
    return opens ? "a block opens only when no other box can go on" : "it can't be written here";
}

void CheckWaiting(Check& check, const TrialEnd& end) {
    const std::string stop = "The run stops here and asks: ";
    for (const auto& waiting : end.Waiting) {
        const Box& box = BoxOrFree(waiting.Box);
        if (waiting.Feeder == 0) {
            Report(check, waiting.Box, stop + OwnReason(box),
                   "Put it before or after the other boxes that wait, or delete it");
        } else {
            Report(check, waiting.Box, stop + "it waits for " + Named(waiting.Feeder),
                   box.BoxType == "End If"
                       ? "Give each arm of a branch an End If of its own"
                       : "Draw the arrows so that what it waits for comes before it");
        }
    }
}

void CheckError(Check& check, int error) {
    const auto text = "The run ends with run-time error " + NumberText(error);
    const auto before = check.Found.size();
    for (const int box : check.Own) {
        if (!IsReached(check, box) || !NamesNoEntry(Boxes[box])) continue;
        Report(check, box, text + ": its text names an entry that isn't there",
               "Write Input1, Input2 or Input3, and no other word with \"input\" in it");
    }
    if (check.Found.size() == before) Report(check, 0, text, "Look at its blocks");
}

/// Reports what a run that reached its end has left out.
void CheckLeftOut(Check& check, const TrialEnd& end) {
    if (end.Depth != 0) {
        Report(check, 0, "The run ends inside a block and leaves out what waits outside",
               "Look at what leads into the block and what closes it");
    }
    for (const int box : check.Own) {
        // The end of a branch is never marked, and of two heads of a name the second may be passed.
        const auto& type = Boxes[box].BoxType;
        if (type == "End If" || CloserOf(type) == "End Subroutine") continue;
        if (IsPassive(Boxes[box]) || !IsReached(check, box)) continue;
        if (end.Written[static_cast<std::size_t>(box)]) continue;
        Report(check, box, "It is left out of the script: its block is closed before its turn",
               "Draw an arrow from it, or from what it leads to, to the box that closes the block");
    }
}

}  // namespace

std::vector<Finding> CheckDocument(int document) {
    Check check;
    check.Document = document;
    for (int i = 1; i < NextBox; ++i) {
        if (Boxes[i].BoxDocument == document) check.Own.push_back(i);
    }
    FindReached(check);
    for (const int box : check.Own) CheckOne(check, box);
    CheckBlocks(check);
    // A trial run shows the rest, when nothing explains a stop yet.
    if (!check.Stops) {
        const auto end = TryCompiling(document);
        CheckWaiting(check, end);
        if (end.Error != 0) CheckError(check, end.Error);
        if (end.End == RunEnd::Done) CheckLeftOut(check, end);
    }
    std::stable_sort(check.Found.begin(), check.Found.end(),
                     [](const Finding& one, const Finding& other) { return one.Box < other.Box; });
    return std::move(check.Found);
}

}  // namespace quorvane
