// SPDX-License-Identifier: MIT
#include "matlab_link/script_blocks.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <vector>

namespace quorvane {

namespace {

constexpr std::array<std::string_view, 10> openers = {
    "for", "while", "if", "switch", "try", "parfor", "spmd", "function", "do", "unwind_protect"};
constexpr std::array<std::string_view, 11> closers = {
    "end",       "endfor",  "endwhile",    "endif", "endswitch",         "end_try_catch",
    "endparfor", "endspmd", "endfunction", "until", "end_unwind_protect"};

template <class Words>
bool IsOneOf(const Words& words, std::string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

bool IsWordPart(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

/// A position in a script, with what must be known of the text before it.
struct Reader {
    std::string_view Text;
    std::size_t At = 0;
    int Brackets = 0;         ///< Open "(", "[" and "{"
    bool AtLineStart = true;  ///< Nothing but blanks since the last line end
    bool AfterValue = false;  ///< After a value "'" transposes it, elsewhere it opens a string
    bool AfterDot = false;

    bool AtEnd() const { return At >= Text.size(); }
    char Next(std::size_t ahead = 0) const {
        return At + ahead < Text.size() ? Text[At + ahead] : '\n';
    }
};

void SkipLine(Reader& reader) {
    while (!reader.AtEnd() && !IsLineEnd(reader.Next())) ++reader.At;
}

/// True on a line that holds nothing but "%{", or "#{", or the like with another bracket.
bool IsBlockMark(const Reader& reader, char bracket) {
    if (!reader.AtLineStart || reader.Next(1) != bracket) return false;
    std::size_t ahead = 2;
    while (IsBlank(reader.Next(ahead))) ++ahead;
    return IsLineEnd(reader.Next(ahead));
}

void SkipBlockComment(Reader& reader) {
    int depth = 0;
    do {
        while (IsBlank(reader.Next()) && !reader.AtEnd()) ++reader.At;
        reader.AtLineStart = true;
        const bool isMark = reader.Next() == '%' || reader.Next() == '#';
        if (isMark && IsBlockMark(reader, '{')) ++depth;
        if (isMark && IsBlockMark(reader, '}')) --depth;
        SkipLine(reader);
        if (depth > 0 && !reader.AtEnd()) ++reader.At;
    } while (depth > 0 && !reader.AtEnd());
}

/// A string ends with its line at the latest. A doubled quote stands for one; in double quotes "\"
/// escapes the next character.
void SkipString(Reader& reader) {
    const char quote = reader.Next();
    for (++reader.At; !reader.AtEnd() && !IsLineEnd(reader.Next()); ++reader.At) {
        if (quote == '"' && reader.Next() == '\\') {
            ++reader.At;
        } else if (reader.Next() == quote) {
            if (reader.Next(1) != quote) break;
            ++reader.At;
        }
    }
    if (!reader.AtEnd() && reader.Next() == quote) ++reader.At;
    reader.AfterValue = true;
}

/// After a value a quote transposes it, but not in "disp 'text'".
bool OpensString(const Reader& reader) {
    if (reader.Next() == '"' || !reader.AfterValue) return true;
    return IsBlank(reader.Text[reader.At - 1]) && IsWordPart(reader.Next(1));
}

std::string_view TakeWord(Reader& reader) {
    const auto start = reader.At;
    while (!reader.AtEnd() && IsWordPart(reader.Next())) ++reader.At;
    return reader.Text.substr(start, reader.At - start);
}

/// What a word does to the number of open blocks.
int Step(const Reader& reader, std::string_view word) {
    if (reader.Brackets > 0 || reader.AfterDot) return 0;
    if (IsOneOf(openers, word)) return 1;
    return IsOneOf(closers, word) ? -1 : 0;
}

void TakeCharacter(Reader& reader) {
    const char c = reader.Next();
    if (c == '(' || c == '[' || c == '{') ++reader.Brackets;
    if ((c == ')' || c == ']' || c == '}') && reader.Brackets > 0) --reader.Brackets;
    reader.AfterDot = c == '.';
    if (IsBlank(c)) {
        // Within "[a 'text']" a blank separates elements, so that a quote after it opens a string.
        if (reader.Brackets > 0) reader.AfterValue = false;
    } else {
        reader.AfterValue =
            c == ')' || c == ']' || c == '}' || c == '\'' || (c == '.' && reader.AfterValue);
    }
    if (!IsBlank(c)) reader.AtLineStart = IsLineEnd(c);
    ++reader.At;
}

}  // namespace

bool BlocksAreClosed(std::string_view script) { return FindOpenBlock(script) == script.size(); }

std::size_t FindOpenBlock(std::string_view script) {
    Reader reader{script};
    std::vector<std::size_t> open;
    while (!reader.AtEnd()) {
        const char c = reader.Next();
        if (c == '%' || c == '#') {
            IsBlockMark(reader, '{') ? SkipBlockComment(reader) : SkipLine(reader);
        } else if ((c == '"' || c == '\'') && OpensString(reader)) {
            SkipString(reader);
            reader.AtLineStart = false;
        } else if (IsWordPart(c)) {
            const auto start = reader.At;
            const auto word = TakeWord(reader);
            const int step = Step(reader, word);
            if (step < 0 && open.empty()) return script.size();
            if (step > 0) open.push_back(start);
            if (step < 0) open.pop_back();
            reader.AfterValue = step == 0;
            reader.AfterDot = reader.AtLineStart = false;
        } else {
            TakeCharacter(reader);
        }
    }
    return open.empty() ? script.size() : open.front();
}

}  // namespace quorvane
