// SPDX-License-Identifier: MIT
#include "workbench/box_ids.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <map>
#include <numeric>
#include <string_view>
#include <tuple>
#include <utility>

#include "diagram/box_table.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

constexpr std::size_t MaxTypeLength = 40;
constexpr std::size_t MaxTextLength = 12;  ///< A longer text enters an id as a digest
constexpr int TextDigits = 6;
constexpr int FeederDigits = 4;

/// Hexadecimal digits that hardly any other text has (FNV-1a).
std::string Digest(std::string_view text, int digits) {
    std::uint32_t digest = 2166136261U;
    for (const char byte : text) digest = (digest ^ static_cast<std::uint8_t>(byte)) * 16777619U;
    digest ^= digest >> 15;
    char hex[9];
    std::snprintf(hex, sizeof hex, "%08x", digest);
    return {hex, static_cast<std::size_t>(digits)};
}

/// The text itself where it can stand in an id, else a digest of it.
std::string IdWord(const std::string& text, std::size_t most) {
    const auto fits = [](char c) {
        return c > ' ' && c <= '~' && std::string_view(",#@\"\\{}").find(c) == std::string::npos;
    };
    if (text.size() <= most && std::all_of(text.begin(), text.end(), fits)) return text;
    return Digest(text, TextDigits);
}

/// A box under its name. Boxes are called by their places in the list of parts here.
struct Part {
    const Box* Record = nullptr;
    std::string Pattern;
    std::string Kind;     ///< What type and text make of its id
    std::string Feeders;  ///< The kinds that feed its entries; "" without any
    /// Arrows and mentions: which slot, and the part at the other end. Those that come from there
    /// have the slot negative.
    std::vector<std::pair<int, std::size_t>> Links;
};
using Parts = std::vector<Part>;

std::string KindOf(const Box& box, std::string pattern) {
    auto type = box.BoxType.empty() ? "?" : box.BoxType;
    std::replace(type.begin(), type.end(), ' ', '-');
    pattern.erase(std::remove(pattern.begin(), pattern.end(), '\n'), pattern.end());
    return IdWord(type, MaxTypeLength) +
           (pattern.empty() ? "" : ":" + IdWord(pattern, MaxTextLength));
}

void Link(Parts& parts, std::size_t from, int slot, std::size_t to) {
    parts[from].Links.emplace_back(slot, to);
    parts[to].Links.emplace_back(-slot, from);
}

Parts PartsOf(const std::vector<int>& numbers) {
    std::array<std::size_t, MaxBoxes + 1> partOf{};  // from 1; 0 for a box of no part
    Parts parts(numbers.size());
    for (std::size_t i = 0; i < parts.size(); ++i) {
        partOf[static_cast<std::size_t>(numbers[i])] = i + 1;
    }
    const auto placeIn = [&](int number) {
        return number > 0 && number <= MaxBoxes ? partOf[static_cast<std::size_t>(number)] : 0;
    };
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const Box& box = Boxes[numbers[i]];
        parts[i].Record = &box;
        const auto mentions = FindMentions(box.BoxText, box.BoxDocument);
        parts[i].Pattern = mentions.Pattern;
        parts[i].Kind = KindOf(box, mentions.Pattern);
        int slot = 0;
        const auto link = [&](int number) {
            ++slot;
            if (const auto place = placeIn(number)) Link(parts, i, slot, place - 1);
        };
        std::for_each(box.BoxIn.begin(), box.BoxIn.end(), link);
        std::for_each(box.BoxOut.begin(), box.BoxOut.end(), link);
        std::for_each(mentions.Boxes.begin(), mentions.Boxes.end(), link);
    }
    for (auto& part : parts) {
        for (const int entry : part.Record->BoxIn) {
            if (const auto place = placeIn(entry)) part.Feeders += parts[place - 1].Kind;
            part.Feeders += '\n';
        }
        if (part.Feeders == "\n\n\n") part.Feeders.clear();
    }
    return parts;
}

/// By place in the list, how many keys are smaller.
template <class Key>
std::vector<std::size_t> RanksOf(const std::vector<Key>& keys) {
    std::vector<std::size_t> order(keys.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(),
              [&](std::size_t one, std::size_t other) { return keys[one] < keys[other]; });
    std::vector<std::size_t> ranks(keys.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        const bool same = i > 0 && keys[order[i]] == keys[order[i - 1]];
        ranks[order[i]] = same ? ranks[order[i - 1]] : i;
    }
    return ranks;
}

