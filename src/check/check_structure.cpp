// SPDX-License-Identifier: MIT
#include "check/check_structure.h"

#include <algorithm>

#include "check/check_blocks.h"
#include "generator/compile_document.h"
#include "generator/control_flow.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

bool IsHead(std::string_view type) { return CloserOf(type) == "End Subroutine"; }

/// The boxes that enter the front behind this one. Nothing is taken up behind a Pickup, which the
/// walk passes by, and behind the end of a branch.
std::vector<int> Successors(int number) {
    const Box& box = Boxes[number];
    std::vector<int> behind;
    if (box.BoxType == "Pickup" || box.BoxType == "End If") return behind;
    std::copy_if(box.BoxOut.begin(), box.BoxOut.end(), std::back_inserter(behind), IsThere);
    if (!IsSubroutineCall(box.BoxType)) return behind;
    const auto head = CalledHead(box.BoxType);
    for (int i = 1; i < NextBox; ++i) {
        if (Boxes[i].BoxType == head) behind.push_back(i);
    }
    return behind;
}

int FindUnreachedFeeder(const Check& check, int number) {
    const auto& feeders = Boxes[number].BoxIn;
    const auto* feeder = std::find_if(feeders.begin(), feeders.end(), [&](int each) {
        return IsThere(each) && !IsPassive(Boxes[each]) && !IsReached(check, each);
    });
    return feeder == feeders.end() ? 0 : *feeder;
}

/// True for the box with which a chain of unreached boxes begins; in a ring, for its lowest number.
bool BeginsUnreached(const Check& check, int number) {
    const auto feeder = [&](int box) {
        return check.UnreachedFeeder[static_cast<std::size_t>(box)];
    };
    int before = feeder(number);
    if (before == 0) return true;
    for (int steps = 0; before > number && steps < MaxBoxes; ++steps) before = feeder(before);
    return before == number;
}

/// What closes the block of a box, as far as it begins at these exits; what is wrong with it is
/// told.
std::vector<int> CheckInside(Check& check, Blocks& blocks, int number, ExitRange exits,
                             const std::string& where) {
    const Box& box = Boxes[number];
    const auto isWired = [](int peer) { return peer > 0; };
    if (std::none_of(&box.BoxOut[exits.First], &box.BoxOut[exits.Last] + 1, isWired)) {
        ReportStop(
            check, number,
            "No arrow leads into its block" + where + ": the run ends here and leaves out the rest",
            "Draw an arrow to the first box of the block");
        return {};
    }
    auto closers = blocks.Closers(number, exits);
    if (closers.empty()) {
        ReportStop(check, number,
                   "Its block is never closed" + where + ": no arrow leads to \"" +
                       std::string(CloserOf(box.BoxType)) + "\"",
                   "Close it with such a box after the last one of the block");
    }
    return closers;
}

/// The opening of a block: where it leads, and what closes it, which comes back.
std::vector<int> CheckBlock(Check& check, Blocks& blocks, int number) {
    const Box& box = Boxes[number];
    if (ArmCount(box) == 0) return CheckInside(check, blocks, number, InnerExits(box), "");
    std::vector<int> closers;
    for (int exit = 1; exit <= ArmCount(box); ++exit) {
        const auto where = " at exit " + NumberText(exit);
        for (const int closer : CheckInside(check, blocks, number, {exit, exit}, where)) {
            closers.push_back(closer);
        }
    }
    // The return from a call leaves a mark in the front, which the end of the last arm takes for
    // that of another arm to come.
    for (const int each : blocks.Inside(number, {1, 1})) {
        if (!IsSubroutineCall(Boxes[each].BoxType)) continue;
        Report(check, each, "The branch around it ends in \"else\" in place of \"end\"",
               "Call the subroutine before or after the branch");
    }
    return closers;
}

void CheckCall(Check& check, int number) {
    const Box& box = Boxes[number];
    const auto head = CalledHead(box.BoxType);
    bool hasHead = false;
    bool called = false;
    for (int i = 1; i < NextBox; ++i) {
        hasHead = hasHead || Boxes[i].BoxType == head;
        called = called || (i < number && Boxes[i].BoxType == box.BoxType && IsReached(check, i));
    }
    if (!hasHead) {
        ReportStop(check, number, "No box is called \"" + head + "\": the run ends here",
                   "Start a subroutine of this name, or insert another one");
    } else if (called) {
        ReportStop(check, number, "The subroutine was called before: the run ends here",
                   "Call it once, and copy its boxes under another name for a second call");
    }
    const int feeder = box.BoxIn[1];
    if (IsThere(feeder) && Boxes[feeder].BoxOut[1] != number) {
        Report(check, number,
               "Its result goes to the first box after " + Named(feeder) + ", which is another one",
               "Make this arrow the first one of " + BoxName(feeder));
    }
}

