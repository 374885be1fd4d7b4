// SPDX-License-Identifier: MIT
#include "generator/check_blocks.h"

#include <algorithm>

#include "generator/control_flow.h"

namespace quorvane {

namespace {

bool Contains(const std::vector<int>& boxes, int box) {
    return std::find(boxes.begin(), boxes.end(), box) != boxes.end();
}

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
    while (!waiting.empty()) {
        const int box = waiting.back();
        waiting.pop_back();
        if (Contains(level, box)) continue;
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
        for (const auto* closers : {&inside.Closers, &inside.Inner}) {
            block.Inner.insert(block.Inner.end(), closers->begin(), closers->end());
        }
    }
    for (const int each : level) {
        if (Boxes[each].BoxType == CloserOf(box.BoxType) && !Contains(block.Inner, each)) {
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
