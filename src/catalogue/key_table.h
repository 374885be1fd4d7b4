// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

namespace quorvane {

/// A table that is searched by key for each box of a diagram, as a hash table that the compiler can
/// make. It has room for half as many keys as it has slots, and "" is no key.
template <class Value>
class KeyTable {
public:
    /// The first value of a key stays.
    constexpr void Add(std::string_view key, Value value) {
        auto& slot = slots_[SlotFor(key)];
        if (slot.Key.empty()) slot = {key, value};
    }
    constexpr const Value* Find(std::string_view key) const {
        const auto& slot = slots_[SlotFor(key)];
        return slot.Key.empty() ? nullptr : &slot.Held;
    }

private:
    struct Slot {
        std::string_view Key;
        Value Held = {};
    };
    static constexpr std::size_t SlotCount = 512;

    constexpr std::size_t SlotFor(std::string_view key) const {
        std::size_t place = key.size();
        if (!key.empty()) {
            place = place * 31 + static_cast<unsigned char>(key.front());
            place = place * 31 + static_cast<unsigned char>(key[key.size() / 2]);
            place = place * 31 + static_cast<unsigned char>(key.back());
        }
        place %= SlotCount;
        while (!slots_[place].Key.empty() && slots_[place].Key != key) {
            place = (place + 1) % SlotCount;
        }
        return place;
    }

    std::array<Slot, SlotCount> slots_;
};

}  // namespace quorvane
