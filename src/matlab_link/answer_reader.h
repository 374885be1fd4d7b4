// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace quorvane {

/// How many bytes of an answer are kept; what is printed beyond them is counted only.
constexpr std::size_t AnswerLimit = 8 << 20;

/// What the engine tells the link in the middle of what a script prints: "\1", the token, a letter,
/// ":", a text, "\1", a line end. A line end before it belongs to the mark too, but not before a
/// question.
enum class MarkKind : char {
    Loops = 'l',      ///< The loop runs; the text is the number of the call
    Functions = 'h',  ///< The engine doesn't have our functions
    Begin = 'b',      ///< A script begins; the text is its number, as with the next one
    End = 'e',        ///< It is over, whatever became of it
    Fault = 'x',      ///< It has failed; the text is a line, ":" and the message
    Value = 'v',      ///< The value of a box (run_report.h)
    Unwound = 'u',    ///< The loop was left
    Figures = 'f',    ///< The engine has drawn
    Line = 'i',       ///< Asks for a line; the text is the question
    Pause = 'p',      ///< Waits until the user is ready
};
struct Mark {
    MarkKind Kind;
    std::string Text;
};

/// The answer to a script as it comes in, in pieces of any size.
struct AnswerReader {
    std::string Token;        ///< Part of each mark; only the link and its engine know it
    std::string Received;     ///< The answer, without the marks that were taken out
    std::size_t Looked = 0;   ///< No mark begins before this position
    std::size_t LeftOut = 0;  ///< Bytes beyond the limit
};

/// Takes out the next mark, if all of it is there; Looked is then its position.
std::optional<Mark> TakeMark(AnswerReader& reader);
/// Inserts a text of the link itself at Looked.
void InsertText(AnswerReader& reader, const std::string& text);
/// Drops what came before Looked: it belongs to no script.
void BeginAnswer(AnswerReader& reader);
/// Counts a line end at the end as part of the answer: no mark has followed it for a while.
void LookAtLineEnd(AnswerReader& reader);
/// Counts all that came as part of the answer: no further mark is awaited.
void LookAtAll(AnswerReader& reader);
/// Cuts what is beyond the limit, as far as it was searched for marks.
void LimitAnswer(AnswerReader& reader);
/// Takes out what came before Looked, as the user sees it, with the count of what was left out.
std::string AnswerOf(AnswerReader& reader);

}  // namespace quorvane
