// SPDX-License-Identifier: MIT
#include "platform/profile_file.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <vector>

#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace quorvane {

namespace {

constexpr std::uintmax_t LargestFile = 16 * 1024 * 1024;

/// What a line is: a section header, a key with its value, or neither.
struct Meaning {
    std::optional<std::string> Section;
    std::optional<std::string> Key;
    std::string Value;
};

/// Blanks around a line and its parts don't count, nor does a byte order mark in front. A comment
/// begins with ";" or "#", and a NUL ends the line.
Meaning MeaningOf(std::string_view line) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (line.starts_with(byteOrderMark)) line.remove_prefix(byteOrderMark.size());
    line = Trimmed(line.substr(0, line.find('\0')));
    Meaning meaning;
    if (line.starts_with('[')) {
        const auto end = line.find(']');
        if (end != line.npos) meaning.Section = LowerCase(Trimmed(line.substr(1, end - 1)));
    } else if (!line.starts_with(';') && !line.starts_with('#')) {
        const auto equals = line.find('=');
        if (equals == 0 || equals == line.npos) return meaning;
        meaning.Key = LowerCase(Trimmed(line.substr(0, equals)));
        meaning.Value = Trimmed(line.substr(equals + 1));
    }
    return meaning;
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const auto end = std::min(text.find_first_of("\r\n", at), text.size());
        lines.push_back(text.substr(at, end - at));
        at = end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1);
    }
    return lines;
}

/// Nothing when the file is there and can't be read; a missing one has no lines.
std::optional<std::vector<std::string>> ReadLines(const std::string& path) {
    namespace fs = std::filesystem;
    std::error_code error;
    const auto place = SystemPath(path);
    const auto status = fs::status(place, error);
    if (!fs::exists(status)) return std::vector<std::string>();
    if (!fs::is_regular_file(status) || fs::file_size(place, error) > LargestFile) return {};
    std::ifstream file(place, std::ios::binary);
    if (!file) return {};
    return LinesOf({std::istreambuf_iterator<char>(file), {}});
}

/// The line of a key in a file, and where a new one would be inserted.
struct Place {
    std::optional<std::size_t> Line;    ///< Of the key
    std::optional<std::size_t> Behind;  ///< One past the section's last key or header
    std::string Value;
};

Place FindKey(const std::vector<std::string>& lines, std::string_view section,
              std::string_view key) {
    const auto wantedSection = LowerCase(section);
    const auto wantedKey = LowerCase(key);
    Place place;
    bool inside = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        auto meaning = MeaningOf(lines[i]);
        if (meaning.Section) inside = *meaning.Section == wantedSection;
        if (!inside || (!meaning.Section && !meaning.Key)) continue;
        place.Behind = i + 1;
        if (meaning.Key != wantedKey) continue;
        place.Line = i;
        place.Value = std::move(meaning.Value);
        break;
    }
    return place;
}

void WriteLines(const std::string& path, const std::vector<std::string>& lines) {
    std::string text;
    for (const auto& line : lines) text += line + "\r\n";
    Attempt([&] { ReplaceFile(path, text); });
}

}  // namespace

std::string GetPrivateProfileString(std::string_view section, std::string_view key,
                                    const std::string& defaultText, const std::string& file) {
    const auto lines = ReadLines(FindFile(file));
    if (!lines) return defaultText;
    const auto place = FindKey(*lines, section, key);
    return place.Line ? std::string(place.Value) : defaultText;
}

void WritePrivateProfileString(std::string_view section, std::string_view key,
                               std::string_view value, const std::string& file) {
    const auto path = FindFile(file);
    auto lines = ReadLines(path);
    if (!lines) return;
    std::string line(key);
    line += '=';
    line += value.substr(0, value.find_first_of(std::string_view("\r\n\0", 3)));
    const auto place = FindKey(*lines, section, key);
    if (place.Line) {
        (*lines)[*place.Line] = line;
    } else if (place.Behind) {
        lines->insert(lines->begin() + static_cast<std::ptrdiff_t>(*place.Behind), line);
    } else {
        lines->push_back("[" + std::string(section) + "]");
        lines->push_back(line);
    }
    WriteLines(path, *lines);
}

}  // namespace quorvane
