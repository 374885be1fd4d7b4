// SPDX-License-Identifier: MIT
#include "generator/front.h"

#include <algorithm>
#include <string_view>

#include "diagram/box_table.h"
#include "platform/numbers.h"

namespace quorvane {

GrowableArray<std::int16_t> Front(5);
std::int16_t frontWidth = 5;
GrowableArray<GrowableArray<std::int16_t>> FrameStack;
std::int16_t nestingDepth = 0;

namespace {

using namespace std::string_view_literals;

constexpr int FrontStep = 5;

void SetFrameWidth() {
    for (int i = 0; i <= FrameStack.UpperBound(); ++i) FrameStack[i].Resize(frontWidth);
}

/// The first of these slots that holds the box, or `end`. A front of hundreds of slots is searched
/// for each arrow; the compiler compares the slots of a block together.
std::int16_t* FindSlot(std::int16_t* at, std::int16_t* end, std::int16_t box) {
    constexpr int block = 16;
    for (; end - at >= block; at += block) {
        std::int16_t found = 0;  // as wide as a slot, or they are compared one by one
        for (int k = 0; k < block; ++k) {
            found = static_cast<std::int16_t>(found | static_cast<int>(at[k] == box));
        }
        if (found != 0) break;
    }
    return std::find(at, end, box);
}

/// One frame for each open block. It is not made smaller when the last block closes: the next push
/// finds the old frame there, and a spared slot keeps what it held.
void SetFrameCount() {
    if (nestingDepth <= 0) return;
    FrameStack.Resize(nestingDepth);
    SetFrameWidth();
}

}  // namespace

GrowableArray<std::int16_t>& Frame(int number) {
    if (number < 1) throw RuntimeError(9);
    return FrameStack[number];
}

bool IsFrontEmpty() {
    const auto* slots = Front.Data();
    EditMode = std::all_of(slots + 1, slots + frontWidth + 1, [](auto box) { return box == 0; });
    return EditMode == 1;
}

void AddToFront(std::int16_t box) {
    if (box < 0) return;
    auto* slots = Front.Data();
    auto* end = slots + frontWidth + 1;
    if (FindSlot(slots + 1, end, box) != end) return;
    auto* empty = FindSlot(slots + 1, end, 0);
    if (empty != end) {
        *empty = box;
        return;
    }
    frontWidth = ToInt16(frontWidth + FrontStep);
    Front.Resize(frontWidth);
    SetFrameWidth();
    Front[frontWidth - FrontStep + 1] = box;
}

void RemoveFromFront(int slot) {
    auto* slots = Front.Data();
    std::copy(slots + slot + 1, slots + frontWidth + 1, slots + slot);
    Front[frontWidth] = 0;
}

bool InputsReady(std::string& scriptText, int box) {
    for (const auto feeder : Boxes[box].BoxIn) {
        if (feeder <= 0) continue;
        Box& source = Boxes[feeder];
        if (source.BoxType == "Pickup"sv) {
            scriptText += BoxName(feeder) + "=" + source.BoxText + ";\r\n";
            MarkDone(source);
        }
        if (!IsDone(source)) return false;
    }
    return true;
}

int UndoneFeeder(int box) {
    for (const int feeder : Boxes[box].BoxIn) {
        if (feeder > 0 && !IsDone(Boxes[feeder])) return feeder;
    }
    return 0;
}

bool NoOtherBoxReady(int box) {
    for (int slot = 1; slot <= frontWidth; ++slot) {
        const int other = Front[slot];
        if (other != 0 && other != box && UndoneFeeder(other) == 0) return false;
    }
    return true;
}

void PushFront(ErrorPolicy policy, int sparedSlot) {
    nestingDepth = ToInt16(nestingDepth + 1);
    SetFrameCount();
    for (int slot = 0; slot <= frontWidth; ++slot) {
        if (slot == sparedSlot) continue;
        Attempt(policy, [&] { Frame(nestingDepth)[slot] = Front[slot]; });
        Front[slot] = 0;
    }
}

void PopFront() {
    nestingDepth = ToInt16(nestingDepth - 1);
    const auto& frame = Frame(nestingDepth + 1);
    for (int slot = 0; slot <= frontWidth; ++slot) Front[slot] = frame[slot];
    SetFrameCount();
}

void ClearFront() {
    Front = GrowableArray<std::int16_t>(frontWidth);
    FrameStack = GrowableArray<GrowableArray<std::int16_t>>();
    nestingDepth = 0;
}

void ResetFront() {
    frontWidth = FrontStep;
    ClearFront();
}

}  // namespace quorvane
