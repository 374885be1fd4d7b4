// SPDX-License-Identifier: MIT
#include "workbench/step_name.h"

#include <algorithm>

#include "platform/numbers.h"
#include "platform/paths.h"

namespace quorvane {

namespace {

bool HasWindow(const Snapshot& snapshot, std::size_t document) {
    return document < snapshot.Documents.size() && snapshot.Documents[document].HasWindow;
}

/// The caption of the worksheet that came or went; "" when none did.
std::string DocumentName(const Snapshot& before, const Snapshot& after) {
    const auto count = std::max(before.Documents.size(), after.Documents.size());
    for (std::size_t i = 1; i < count; ++i) {
        if (HasWindow(before, i) == HasWindow(after, i)) continue;
        const bool came = HasWindow(after, i);
        const auto& caption = (came ? after : before).Documents[i].Caption;
        if (came && caption.starts_with("Untitled")) return "new worksheet";
        return (came ? "open " : "close ") + std::string(FileNameOf(caption));
    }
    return "";
}

std::string Counted(const char* verb, int count) {
    if (count == 1) return std::string(verb) + " box";
    return std::string(verb) + " " + NumberText(count) + " boxes";
}

/// How the boxes that both states have differ.
struct Differences {
    int Moved = 0;
    int Changed = 0;
    int Recolored = 0;
    int Last = 0;  ///< A box that was moved, changed or recoloured
    int Source = 0, Target = 0;
    bool Joined = false;
    bool Parted = false;
};

/// Arrows that began or ended at the exits of box `number`.
void CompareExits(const Box& a, const Box& b, int number, Differences& all) {
    for (int j = 1; j <= 5; ++j) {
        if (a.BoxOut[j] == b.BoxOut[j]) continue;
        const bool joined = b.BoxOut[j] > 0;
        (joined ? all.Joined : all.Parted) = true;
        all.Source = number;
        all.Target = joined ? b.BoxOut[j] : a.BoxOut[j];
    }
}

Differences Compare(const Snapshot& before, const Snapshot& after) {
    Differences all;
    const auto count = std::min(before.Boxes.size(), after.Boxes.size());
    for (std::size_t i = 1; i < count; ++i) {
        if (before.Boxes[i] == after.Boxes[i]) continue;
        const Box& a = *before.Boxes[i];
        const Box& b = *after.Boxes[i];
        const int number = static_cast<int>(i);
        const bool moved = a.BoxLeft != b.BoxLeft || a.BoxTop != b.BoxTop;
        const bool changed = a.BoxType != b.BoxType || a.BoxText != b.BoxText;
        const bool recolored = !(a.BoxLineColor == b.BoxLineColor);
        all.Moved += moved;
        all.Changed += changed;
        all.Recolored += recolored;
        if (moved || changed || recolored || all.Last == 0) all.Last = number;
        CompareExits(a, b, number, all);
    }
    return all;
}

std::string ChangeName(const Differences& all) {
    const auto last = BoxName(all.Last);
    if (all.Changed > 0) return "change " + last;
    if (all.Recolored > 0) return "colour of " + last;
    if (all.Moved > 0) return all.Moved == 1 ? "move " + last : Counted("move", all.Moved);
    if (all.Joined) return "arrow " + BoxName(all.Source) + " to " + BoxName(all.Target);
    if (all.Parted) return "disconnect " + BoxName(all.Source);
    return all.Last > 0 ? "change " + last : "line colour";
}

}  // namespace

std::string StepName(const Snapshot& before, const Snapshot& after) {
    auto document = DocumentName(before, after);
    if (!document.empty()) return document;
    const int more = after.NextBox - before.NextBox;
    if (more > 1) return Counted("copy", more);
    if (more == 1) return "place " + after.Boxes.back()->BoxType;
    if (more < 0) return Counted("delete", -more);
    return ChangeName(Compare(before, after));
}

}  // namespace quorvane
