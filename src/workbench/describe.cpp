// SPDX-License-Identifier: MIT
#include "workbench/describe.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "platform/numbers.h"
#include "workbench/box_ids.h"

namespace quorvane {

namespace {

using Kind = DescribedSlot::Kind;

/// The colour of arrows that nobody has chosen another for.
constexpr std::int32_t UsualColor = 0xE0E0E0;

/// By number, the place in the description, from 1; 0 for a box of another diagram.
using Places = std::array<std::size_t, MaxBoxes + 1>;

/// The slot of the box `far` that stands for the same arrow as this one; 0 for none. Several arrows
/// between two boxes are taken in their order.
template <class Slots, class FarSlots>
int SlotBeyond(const Slots& slots, int slot, const FarSlots& farSlots, int self) {
    auto before = std::count(slots.begin(), slots.begin() + (slot - 1), slots[slot]);
    for (int i = 1; i <= FarSlots::UpperBound; ++i) {
        if (farSlots[i] == self && before-- == 0) return i;
    }
    return 0;
}

template <class Slots, class FarSlots>
DescribedSlot DescribeSlot(const Slots& slots, int slot, FarSlots Box::*farSlots, int self,
                           const Places& places) {
    DescribedSlot described;
    const int far = slots[slot];
    if (far <= 0) {
        described.State = far == 0 ? Kind::Open : Kind::Locked;
        return described;
    }
    described.Far = far <= MaxBoxes ? places[static_cast<std::size_t>(far)] : 0;
    if (described.Far == 0) {
        described.State = Kind::Lost;
        described.Far = static_cast<std::size_t>(far);
        return described;
    }
    --described.Far;
    described.FarSlot = SlotBeyond(slots, slot, Boxes[far].*farSlots, self);
    described.State = described.FarSlot > 0 ? Kind::Joined : Kind::OneWay;
    return described;
}

DescribedBox DescribeBox(int number, const Places& places) {
    const Box& box = Boxes[number];
    DescribedBox described;
    described.Number = number;
    described.Type = box.BoxType;
    const auto mentions = FindMentions(box.BoxText, box.BoxDocument);
    described.Pattern = mentions.Pattern;
    for (const int mentioned : mentions.Boxes) {
        described.Mentions.push_back(places[static_cast<std::size_t>(mentioned)] - 1);
    }
    described.Left = box.BoxLeft;
    described.Top = box.BoxTop;
    for (int i = 1; i <= 3; ++i) {
        auto& entry = described.Entries[i] =
            DescribeSlot(box.BoxIn, i, &Box::BoxOut, number, places);
        if (entry.State == Kind::Joined)
            entry.Color = Boxes[box.BoxIn[i]].BoxLineColor[i] & 0xFFFFFF;
    }
    for (int i = 1; i <= 5; ++i) {
        described.Exits[i] = DescribeSlot(box.BoxOut, i, &Box::BoxIn, number, places);
    }
    return described;
}

std::string ExitsWords(const Description& boxes, const DescribedBox& box) {
    std::string words, locked;
    for (int i = 1; i <= 5; ++i) {
        const auto& exit = box.Exits[i];
        if (exit.State == Kind::Locked) locked += " " + NumberText(i);
        if (exit.State == Kind::OneWay || exit.State == Kind::Lost) {
            words += ", exit " + NumberText(i) + " " + SlotWords(boxes, exit, false);
        }
    }
    if (locked == " 1 2 3 4 5") return words + ", no exits";
    return locked.empty() ? words : words + ", locked exits" + locked;
}

}  // namespace

Description DescribeDocument(int document) {
    std::vector<int> numbers;
    for (int i = 1; i < NextBox; ++i) {
        if (Boxes[i].BoxDocument == document) numbers.push_back(i);
    }
    const auto ids = BoxIds(numbers);
    std::vector<std::pair<std::string, int>> order;
    for (std::size_t i = 0; i < ids.size(); ++i) order.emplace_back(ids[i], numbers[i]);
    std::sort(order.begin(), order.end());
    Places places{};
    std::size_t place = 0;
    for (const auto& named : order) places[static_cast<std::size_t>(named.second)] = ++place;
    Description boxes;
    for (auto& [id, number] : order) {
        boxes.push_back(DescribeBox(number, places));
        boxes.back().Id = std::move(id);
    }
    return boxes;
}

std::string DescribedText(const Description& boxes, const DescribedBox& box) {
    std::string text;
    std::size_t from = 0;
    for (const auto mentioned : box.Mentions) {
        const auto at = box.Pattern.find(MentionMark, from);
        text += box.Pattern.substr(from, at - from) + "box{" + boxes[mentioned].Id + "}";
        from = at + std::string_view(MentionMark).size();
    }
    return text + box.Pattern.substr(from);
}

std::string Visible(std::string_view text) {
    std::string visible;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            visible += '\\';
            visible += c;
        } else if (byte < 0x20 || byte == 0x7F) {
            char code[5];
            std::snprintf(code, sizeof code, "\\x%02x", byte);
            visible += code;
        } else {
            visible += c;
        }
    }
    return visible;
}

std::string Quoted(std::string_view text) { return "\"" + Visible(text) + "\""; }

std::string FarId(const Description& boxes, const DescribedSlot& slot) {
    return slot.State == Kind::Lost ? BoxName(static_cast<int>(slot.Far)) : boxes[slot.Far].Id;
}

std::string SlotWords(const Description& boxes, const DescribedSlot& slot, bool isEntry) {
    const std::string way = isEntry ? "from " : "to ";
    switch (slot.State) {
        case Kind::Open: return "open";
        case Kind::Locked: return "locked";
        case Kind::Lost: return way + FarId(boxes, slot) + ", which isn't there";
        case Kind::OneWay: return way + FarId(boxes, slot) + " one way";
        case Kind::Joined: break;
    }
    const std::string farSlot = isEntry ? " exit " : " entry ";
    // Most arrows leave by the first exit.
    return way + FarId(boxes, slot) +
           (isEntry && slot.FarSlot == 1 ? "" : farSlot + NumberText(slot.FarSlot));
}

std::string PlaceWords(const DescribedBox& box) {
    return "at " + NumberText(box.Left) + "," + NumberText(box.Top);
}

std::string ColorWords(std::int32_t color) {
    char text[11];
    std::snprintf(text, sizeof text, "in #%02x%02x%02x", color & 0xFF, color >> 8 & 0xFF,
                  color >> 16 & 0xFF);
    return text;
}

std::string BoxWords(const Description& boxes, const DescribedBox& box) {
    auto words = Visible(box.Type);
    if (!box.Pattern.empty()) words += " " + Quoted(DescribedText(boxes, box));
    words += " " + PlaceWords(box);
    for (int i = 1; i <= 3; ++i) {
        const auto& entry = box.Entries[i];
        if (entry.State == Kind::Locked) continue;
        words += ", entry " + NumberText(i) + " " + SlotWords(boxes, entry, true);
        if (entry.State == Kind::Joined && entry.Color != UsualColor) {
            words += " " + ColorWords(entry.Color);
        }
    }
    return words + ExitsWords(boxes, box);
}

std::string DescribedLines(const Description& boxes) {
    std::string lines;
    for (const auto& box : boxes) lines += box.Id + ": " + BoxWords(boxes, box) + "\n";
    return lines;
}

}  // namespace quorvane
