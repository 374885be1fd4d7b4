// SPDX-License-Identifier: MIT
#include "matlab_link/answer_reader.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace quorvane {

namespace {

constexpr char MarkEdge = '\1';
constexpr std::string_view MarkEnd = "\1\n";

bool IsQuestion(MarkKind kind) { return kind == MarkKind::Line || kind == MarkKind::Pause; }

/// Where the end of a text, from `from` on, may be the beginning of a mark and its line end.
std::size_t FindHalfMark(std::string_view text, const std::string& start, std::size_t from) {
    const auto whole = "\n" + start;
    auto at = std::max(from, text.size() - std::min(text.size(), start.size()));
    while (!whole.starts_with(text.substr(at)) && !start.starts_with(text.substr(at))) ++at;
    return at;
}

}  // namespace

std::optional<Mark> TakeMark(AnswerReader& reader) {
    auto& text = reader.Received;
    const auto start = MarkEdge + reader.Token;
    const auto at = text.find(start, reader.Looked);
    if (at == std::string::npos) {
        reader.Looked = FindHalfMark(text, start, reader.Looked);
        return std::nullopt;
    }
    const auto kindAt = at + start.size(), textAt = kindAt + 2;
    const auto end = text.find(MarkEnd, textAt);
    const auto lineEnd = at > 0 && text[at - 1] == '\n' ? at - 1 : at;
    reader.Looked = std::max(reader.Looked, lineEnd);
    if (end == std::string::npos) return std::nullopt;
    const Mark mark = {static_cast<MarkKind>(text[kindAt]), text.substr(textAt, end - textAt)};
    reader.Looked = IsQuestion(mark.Kind) ? at : lineEnd;
    text.erase(reader.Looked, end + MarkEnd.size() - reader.Looked);
    return mark;
}

void InsertText(AnswerReader& reader, const std::string& text) {
    reader.Received.insert(reader.Looked, text);
    reader.Looked += text.size();
}

void BeginAnswer(AnswerReader& reader) {
    reader.Received.erase(0, reader.Looked);
    reader.Looked = reader.LeftOut = 0;
}

void LookAtLineEnd(AnswerReader& reader) {
    if (reader.Received.size() == reader.Looked + 1 && reader.Received.back() == '\n') {
        ++reader.Looked;
    }
}

void LookAtAll(AnswerReader& reader) { reader.Looked = reader.Received.size(); }

void LimitAnswer(AnswerReader& reader) {
    if (reader.Looked <= AnswerLimit) return;
    const auto excess = reader.Looked - AnswerLimit;
    reader.Received.erase(AnswerLimit, excess);
    reader.Looked = AnswerLimit;
    reader.LeftOut += excess;
}

std::string AnswerOf(AnswerReader& reader) {
    LimitAnswer(reader);
    auto answer = reader.Received.substr(0, reader.Looked);
    reader.Received.erase(0, std::exchange(reader.Looked, 0));
    if (reader.LeftOut > 0) {
        answer += "\n... " + std::to_string(reader.LeftOut) + " bytes more\n";
    }
    return answer;
}

}  // namespace quorvane
