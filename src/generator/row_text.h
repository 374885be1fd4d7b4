// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace quorvane {

/// What a hole in a text of the emission chain stands for.
enum class Hole : std::uint8_t { None, Number, Entry, Value, Type, LowerValue, LowerType };

/// A text of the emission chain, taken apart at its holes once: a run fills it for each box. Holes:
/// {id}, {in1} to {in3}, {value} the box's text, {type}, and {lctype} and {lcvalue} in lower case.
class RowText {
public:
    /// The most bytes of a literal text; a longer one takes several parts.
    static constexpr std::size_t LiteralRoom = 16;

    struct Part {
        std::array<char, LiteralRoom> Literal = {};
        std::uint8_t Length = 0;   ///< Of the literal text
        Hole Behind = Hole::None;  ///< What follows the literal text
        std::uint8_t Entry = 0;    ///< 1 to 3 with Hole::Entry
    };

    constexpr RowText(const char* text) : RowText(std::string_view(text)) {}
    constexpr RowText(std::string_view text) {
        while (!text.empty()) {
            auto& part = parts_.at(count_++);
            const auto literal = text.substr(0, std::min(text.find('{'), LiteralRoom));
            std::copy(literal.begin(), literal.end(), part.Literal.begin());
            part.Length = static_cast<std::uint8_t>(literal.size());
            text.remove_prefix(literal.size());
            if (!text.starts_with('{')) continue;
            const auto close = text.find('}');
            const auto name = text.substr(1, close - 1);
            part.Behind = HoleOf(name);
            if (part.Behind == Hole::Entry) {
                part.Entry = static_cast<std::uint8_t>(name.back() - '0');
            }
            text.remove_prefix(close + 1);
        }
    }
    constexpr std::span<const Part> Parts() const { return {parts_.data(), count_}; }

private:
    static constexpr Hole HoleOf(std::string_view name) {
        if (name == "id") return Hole::Number;
        if (name == "value") return Hole::Value;
        if (name == "type") return Hole::Type;
        if (name == "lcvalue") return Hole::LowerValue;
        return name == "lctype" ? Hole::LowerType : Hole::Entry;
    }

    std::array<Part, 6> parts_;
    std::size_t count_ = 0;
};

}  // namespace quorvane