/// The ranks by what a box is and where it stands.
std::vector<std::size_t> OwnRanks(const Parts& parts) {
    std::vector<std::tuple<std::string, int, int, std::string, std::string, std::vector<int>>> keys;
    for (const auto& part : parts) {
        const Box& box = *part.Record;
        std::vector<int> slots;
        for (const int entry : box.BoxIn) slots.push_back(std::min(entry, 1));
        for (const int exit : box.BoxOut) slots.push_back(std::min(exit, 1));
        slots.insert(slots.end(), box.BoxLineColor.begin(), box.BoxLineColor.end());
        keys.emplace_back(part.Kind, box.BoxTop, box.BoxLeft, box.BoxType, part.Pattern,
                          std::move(slots));
    }
    return RanksOf(keys);
}

/// The same ranks, with boxes of one rank parted by the ranks of what they are linked with.
std::vector<std::size_t> RefinedRanks(const Parts& parts, const std::vector<std::size_t>& ranks) {
    using Neighbour = std::pair<int, std::size_t>;
    std::vector<std::pair<std::size_t, std::vector<Neighbour>>> keys;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        auto neighbours = parts[i].Links;
        for (auto& [slot, far] : neighbours) far = ranks[far];
        std::sort(neighbours.begin(), neighbours.end());
        keys.emplace_back(ranks[i], std::move(neighbours));
    }
    return RanksOf(keys);
}

/// Puts one of the first boxes that share a rank before the others. False when no two do.
bool PartFirstTie(std::vector<std::size_t>& ranks) {
    std::vector<int> members(ranks.size());
    for (const auto rank : ranks) ++members[rank];
    const auto tie = std::find_if(members.begin(), members.end(), [](int n) { return n > 1; });
    if (tie == members.end()) return false;
    const auto rank = static_cast<std::size_t>(tie - members.begin());
    const auto first = std::find(ranks.begin(), ranks.end(), rank);
    std::for_each(first + 1, ranks.end(), [&](std::size_t& each) { each += each == rank; });
    return true;
}

/// The places of the parts in an order that doesn't hang on numbers. Boxes that even their arrows
/// don't part are alike in all, so that any of them may be the first.
std::vector<std::size_t> Ordered(const Parts& parts) {
    auto ranks = OwnRanks(parts);
    auto parted = ranks;
    while (PartFirstTie(parted)) {
        auto refined = RefinedRanks(parts, ranks);
        ranks = refined != ranks ? std::move(refined) : std::move(parted);
        parted = ranks;
    }
    std::vector<std::size_t> order(parts.size());
    for (std::size_t i = 0; i < ranks.size(); ++i) order[ranks[i]] = i;
    return order;
}

}  // namespace

Mentions FindMentions(const std::string& text, int document) {
    Mentions found;
    std::size_t from = 0;
    for (auto at = text.find("box"); at != std::string::npos; at = text.find("box", at + 3)) {
        int number = 0;
        const char* const last = text.data() + text.size();
        const auto* const end = std::from_chars(text.data() + at + 3, last, number).ptr;
        const auto size = static_cast<std::size_t>(end - text.data()) - at;
        const bool apart =
            (at == 0 || !IsNameLetter(text[at - 1])) && (end == last || !IsNameLetter(*end));
        const bool isOwn = number > 0 && number < NextBox && Boxes[number].BoxDocument == document;
        if (!apart || !isOwn || text.substr(at, size) != BoxName(number)) continue;
        found.Pattern += text.substr(from, at - from) + MentionMark;
        found.Boxes.push_back(number);
        from = at + size;
    }
    found.Pattern += text.substr(from);
    return found;
}

std::vector<std::string> BoxIds(const std::vector<int>& numbers) {
    const auto parts = PartsOf(numbers);
    std::vector<std::string> ids(parts.size());
    std::map<std::string, int> taken;  // how often
    for (const auto place : Ordered(parts)) {
        const auto& part = parts[place];
        auto id = part.Kind;
        if (taken.contains(id) && !part.Feeders.empty()) {
            id += "." + Digest(part.Feeders, FeederDigits);
        }
        if (taken.contains(id)) {
            id += "@" + NumberText(part.Record->BoxLeft) + "," + NumberText(part.Record->BoxTop);
        }
        const int times = ++taken[id];
        ids[place] = times == 1 ? id : id + "#" + NumberText(times);
    }
    return ids;
}

}  // namespace quorvane
