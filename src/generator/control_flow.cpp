// SPDX-License-Identifier: MIT
#include "generator/control_flow.h"

#include "generator/front.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view ElseMark = "else";

/// A block opens only when no other box of the front could be written instead. The feeders are
/// asked first, since asking writes the lines of Pickups.
bool MayOpen(Run& run, int box) {
    const bool ready = Ready(run, box);
    const bool alone = AttemptValue(run.Policy, false, [&] { return NoOtherBoxReady(box); });
    return ready && alone;
}

/// Removes one level of indentation: a closing box has been given that of its block.
void Strip(Run& run) {
    if (run.scriptText.ends_with("   ")) run.scriptText.resize(run.scriptText.size() - 3);
}

}  // namespace

bool WriteLoop(Run& run, int box, int slot) {
    if (!MayOpen(run, box)) return false;
    PushFront(run.Policy, slot);
    const Box& record = Boxes[box];
    if (record.BoxType == "For") {
        WriteLine(run, "for " + BoxName(box) + "=" + record.BoxText);
    } else {
        WriteLine(run, "while " + record.BoxText);
    }
    return true;
}

bool WriteNext(Run& run, int box, int slot) {
    Strip(run);
    run.Policy = ErrorPolicy::Ignore;
    Attempt([&] { PopFront(); });
    // The box that waited in this slot makes room, so that the driver continues with the Next box.
    const auto waiting = Front[slot];
    Front[slot] = static_cast<std::int16_t>(box);
    if (waiting != 0) AddToFront(waiting);
    WriteLine(run, "end;");
    WriteLine(run, BoxName(box) + "=" + BoxName(Boxes[box].BoxIn[1]) + ";");
    return true;
}

bool WriteEndSubroutine(Run& run, int box, int /*slot*/) {
    // Slot 0 of the frame holds the box that feeds the call; its first exit leads to the caller.
    const int caller =
        AttemptValue(run.Policy, 0, [&] { return int{Boxes[Frame(nestingDepth)[0]].BoxOut[1]}; });
    run.Policy = ErrorPolicy::Ignore;
    Attempt([&] { PopFront(); });
    WriteLine(run, BoxName(caller) + "=" + BoxName(Boxes[box].BoxIn[1]) + ";");
    return true;
}

int ArmCount(const Box& box) {
    if (box.BoxType != "If"sv) return 0;
    return box.BoxText.starts_with(ElseMark) ? 2 : 1;
}

std::string_view ConditionOf(const Box& box) {
    const std::string_view text = box.BoxText;
    return text.substr(text.starts_with(ElseMark) ? ElseMark.size() : 0);
}

bool WriteIf(Run& run, int box, int /*slot*/) {
    if (!MayOpen(run, box)) return false;
    const Box& record = Boxes[box];
    run.workText = ConditionOf(record);
    WriteLine(run, BoxName(box) + "=" + BoxName(record.BoxIn[1]) + ";");
    WriteLine(run, "if (" + run.workText + "),");
    PushFront(run.Policy, -1);
    Front[1] = record.BoxOut[1];
    if (ArmCount(record) == 2) {
        PushFront(run.Policy, -1);
        Front[1] = record.BoxOut[2];
        Front[0] = static_cast<std::int16_t>(box);
    }
    return true;
}

bool WriteEndIf(Run& run, int /*box*/, int /*slot*/) {
    Strip(run);
    WriteLine(run, Front[0] > 0 ? "else" : "end;");
    Attempt(run.Policy, [&] { PopFront(); });
    return false;
}

bool IsSubroutineCall(std::string_view type) { return type.starts_with("Insert Subroutine"); }

std::string CalledHead(std::string_view call) {
    constexpr std::size_t prefixLength = 18;  // with the blank behind the words
    return std::string(call.substr(std::min(prefixLength, call.size()))) + " Subroutine";
}

bool WriteSubroutineCall(Run& run, int box, int /*slot*/) {
    if (run.stallCount > 0 ? !MayOpen(run, box) : !Ready(run, box)) return false;
    const Box& record = Boxes[box];
    run.workText = CalledHead(record.BoxType);
    PushFront(run.Policy, -1);
    for (std::int16_t j = 1; j < NextBox; ++j) {
        if (Boxes[j].BoxType != run.workText) continue;
        Attempt(run.Policy, [&] { Frame(nestingDepth)[0] = record.BoxIn[1]; });
        AddToFront(j);
    }
    return true;
}

bool IsSubroutineHead(std::string_view type) { return type.ends_with("Subroutine"); }

bool WriteSubroutineHead(Run& run, int box, int /*slot*/) {
    Attempt(run.Policy,
            [&] { WriteLine(run, BoxName(box) + "=" + BoxName(Frame(nestingDepth)[0]) + ";"); });
    return true;
}

}  // namespace quorvane
