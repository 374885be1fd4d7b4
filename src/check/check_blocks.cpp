// SPDX-License-Identifier: MIT
#include "check/check_blocks.h"

#include "generator/control_flow.h"
#include "generator/emission_chain.h"

namespace quorvane {

namespace {

/// The boxes that these exits lead to.
std::vector<int> Peers(const Box& box, ExitRange exits) {
    std::vector<int> peers;
    for (int exit = exits.First; exit <= exits.Last; ++exit) {
        if (box.BoxOut[exit] > 0 && box.BoxOut[exit] < NextBox) peers.push_back(box.BoxOut[exit]);
    }
    return peers;
}

}  // namespace

std::string_view CloserOf(std::string_view type) {
    const auto* row = FindEmissionRow(type);
    if (!row || !row->Write) return "";
    if (row->Write == WriteLoop) return "Next";
    if (row->Write == WriteIf) return "End If";
    return row->Write == WriteSubroutineHead ? "End Subroutine" : "";
}

bool IsCloser(std::string_view type) {
    return type == "Next" || type == "End If" || type == "End Subroutine";
}

ExitRange InnerExits(const Box& box) {
    const int arms = ArmCount(box);
    return arms == 0 ? AllExits : ExitRange{1, arms};
}

/// Where the walk continues after a box, on its own level.
std::vector<int> Blocks::Behind(int number) {
    const Box& box = Boxes[number];
    if (IsCloser(box.BoxType)) return {};
    if (CloserOf(box.BoxType) != "Next") return Peers(box, {ArmCount(box) + 1, 5});
    std::vector<int> behind;
    for (const int next : Whole(number).Closers) {
        for (const int peer : Peers(Boxes[next], AllExits)) behind.push_back(peer);
    }
    return behind;
}

/// The boxes of `waiting` and those that come after them on the same level.
std::vector<int> Blocks::Level(std::vector<int> waiting) {
    std::vector<int> level;
    BoxSet seen;
    while (!waiting.empty()) {
        const int box = waiting.back();
        waiting.pop_back();
        const auto index = static_cast<std::size_t>(box);
        if (seen[index]) continue;
        seen[index] = true;
        level.push_back(box);
        for (const int behind : Behind(box)) waiting.push_back(behind);
    }
    return level;
}

std::vector<int> Blocks::Inside(int box, ExitRange exits) {
    return Level(Peers(Boxes[box], exits));
}

Blocks::Block Blocks::Inspect(int number, ExitRange exits) {
    const Box& box = Boxes[number];
    const auto level = Inside(number, exits);
    Block block;
    for (const int each : level) {
        if (each == number || CloserOf(Boxes[each].BoxType).empty()) continue;
        const auto& inside = Whole(each);
        block.Inner |= inside.Inner;
        for (const int closer : inside.Closers)
            block.Inner[static_cast<std::size_t>(closer)] = true;
    }
    for (const int each : level) {
        if (Boxes[each].BoxType == CloserOf(box.BoxType) &&
            !block.Inner[static_cast<std::size_t>(each)]) {
            block.Closers.push_back(each);
        }
    }
    return block;
}

const Blocks::Block& Blocks::Whole(int box) {
    if (const auto found = known_.find(box); found != known_.end()) return found->second;
    known_[box] = {};
    return known_[box] = Inspect(box, InnerExits(Boxes[box]));
}

std::vector<int> Blocks::Closers(int box, ExitRange exits) { return Inspect(box, exits).Closers; }

}  // namespace quorvane
