// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <charconv>
#include <cstring>
#include <string>
#include <string_view>

#include "generator/row_text.h"
#include "platform/numbers.h"

namespace quorvane {

/// A line of script in the making. It is made of pieces of a few bytes, which gather here and go to
/// the script together.
class Line {
public:
    explicit Line(std::string& script) : script_(script) {}

    /// The literal text of a part. Its whole room is copied, since a copy of fixed size is a single
    /// move.
    void AddLiteral(const RowText::Part& part) {
        MakeRoom(part.Literal.size());
        std::memcpy(bytes_.data() + size_, part.Literal.data(), part.Literal.size());
        size_ += part.Length;
    }
    void AddNumber(int number) {
        constexpr std::size_t mostDigits = 11;
        MakeRoom(mostDigits);
        auto* const at = bytes_.data() + size_;
        size_ += static_cast<std::size_t>(std::to_chars(at, at + mostDigits, number).ptr - at);
    }
    void AddText(std::string_view text) {
        Flush();
        script_ += text;
    }
    void AddLowerCase(std::string_view text) {
        if (text.size() > bytes_.size()) return AddText(LowerCase(text));
        MakeRoom(text.size());
        for (const char letter : text) bytes_[size_++] = ToLower(letter);
    }
    /// Appends what has gathered to the script.
    void Flush() {
        script_.append(bytes_.data(), size_);
        size_ = 0;
    }

private:
    void MakeRoom(std::size_t bytes) {
        if (bytes > bytes_.size() - size_) Flush();
    }

    std::string& script_;
    std::size_t size_ = 0;
    std::array<char, 128> bytes_;
};

}  // namespace quorvane
