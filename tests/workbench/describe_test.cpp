// SPDX-License-Identifier: MIT
// Random diagrams and their edited copies under other numbers: which lines of the description
// change, and what the difference tells.
#include "workbench/describe.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>
#include <random>
#include <set>

#include "workbench/diff.h"

using namespace quorvane;

namespace {

/// The boxes of a diagram by number, from 0. Each is marked, so that it is found in a copy.
using Drawing = std::vector<Box>;

std::minstd_rand chance;
int Any(std::size_t below) { return static_cast<int>(chance() % below); }
Box& AnyOf(Drawing& drawing) { return drawing[chance() % drawing.size()]; }

int MentionedBy(const Box& box) {
    return box.BoxType == "While" ? std::stoi(box.BoxText.substr(3)) : 0;
}

std::string Kind(const Box& box) {
    return box.BoxType + (MentionedBy(box) ? "" : "~" + box.BoxText);
}

Box NewBox(const Drawing& drawing) {
    Box box;
    box.BoxMark = std::to_string(drawing.size());
    box.BoxType = std::vector{"Sin", "+", "Constant Input", "While", "Log"}[Any(5) % 5];
    if (box.BoxType == "While")
        box.BoxText = "box" + std::to_string(Any(drawing.size() + 1)) + ">1";
    if (box.BoxType == "Constant Input") box.BoxText = std::to_string(Any(4));
    box.BoxDocument = 1;
    box.BoxLeft = 300 * static_cast<int>(drawing.size());  // No two boxes stand on one place.
    box.BoxTop = 300 * Any(9);
    return box;
}

/// Leads a first arrow from any box to any other where both are open, and gives that back; 0 where
/// not.
int Join(Drawing& drawing) {
    const int from = Any(drawing.size()) + 1, to = Any(drawing.size()) + 1;
    auto& exit = drawing[from - 1].BoxOut[Any(5) + 1];
    auto& entry = drawing[to - 1].BoxIn[Any(3) + 1];
    const auto& exits = drawing[from - 1].BoxOut;
    if (exit != 0 || entry != 0 || std::count(exits.begin(), exits.end(), to) > 0) return 0;
    exit = static_cast<std::int16_t>(to);
    entry = static_cast<std::int16_t>(from);
    return to;
}

Drawing AnyDrawing() {
    Drawing drawing;
    for (int n = 2 + Any(12); n > 0; --n) drawing.push_back(NewBox(drawing));
    for (int n = Any(24); n > 0; --n) Join(drawing);
    return drawing;
}

/// The drawing with its boxes in another order, 0 and what isn't there staying as it is.
Drawing Renumbered(const Drawing& drawing, const std::vector<int>& numbers) {
    Drawing other(drawing.size());
    for (std::size_t i = 0; i < drawing.size(); ++i) {
        Box box = drawing[i];
        for (auto& slot : box.BoxIn) slot = static_cast<std::int16_t>(numbers[slot]);
        for (auto& slot : box.BoxOut) slot = static_cast<std::int16_t>(numbers[slot]);
        if (MentionedBy(box))
            box.BoxText = "box" + std::to_string(numbers[MentionedBy(box)]) + ">1";
        other[numbers[i + 1] - 1] = box;
    }
    return other;
}

Drawing Shuffled(const Drawing& drawing) {
    std::vector<int> numbers(drawing.size() + 1);
    std::iota(numbers.begin(), numbers.end(), 0);
    std::shuffle(numbers.begin() + 1, numbers.end(), chance);
    return Renumbered(drawing, numbers);
}

/// Takes a box out that no text mentions; false for any other. The last one gets its number.
bool Erase(Drawing& drawing, int number) {
    for (const auto& box : drawing) {
        if (MentionedBy(box) == number) return false;
    }
    std::vector<int> numbers(drawing.size() + 1);
    std::iota(numbers.begin(), numbers.end(), 0);
    std::swap(numbers[number], numbers.back());
    drawing = Renumbered(drawing, numbers);
    for (auto& box : drawing) {
        for (auto& slot : box.BoxIn) slot = slot == numbers[number] ? 0 : slot;
        for (auto& slot : box.BoxOut) slot = slot == numbers[number] ? 0 : slot;
    }
    drawing.pop_back();
    return true;
}

/// What a description says, by the marks of the boxes.
struct Seen {
    Description Boxes;
    std::string Lines;
    std::map<std::string, std::string> LineOf, IdOf, KindOf;
};

Seen See(const Drawing& drawing) {
    NextBox = 1;
    for (const auto& box : drawing) Boxes[NextBox++] = box;
    Seen seen{DescribeDocument(1), "", {}, {}, {}};
    seen.Lines = DescribedLines(seen.Boxes);
    for (const auto& box : seen.Boxes) {
        const auto& mark = Boxes[box.Number].BoxMark;
        seen.LineOf[mark] = box.Id + ": " + BoxWords(seen.Boxes, box);
        seen.IdOf[mark] = box.Id;
        seen.KindOf[mark] = Kind(Boxes[box.Number]);
    }
    return seen;
}

/// Boxes that lie on each other are told apart by their arrows alone.
void ExpectSameLinesOnOnePlace(Drawing drawing) {
    for (auto& box : drawing) box.BoxLeft = box.BoxTop = 0;
    EXPECT_EQ(See(drawing).Lines, See(Shuffled(drawing)).Lines);
}

/// The boxes of both whose texts differ.
std::set<std::string> Changed(const std::map<std::string, std::string>& before,
                              const std::map<std::string, std::string>& after) {
    std::set<std::string> changed;
    for (const auto& [mark, text] : before) {
        if (after.contains(mark) && after.at(mark) != text) changed.insert(mark);
    }
    return changed;
}

/// An edit, the box that it is about, and what the difference must tell.
struct Edit {
    std::string Mark;
    std::vector<Change> Told;
};

Edit EditAnything(Drawing& drawing) {
    auto& box = AnyOf(drawing);
    const auto mark = box.BoxMark;
    switch (Any(5)) {
        case 0:
            drawing.push_back(NewBox(drawing));
            return {drawing.back().BoxMark, {Change::Added}};
        case 1: {
            std::vector<Change> told = {Change::Removed};
            for (const int far : box.BoxOut) {
                if (far > 0 && drawing[far - 1].BoxMark != mark) told.push_back(Change::Rewired);
            }
            if (!Erase(drawing, static_cast<int>(&box - drawing.data()) + 1)) break;
            return {mark, told};
        }
        case 2:
            box.BoxLeft += 15;
            box.BoxTop = 300 * Any(9);
            return {mark, {Change::Moved}};
        case 3:
            if (MentionedBy(box)) break;
            box.BoxText += "7";
            return {mark, {Change::Changed}};
        default:
            if (const int to = Join(drawing)) return {drawing[to - 1].BoxMark, {Change::Rewired}};
    }
    return {};
}

TEST(Describe, ChangesWhereTheDiagramDoes) {
    int lonely = 0;
    for (unsigned seed = 0; seed < 5000; ++seed) {
        SCOPED_TRACE(seed);
        chance.seed(seed + 1);
        auto drawing = AnyDrawing();
        const auto before = See(drawing);
        const auto other = See(Shuffled(drawing));
        ASSERT_EQ(before.Lines, other.Lines);
        ASSERT_TRUE(DiffDiagrams(before.Boxes, other.Boxes).Found.empty());
        if (seed % 4 == 0) ExpectSameLinesOnOnePlace(drawing);

        const auto edit = EditAnything(drawing);
        const auto after = See(Shuffled(drawing));
        std::vector<Change> told;
        for (const auto& found : DiffDiagrams(before.Boxes, after.Boxes).Found)
            told.push_back(found.Kind);
        ASSERT_EQ(told, edit.Told) << before.Lines << "\n" << after.Lines;

        // Alone of its kind, a box keeps its id, and its line alone changes.
        const auto changed = Changed(before.LineOf, after.LineOf);
        const auto& kinds = after.KindOf.contains(edit.Mark) ? after.KindOf : before.KindOf;
        if (told.size() != 1 || told[0] == Change::Changed || told[0] == Change::Removed) continue;
        const auto& own = kinds.at(edit.Mark);
        if (std::count_if(kinds.begin(), kinds.end(),
                          [&](const auto& kind) { return kind.second == own; }) > 1) {
            const auto renamed = Changed(before.IdOf, after.IdOf);
            EXPECT_LE(renamed.size(), told[0] == Change::Added ? 2U : 5U);
            for (const auto& mark : renamed) {
                EXPECT_EQ(kinds.at(mark), own) << before.Lines << "\n" << after.Lines;
            }
            continue;
        }
        ++lonely;
        if (told[0] == Change::Added) {
            EXPECT_EQ(changed.size(), 0U);
        } else {
            EXPECT_EQ(changed, std::set{edit.Mark});
        }
    }
    EXPECT_GT(lonely, 300);
    ResetBoxTable();
}

}  // namespace
