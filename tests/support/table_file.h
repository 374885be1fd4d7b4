// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace quorvane::testing {

/// Parts a line at the separators; an empty line is one empty part.
inline std::vector<std::string> Split(const std::string& line, char separator) {
    std::vector<std::string> parts;
    for (std::size_t from = 0, to = 0; to != std::string::npos; from = to + 1) {
        to = line.find(separator, from);
        parts.push_back(line.substr(from, to - from));
    }
    return parts;
}

/// A number that any other text hardly has (FNV-1a).
inline std::uint32_t DigestOf(std::string_view text) {
    std::uint32_t digest = 2166136261U;
    for (const char byte : text) digest = (digest ^ static_cast<std::uint8_t>(byte)) * 16777619U;
    return digest ^ (digest >> 15);
}

/// The text with `what` as `by` at each place.
inline std::string Replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at = 0; (at = text.find(what, at)) < text.size(); at += by.size()) {
        text.replace(at, what.size(), by);
    }
    return text;
}

/// A script as a test writes it, with "\n" for each line end.
inline std::string Crlf(const std::string& lines) { return Replaced(lines, "\n", "\r\n"); }

/// Numbers separated by blanks.
inline std::vector<int> Numbers(const std::string& line) {
    std::vector<int> numbers;
    for (const auto& part : Split(line, ' ')) {
        if (!part.empty()) numbers.push_back(std::stoi(part));
    }
    return numbers;
}

/// A cell as it is meant: \r, \n, \t, \s (a blank) and \\ stand for one character each.
inline std::string Unescaped(const std::string& cell) {
    std::string text;
    for (std::size_t i = 0; i < cell.size(); ++i) {
        if (cell[i] != '\\') {
            text += cell[i];
            continue;
        }
        const std::string codes = "rnts\\";
        const auto code = codes.find(++i < cell.size() ? cell[i] : ' ');
        if (code == std::string::npos) throw std::runtime_error("an unknown escape in " + cell);
        text += "\r\n\t \\"[code];
    }
    return text;
}

/// The rows of a table of cells separated by TABs. Empty lines and those that begin with "#" are
/// none; the first line, "# " and the names of the columns, tells how many cells a row has: missing
/// ones read as "". One cell more stands behind them, which tells the row's place as "file:line".
/// `path` counts from tests/. Throws when there is no row, or one with too many cells.
inline std::vector<std::vector<std::string>> ReadTable(const std::filesystem::path& path) {
    std::ifstream file(std::filesystem::path(QUORVANE_SOURCE_DIR "/tests") / path);
    std::vector<std::vector<std::string>> rows;
    std::size_t columns = 0;
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        const auto place = path.filename().string() + ":" + std::to_string(++number);
        auto cells = Split(line, '\t');
        if (number == 1) columns = cells.size();
        if (line.empty() || line[0] == '#') continue;
        if (cells.size() > columns) throw std::runtime_error(place + ": too many cells");
        std::transform(cells.begin(), cells.end(), cells.begin(), Unescaped);
        cells.resize(columns);
        cells.push_back(place);
        rows.push_back(std::move(cells));
    }
    if (rows.empty()) throw std::runtime_error("no rows in " + path.string());
    return rows;
}

}  // namespace quorvane::testing
