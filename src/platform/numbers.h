// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

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
std::int32_t ToInt32(double value);

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
std::string LowerCase(std::string_view text);
std::string UpperCase(std::string_view text);

/// The text for a field of one line: each line end becomes a blank, and those at the end are left
/// out.
std::string OneLine(std::string_view text);

}  // namespace quorvane
