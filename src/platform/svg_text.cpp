// SPDX-License-Identifier: MIT
#include "platform/svg_text.h"

#include <cmath>
#include <cstdio>

#include "platform/numbers.h"
#include "platform/small_maths.h"

namespace quorvane {

namespace {

/// True for the bytes at `at` when they are one character of XML in UTF-8; `length` becomes their
/// count.
bool IsCharacter(std::string_view text, std::size_t at, std::size_t& length) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const auto first = byte(at);
    length = first < 0x80 ? 1 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0x80) return first >= 0x20 || first == '\t' || first == '\n' || first == '\r';
    if (first < 0xC2 || first > 0xF4 || at + length > text.size()) return false;
    for (std::size_t i = at + 1; i < at + length; ++i) {
        if ((byte(i) & 0xC0) != 0x80) return false;
    }
    const auto second = byte(at + 1);
    const auto character = text.substr(at, length);
    if (character == "\xEF\xBF\xBE" || character == "\xEF\xBF\xBF") return false;
    // Longer than needed, a surrogate half, or beyond the last character.
    return !(first == 0xE0 && second < 0xA0) && !(first == 0xED && second > 0x9F) &&
           !(first == 0xF0 && second < 0x90) && !(first == 0xF4 && second > 0x8F);
}

}  // namespace

/// By hand: it depends on no locale, and the library's way adds 180 KB to the program.
std::string Pixels(double pixels, int decimals) {
    std::int64_t whole = 1;
    for (int i = 0; i < decimals; ++i) whole *= 10;
    const std::int64_t parts = NearestWhole(std::abs(pixels) * static_cast<double>(whole));
    auto number = NumberText(parts / whole);
    if (parts % whole != 0) {
        auto digits = NumberText(whole + parts % whole);
        digits[0] = '.';
        number += digits.erase(digits.find_last_not_of('0') + 1);
    }
    return pixels < 0 && parts != 0 ? "-" + number : number;
}

std::string Point(double x, double y) { return Pixels(x) + " " + Pixels(y); }

std::string Attribute(const char* name, const std::string& value) {
    return std::string(" ") + name + "=\"" + value + "\"";
}

std::string ColorText(std::int32_t color) {
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", color & 0xFF, color >> 8 & 0xFF,
                  color >> 16 & 0xFF);
    return text;
}

std::string CharacterData(std::string_view text) {
    std::string data;
    for (std::size_t at = 0, length = 1; at < text.size(); at += length) {
        if (!IsCharacter(text, at, length)) {
            data += '?';
            length = 1;
            continue;
        }
        switch (text[at]) {
            case '&': data += "&amp;"; break;
            case '<': data += "&lt;"; break;
            case '>': data += "&gt;"; break;
            case '\r': break;
            default: data += text.substr(at, length);
        }
    }
    return data;
}

}  // namespace quorvane
