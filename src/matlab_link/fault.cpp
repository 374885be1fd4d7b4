// SPDX-License-Identifier: MIT
#include "matlab_link/fault.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include "diagram/box_table.h"

namespace quorvane {

namespace {

constexpr std::string_view ParseError = "parse error";
constexpr std::string_view NearLine = " near line ";

std::string NameOf(std::int16_t box) { return box == 0 ? "" : BoxName(box) + ": "; }

/// A line of the script, from 1, as a line of the box that wrote it.
std::size_t LineOfBox(std::size_t line, const LineBoxes& lines) {
    if (lines.empty()) return line;
    auto first = line;
    while (first > 1 && lines[first - 2] == lines[line - 1]) --first;
    return line - first + 1;
}

/// The line that is meant: the end of the script is reported as the line after its last one, and
/// a fault without a line is that of the last one.
std::size_t LineMeant(long long line, const LineBoxes& lines) {
    if (lines.empty()) return static_cast<std::size_t>(std::max(line, 1LL));
    const auto last = static_cast<long long>(lines.size());
    return static_cast<std::size_t>(line < 1 ? last : std::min(line, last));
}

/// The number that stands at a place of the text is replaced.
void ReplaceNumber(std::string& text, std::size_t at, std::size_t number) {
    const auto end = text.find_first_not_of("0123456789", at);
    text.replace(at, (end == std::string::npos ? text.size() : end) - at, std::to_string(number));
}

/// A single line that can't be parsed has no number in the engine's message.
void CompleteParseError(std::string& message) {
    if (message.compare(ParseError.size(), 1, ":") == 0) {
        message.replace(ParseError.size(), 1, std::string(NearLine) + "1");
    }
}

}  // namespace

Fault ReadFault(const std::string& told, const LineBoxes& lines) {
    Fault fault;
    fault.Message = told.substr(told.find(':') + 1);
    fault.Refused = fault.Message.starts_with(ParseError);
    if (fault.Refused) CompleteParseError(fault.Message);
    const auto near = fault.Message.find(NearLine);
    const auto numberAt = near + NearLine.size();
    auto line = std::atoll(told.c_str());
    const auto named = near == std::string::npos ? 0 : std::atoll(&fault.Message[numberAt]);
    if (fault.Refused) line = named;
    const auto meant = LineMeant(line, lines);
    if (!lines.empty()) fault.Box = lines[meant - 1];
    if (named > 0 && named == line) {
        ReplaceNumber(fault.Message, numberAt, LineOfBox(meant, lines));
    }
    const bool isAlone =
        std::all_of(lines.begin(), lines.end(), [&](auto box) { return box == fault.Box; });
    fault.Told = (fault.Refused || !isAlone ? NameOf(fault.Box) : "") +
                 (fault.Refused ? "" : "error: ") + fault.Message + "\n";
    return fault;
}

}  // namespace quorvane
