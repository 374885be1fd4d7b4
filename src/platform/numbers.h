// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/runtime_error.h"

namespace quorvane {

/// True for an optional sign, digits, a decimal point and an exponent ("12", "-1.5", ".5", "1e3"),
/// with blanks around it allowed. What is numeric is what TextToNumber takes.
bool IsNumeric(std::string_view text);

/// True for what isn't a number yet but becomes one with another digit ("-", ".", "1e", "-.5e+").
bool BeginsNumber(std::string_view text);

/// The value of a numeric text; error 13 for any other text, error 6 for one beyond double.
double TextToNumber(std::string_view text);

/// Rounds half to even; error 6 outside 16 or 32 bits.
std::int16_t ToInt16(double value);
inline std::int16_t ToInt16(int value) {
    const auto narrow = static_cast<std::int16_t>(value);
    if (narrow != value) Raise(6);
    return narrow;
}
std::int32_t ToInt32(double value);

/// Reads the whole number at the beginning of a text, when it has 1 to `mostDigits` digits, up to 9
/// of them, with "-" in front of them or not. Returns how many bytes it takes; 0, and no number,
/// when it has more digits or none.
inline std::size_t ReadWholeNumber(std::string_view text, std::size_t mostDigits,
                                   std::int32_t& number) {
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    std::size_t at = first;
    std::uint32_t value = 0;
    for (; at < text.size() && text[at] >= '0' && text[at] <= '9'; ++at) {
        value = value * 10 + static_cast<std::uint32_t>(text[at] - '0');
    }
    if (at == first || at - first > mostDigits) return 0;
    number = first == 1 ? -static_cast<std::int32_t>(value) : static_cast<std::int32_t>(value);
    return at;
}

/// TextToNumber with rounding; whole numbers take a fast path.
std::int16_t TextToInt16(std::string_view text);
std::int32_t TextToInt32(std::string_view text);

/// Appends the decimal digits of a number, with "-" in front of a negative one and no blank.
void AppendNumber(std::string& text, std::int64_t number);
std::string NumberText(std::int64_t number);

/// The text without the blanks and tabs around it.
std::string_view Trimmed(std::string_view text);

/// Takes what stands before the first of these letters, or all, from the text, and the letter too.
std::string_view TakeUpTo(std::string_view& text, std::string_view ends);

/// True for the letters of the name of a variable: A to Z, a to z, digits and "_".
bool IsNameLetter(char byte);

/// False for the bytes of a UTF-8 character after its first one.
bool BeginsCharacter(char byte);

/// The letters A to Z in lower or upper case; all other bytes stay, so that UTF-8 survives.
constexpr char ToLower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}
std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);

/// The text for a field of one line: each line end becomes a blank, and those at the end are left
/// out.
std::string OneLine(std::string_view text);

}  // namespace quorvane
