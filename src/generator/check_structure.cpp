// SPDX-License-Identifier: MIT
#include <algorithm>

#include "generator/check_blocks.h"
#include "generator/check_parts.h"
#include "generator/control_flow.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

bool IsHead(std::string_view type) { return CloserOf(type) == "End Subroutine"; }

/// Passive boxes: the walk doesn't come to them.
bool IsPassive(const Box& box) { return box.BoxType == "Comment" || box.BoxType == "Pickup"; }

/// The box from which on a chain of unreached boxes is unreached; of a ring its lowest number.
int RootOf(const Check& check, int number) {
    std::vector<int> chain;
    for (int at = number;;) {
        const auto seen = std::find(chain.begin(), chain.end(), at);
        if (seen != chain.end()) return *std::min_element(seen, chain.end());
        chain.push_back(at);
        const auto& feeders = Boxes[at].BoxIn;
        const auto before = std::find_if(feeders.begin(), feeders.end(), [&](int feeder) {
            return IsThere(feeder) && !IsPassive(Boxes[feeder]) && !IsReached(check, feeder);
        });
        if (before == feeders.end()) return at;
        at = *before;
    }
}

/// The opening of a block: where it leads, and what closes it. `closers` gathers what does.
void CheckBlock(Check& check, Blocks& blocks, int number, std::vector<int>& closers) {
    const Box& box = Boxes[number];
    const std::string closer(CloserOf(box.BoxType));
    const auto look = [&](const std::vector<int>& exits, const std::string& where) {
        if (std::none_of(exits.begin(), exits.end(), [&](int e) { return box.BoxOut[e] > 0; })) {
            ReportStop(check, number,
                       "No arrow leads into its block" + where +
                           ": the run ends here and leaves out the rest",
                       "Lead an arrow to the first box of the block");
            return;
        }
        const auto own = blocks.Closers(number, exits);
        if (own.empty()) {
            ReportStop(
                check, number,
                "Its block is never closed" + where + ": no arrow leads to \"" + closer + "\"",
                "Close it with such a box behind the last one of the block");
        }
        closers.insert(closers.end(), own.begin(), own.end());
    };
    if (box.BoxType != "If") return look(InnerExits(box), "");
    for (const int exit : InnerExits(box)) look({exit}, " at exit " + NumberText(exit));
    // The return from a call leaves a mark in the front, which the end of the last arm takes for
    // that of another arm to come.
    for (const int each : blocks.Inside(number, {1})) {
        if (!IsSubroutineCall(Boxes[each].BoxType)) continue;
        Report(check, each, "The branch that it stands in ends in \"else\" in place of \"end\"",
               "Call the subroutine before the branch or behind it");
    }
}

void CheckCall(Check& check, int number) {
    const Box& box = Boxes[number];
    const auto head = HeadOf(box.BoxType);
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
        Report(
            check, number,
            "Its result goes to the first box behind " + Named(feeder) + ", which is another one",
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

void CheckUnreached(Check& check, int number) {
    const Box& box = Boxes[number];
    const auto isFedBy = [&](std::string_view type) {
        return std::any_of(box.BoxIn.begin(), box.BoxIn.end(), [&](int feeder) {
            return IsThere(feeder) && Boxes[feeder].BoxType == type;
        });
    };
    // What stands behind the end of a branch is told there.
    if (RootOf(check, number) != number || isFedBy("End If")) return;
    if (IsHead(box.BoxType)) {
        Report(check, number, "Nothing calls it: it is left out of the script",
               "Insert the subroutine somewhere, or delete its boxes");
    } else if (isFedBy("Pickup")) {
        Report(check, number,
               "Only a Pickup feeds it, which starts nothing: it is left out of the script",
               "Lead an arrow to it from the box after which it is to be written");
    } else {
        Report(check, number, "No arrow leads to it from a start: it is left out of the script",
               "Lead an arrow to it, from a Start box when it needs no data, or delete it");
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
        ReportStop(check, number, "Its arrows are not followed: a branch goes on behind the If box",
                   "Lead them from the If box, as its further exits");
    }
}

void CheckSubroutine(Check& check, int number) {
    const auto& type = Boxes[number].BoxType;
    if (IsSubroutineCall(type)) CheckCall(check, number);
    if (IsHead(type)) CheckHead(check, number);
}

void CheckBlocks(Check& check) {
    Blocks blocks;
    std::vector<int> closers;
    for (const int box : check.Own) {
        if (IsReached(check, box) && !CloserOf(Boxes[box].BoxType).empty()) {
            CheckBlock(check, blocks, box, closers);
        }
    }
    for (const int box : check.Own) {
        const auto& type = Boxes[box].BoxType;
        const bool closes = type == "Next" || type == "End If" || type == "End Subroutine";
        if (!closes || !IsReached(check, box)) continue;
        if (std::find(closers.begin(), closers.end(), box) == closers.end()) {
            ReportStop(check, box, "It closes a block that isn't open there",
                       "Delete it, or lead the arrows of its block to it");
        }
    }
}

}  // namespace quorvane
