// SPDX-License-Identifier: MIT
#include "platform/numbers.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "platform/runtime_error.h"
#include "platform/small_maths.h"

namespace quorvane {

namespace {

/// Length of the run of digits at the front.
std::size_t Digits(std::string_view text) {
    std::size_t n = 0;
    while (n < text.size() && text[n] >= '0' && text[n] <= '9') ++n;
    return n;
}

enum class NumberShape { Other, Beginning, Number };

NumberShape ShapeOf(std::string_view text) {
    using enum NumberShape;
    if (text.empty()) return Other;
    if (text[0] == '+' || text[0] == '-') text.remove_prefix(1);
    auto digits = Digits(text);
    text.remove_prefix(digits);
    if (!text.empty() && text[0] == '.') {
        text.remove_prefix(1);
        const auto fraction = Digits(text);
        text.remove_prefix(fraction);
        digits += fraction;
    }
    if (digits > 0 && !text.empty() && (text[0] == 'e' || text[0] == 'E')) {
        text.remove_prefix(1);
        if (!text.empty() && (text[0] == '+' || text[0] == '-')) text.remove_prefix(1);
        digits = Digits(text);
        text.remove_prefix(digits);
    }
    if (!text.empty()) return Other;
    return digits > 0 ? Number : Beginning;
}

template <class Integer>
Integer Rounded(double value) {
    const double whole = NearestEven(value);
    if (!(whole >= std::numeric_limits<Integer>::min() &&
          whole <= std::numeric_limits<Integer>::max())) {
        throw RuntimeError(6);
    }
    return static_cast<Integer>(whole);
}

/// A diagram is made of short whole numbers: those are read digit by digit.
template <class Integer>
Integer TextToInteger(std::string_view text) {
    std::int32_t value = 0;
    const auto read = ReadWholeNumber(text, std::numeric_limits<Integer>::digits10, value);
    if (read > 0 && read == text.size()) return static_cast<Integer>(value);
    return Rounded<Integer>(TextToNumber(text));
}

}  // namespace

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string_view TakeUpTo(std::string_view& text, std::string_view ends) {
    const auto part = text.substr(0, text.find_first_of(ends));
    text.remove_prefix(std::min(part.size() + 1, text.size()));
    return part;
}

bool IsNumeric(std::string_view text) { return ShapeOf(Trimmed(text)) == NumberShape::Number; }
bool BeginsNumber(std::string_view text) {
    return ShapeOf(Trimmed(text)) == NumberShape::Beginning;
}

double TextToNumber(std::string_view text) {
    text = Trimmed(text);
    if (ShapeOf(text) != NumberShape::Number) throw RuntimeError(13);
    // Too small counts as zero.
    const double value = std::strtod(std::string(text).c_str(), nullptr);
    if (std::isinf(value)) throw RuntimeError(6);
    return value;
}

std::int16_t ToInt16(double value) { return Rounded<std::int16_t>(value); }
std::int32_t ToInt32(double value) { return Rounded<std::int32_t>(value); }
std::int16_t TextToInt16(std::string_view text) { return TextToInteger<std::int16_t>(text); }
std::int32_t TextToInt32(std::string_view text) { return TextToInteger<std::int32_t>(text); }

void AppendNumber(std::string& text, std::int64_t number) {
    char digits[24];
    const auto* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    text.append(digits, static_cast<std::size_t>(end - digits));
}

std::string NumberText(std::int64_t number) {
    std::string text;
    AppendNumber(text, number);
    return text;
}

bool IsNameLetter(char byte) {
    return std::isalnum(static_cast<unsigned char>(byte)) || byte == '_';
}

bool BeginsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    for (char& c : lower) c = ToLower(c);
    return lower;
}

std::string UpperCase(std::string_view text) {
    std::string upper(text);
    for (char& c : upper) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return upper;
}

std::string OneLine(std::string_view text) {
    text = text.substr(0, text.find_last_not_of("\r\n") + 1);
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPair = text[i] == '\r' && text[i + 1] == '\n';
        if (isPair) ++i;
        line += text[i] == '\r' || text[i] == '\n' ? ' ' : text[i];
    }
    return line;
}

}  // namespace quorvane