void CheckHead(Check& check, int number) {
    for (int i = 1; i < number; ++i) {
        if (Boxes[i].BoxType != Boxes[number].BoxType) continue;
        Report(check, number, Named(i) + " bears the same name: a call writes both",
               "Give one of them another name");
        return;
    }
}

}  // namespace

void FindReached(Check& check) {
    check.Reached.assign(MaxBoxes + 1, false);
    std::vector<int> waiting;
    for (const int box : check.Own) {
        if (StartsRun(Boxes[box])) waiting.push_back(box);
    }
    if (waiting.empty()) {
        ReportStop(check, 0, "No box starts the run, which says \"There are no inputs !\"",
                   "Begin with a Start box or an input box");
        // What is wrong with the boxes themselves is told all the same.
        check.Reached.assign(MaxBoxes + 1, true);
    }
    while (!waiting.empty()) {
        const int box = waiting.back();
        waiting.pop_back();
        if (IsReached(check, box)) continue;
        check.Reached[static_cast<std::size_t>(box)] = true;
        for (const int behind : Successors(box)) waiting.push_back(behind);
    }
    for (int i = 0; i <= MaxBoxes; ++i) {
        check.UnreachedFeeder.push_back(FindUnreachedFeeder(check, i));
    }
}

void CheckUnreached(Check& check, int number) {
    const Box& box = Boxes[number];
    const auto isFedBy = [&](std::string_view type) {
        return std::any_of(box.BoxIn.begin(), box.BoxIn.end(), [&](int feeder) {
            return IsThere(feeder) && Boxes[feeder].BoxType == type;
        });
    };
    // What comes after the end of a branch is reported there.
    if (!BeginsUnreached(check, number) || isFedBy("End If")) return;
    if (IsHead(box.BoxType)) {
        Report(check, number, "Nothing calls it: it is left out of the script",
               "Insert the subroutine somewhere, or delete its boxes");
    } else if (isFedBy("Pickup")) {
        Report(check, number,
               "Only a Pickup feeds it, which starts nothing: it is left out of the script",
               "Draw an arrow to it from the box after which it is to be written");
    } else {
        Report(check, number, "No arrow leads to it from a start: it is left out of the script",
               "Draw an arrow to it, from a Start box when it needs no data, or delete it");
    }
}

void CheckArrows(Check& check, int number) {
    const auto look = [&](const auto& slots) {
        for (const int peer : slots) {
            if (peer < NextBox) continue;
            ReportStop(check, number, "Its arrow leads to " + BoxName(peer) + ", which isn't there",
                       "Cut the arrow in the information on the box");
        }
    };
    look(Boxes[number].BoxIn);
    look(Boxes[number].BoxOut);
    const auto& out = Boxes[number].BoxOut;
    if (Boxes[number].BoxType == "End If" &&
        std::any_of(out.begin(), out.end(), [](auto exit) { return exit > 0; })) {
        ReportStop(check, number,
                   "Its arrows are not followed: a branch continues after the If box",
                   "Draw them from the If box, as its further exits");
    }
}

void CheckSubroutine(Check& check, int number) {
    const auto& type = Boxes[number].BoxType;
    if (IsSubroutineCall(type)) CheckCall(check, number);
    if (IsHead(type)) CheckHead(check, number);
}

void CheckBlocks(Check& check) {
    Blocks blocks;
    std::vector<bool> closes(MaxBoxes + 1);
    for (const int box : check.Own) {
        if (!IsReached(check, box) || CloserOf(Boxes[box].BoxType).empty()) continue;
        for (const int closer : CheckBlock(check, blocks, box)) {
            closes[static_cast<std::size_t>(closer)] = true;
        }
    }
    for (const int box : check.Own) {
        if (!IsReached(check, box) || !IsCloser(Boxes[box].BoxType)) continue;
        if (closes[static_cast<std::size_t>(box)]) continue;
        ReportStop(check, box, "It closes a block that isn't open there",
                   "Delete it, or draw the arrows of its block to it");
    }
}

}  // namespace quorvane
