// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace quorvane {

/// What a hole in a text of the emission chain stands for.
enum class Hole { None, Number, Entry, Value, Type, LowerValue, LowerType };

/// A text of the emission chain, taken apart at its holes once: a run fills it for each box. Holes:
/// {id}, {in1} to {in3}, {value} the box's text, {type}, and {lctype} and {lcvalue} in lower case.
class RowText {
public:
    struct Part {
        std::string_view Literal;
        Hole Behind = Hole::None;  ///< What follows the literal text
        int Entry = 0;             ///< 1 to 3 with Hole::Entry
    };

    constexpr RowText(const char* text) : RowText(std::string_view(text)) {}
    constexpr RowText(std::string_view text) {
        for (;;) {
            const auto open = text.find('{');
            auto& part = parts_.at(count_++);
            part.Literal = text.substr(0, open);
            if (open == std::string_view::npos) return;
            text.remove_prefix(open + 1);
            const auto close = text.find('}');
            const auto name = text.substr(0, close);
            part.Behind = HoleOf(name);
            if (part.Behind == Hole::Entry) part.Entry = name.back() - '0';
            text.remove_prefix(close + 1);
        }
    }
    std::span<const Part> Parts() const { return {parts_.data(), count_}; }

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
