// SPDX-License-Identifier: MIT
#include "generator/check_blocks.h"

#include "generator/control_flow.h"

namespace quorvane {

namespace {

bool IsCloser(std::string_view type) {
    return type == "Next" || type == "End If" || type == "End Subroutine";
}

std::vector<int> Peers(const Box& box, const std::vector<int>& exits) {
    std::vector<int> peers;
    for (const int exit : exits) {
        if (box.BoxOut[exit] > 0 && box.BoxOut[exit] < NextBox) peers.push_back(box.BoxOut[exit]);
    }
    return peers;
}

}  // namespace

std::string_view CloserOf(std::string_view type) {
    if (type == "For" || type == "While") return "Next";
    if (type == "If") return "End If";
    const bool isHead =
        IsSubroutineHead(type) && !IsSubroutineCall(type) && type != "End Subroutine";
    return isHead ? "End Subroutine" : "";
}

std::vector<int> InnerExits(const Box& box) {
    if (box.BoxType != "If") return {1, 2, 3, 4, 5};
    return box.BoxText.starts_with("else") ? std::vector<int>{1, 2} : std::vector<int>{1};
}

/// Where the walk goes on behind a box on its own level.
std::vector<int> Blocks::Behind(int number) {
    const Box& box = Boxes[number];
    if (IsCloser(box.BoxType)) return {};
    if (box.BoxType == "If") {
        std::vector<int> further = {2, 3, 4, 5};
        if (box.BoxText.starts_with("else")) further.erase(further.begin());
        return Peers(box, further);
    }
    if (CloserOf(box.BoxType) != "Next") return Peers(box, {1, 2, 3, 4, 5});
    std::vector<int> behind;
    for (const int next : Whole(number).Closers) {
        for (const int peer : Peers(Boxes[next], {1, 2, 3, 4, 5})) behind.push_back(peer);
    }
    return behind;
}

/// The boxes that stand on one level with those of `waiting` or behind them.
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

std::vector<int> Blocks::Inside(int box, const std::vector<int>& exits) {
    return Level(Peers(Boxes[box], exits));
}

Blocks::Block Blocks::Inspect(int number, const std::vector<int>& exits) {
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

std::vector<int> Blocks::Closers(int box, const std::vector<int>& exits) {
    return Inspect(box, exits).Closers;
}

}  // namespace quorvane
