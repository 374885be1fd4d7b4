// SPDX-License-Identifier: MIT
#include "workbench/diff.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <map>

#include "platform/numbers.h"

namespace quorvane {

namespace {

using Kind = DescribedSlot::Kind;

constexpr std::size_t Alone = static_cast<std::size_t>(-1);

/// One of the two diagrams. A pair is called by the place of its box in the new one.
struct Side {
    const Description& Boxes;
    std::vector<std::size_t> Pair;  ///< By box: its pair, or Alone

    explicit Side(const Description& boxes) : Boxes(boxes), Pair(boxes.size(), Alone) {}
};

struct Comparison {
    Side Old;
    Side New;
    DiagramDiff Diff;
};

/// A box and what has become of it.
struct Pair {
    const DescribedBox& Old;
    const DescribedBox& New;
};

/// What makes two boxes the same; "" for a box that this can't tell of.
using KeyOf = std::function<std::string(const Side&, const DescribedBox&)>;

std::string Own(const DescribedBox& box) { return box.Type + "\n" + box.Pattern; }

/// The boxes at the far ends as far as they are known.
template <class Slots>
std::string FarEnds(const Side& side, const Slots& slots) {
    std::string ends;
    bool isKnown = false;
    for (const auto& slot : slots) {
        const bool joined = slot.State == Kind::Joined && side.Pair[slot.Far] != Alone;
        isKnown |= joined;
        ends += joined ? "\n" + std::to_string(side.Pair[slot.Far]) : "\n";
    }
    return isKnown ? ends : "";
}

std::string Surroundings(const Side& side, const DescribedBox& box) {
    const auto ends = FarEnds(side, box.Entries) + "|" + FarEnds(side, box.Exits);
    return ends == "|" ? "" : box.Type + ends;
}

std::string Fed(const Side& side, const DescribedBox& box) {
    const auto ends = FarEnds(side, box.Entries);
    return ends.empty() ? "" : Own(box) + ends;
}

/// From what is surely the same box to what may well be.
const KeyOf keys[] = {
    [](const Side&, const DescribedBox& box) { return Own(box) + "\n" + PlaceWords(box); },
    [](const Side&, const DescribedBox& box) { return box.Id; },
    [](const Side&, const DescribedBox& box) { return box.Type + "\n" + PlaceWords(box); },
    Fed,
    [](const Side&, const DescribedBox& box) { return Own(box); },
    [](const Side&, const DescribedBox& box) { return PlaceWords(box); },
    Surroundings,
};

/// By key, the boxes that have no pair yet.
std::map<std::string, std::deque<std::size_t>> Waiting(const Side& side, const KeyOf& keyOf) {
    std::map<std::string, std::deque<std::size_t>> waiting;
    for (std::size_t i = 0; i < side.Boxes.size(); ++i) {
        if (side.Pair[i] == Alone) waiting[keyOf(side, side.Boxes[i])].push_back(i);
    }
    waiting.erase("");
    return waiting;
}

/// Makes pairs of boxes with the same key, in their order.
void MakePairs(Comparison& both, const KeyOf& keyOf) {
    auto waiting = Waiting(both.New, keyOf);
    for (const auto& [key, boxes] : Waiting(both.Old, keyOf)) {
        auto& others = waiting[key];
        for (std::size_t i = 0; i < std::min(boxes.size(), others.size()); ++i) {
            both.Old.Pair[boxes[i]] = both.New.Pair[others[i]] = others[i];
        }
    }
}

/// "Sin (box3)", after the number in its own diagram.
std::string Named(const DescribedBox& box) {
    return box.Id + " (box" + NumberText(box.Number) + ")";
}

void Tell(Comparison& both, Change kind, const Pair& box, const std::string& now,
          const std::string& before) {
    static const std::map<Change, std::string> words = {{Change::Moved, "moved "},
                                                        {Change::Changed, "changed "},
                                                        {Change::Rewired, "rewired "},
                                                        {Change::Recoloured, "recoloured "}};
    both.Diff.Found.push_back({kind, box.Old.Number, box.New.Number,
                               words.at(kind) + Named(box.New) + ": " + now + ", was " + before});
}

/// True for slots that say the same, each in its diagram.
bool IsSame(const Comparison& both, const DescribedSlot& one, const DescribedSlot& other) {
    if (one.State != other.State) return false;
    if (one.State == Kind::Lost) return one.Far == other.Far;
    if (one.State == Kind::Open || one.State == Kind::Locked) return true;
    return both.Old.Pair[one.Far] == other.Far && one.FarSlot == other.FarSlot;
}

void CompareEntries(Comparison& both, const Pair& box) {
    for (int i = 1; i <= 3; ++i) {
        const auto& before = box.Old.Entries[i];
        const auto& now = box.New.Entries[i];
        const auto entry = "entry " + NumberText(i) + " ";
        if (!IsSame(both, before, now)) {
            Tell(both, Change::Rewired, box, entry + SlotWords(both.New.Boxes, now, true),
                 SlotWords(both.Old.Boxes, before, true));
        } else if (now.Color != before.Color) {
            Tell(both, Change::Recoloured, box, "the arrow to " + entry + ColorWords(now.Color),
                 ColorWords(before.Color));
        }
    }
}

/// An arrow is told at the entry that it leads to.
DescribedSlot WithoutArrow(const DescribedSlot& exit) {
    return exit.State == Kind::Joined ? DescribedSlot() : exit;
}

void CompareExits(Comparison& both, const Pair& box) {
    for (int i = 1; i <= 5; ++i) {
        const auto before = WithoutArrow(box.Old.Exits[i]);
        const auto now = WithoutArrow(box.New.Exits[i]);
        if (IsSame(both, before, now)) continue;
        Tell(both, Change::Rewired, box,
             "exit " + NumberText(i) + " " + SlotWords(both.New.Boxes, now, false),
             SlotWords(both.Old.Boxes, before, false));
    }
}

bool HasSameText(const Comparison& both, const Pair& box) {
    return box.Old.Pattern == box.New.Pattern &&
           std::equal(box.Old.Mentions.begin(), box.Old.Mentions.end(), box.New.Mentions.begin(),
                      box.New.Mentions.end(),
                      [&](auto one, auto other) { return both.Old.Pair[one] == other; });
}

void ComparePair(Comparison& both, const Pair& box) {
    if (PlaceWords(box.Old) != PlaceWords(box.New)) {
        Tell(both, Change::Moved, box, PlaceWords(box.New), PlaceWords(box.Old));
    }
    if (box.Old.Type != box.New.Type) {
        Tell(both, Change::Changed, box, "type " + Quoted(box.New.Type), Quoted(box.Old.Type));
    }
    if (!HasSameText(both, box)) {
        Tell(both, Change::Changed, box, "text " + Quoted(DescribedText(both.New.Boxes, box.New)),
             Quoted(DescribedText(both.Old.Boxes, box.Old)));
    }
    CompareEntries(both, box);
    CompareExits(both, box);
}

}  // namespace

DiagramDiff DiffDiagrams(const Description& older, const Description& newer) {
    Comparison both{Side(older), Side(newer), {}};
    for (const auto& key : keys) MakePairs(both, key);
    for (std::size_t i = 0; i < newer.size(); ++i) {
        const auto& box = newer[i];
        if (both.New.Pair[i] != Alone) continue;
        both.Diff.Found.push_back(
            {Change::Added, 0, box.Number, "added " + Named(box) + ": " + BoxWords(newer, box)});
    }
    for (std::size_t i = 0; i < older.size(); ++i) {
        const auto& box = older[i];
        if (both.Old.Pair[i] != Alone) {
            both.Diff.NewNumbers[box.Number] = newer[both.Old.Pair[i]].Number;
            ComparePair(both, {box, newer[both.Old.Pair[i]]});
        } else {
            both.Diff.Found.push_back({Change::Removed, box.Number, 0,
                                       "removed " + Named(box) + ": " + BoxWords(older, box)});
        }
    }
    std::stable_sort(both.Diff.Found.begin(), both.Diff.Found.end(),
                     [](const auto& one, const auto& other) { return one.Kind < other.Kind; });
    return std::move(both.Diff);
}

}  // namespace quorvane
