// SPDX-License-Identifier: MIT
#include "compile/console_desktop.h"

#include <string_view>

#include "commands/matrix_input.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"

namespace quorvane {

namespace {

struct IconName {
    Icon Picture;
    const char* Name;
};
constexpr IconName iconNames[] = {
    {Icon::None, "none"},         {Icon::Information, "information"},
    {Icon::Question, "question"}, {Icon::Exclamation, "exclamation"},
    {Icon::Critical, "critical"},
};

/// What a question's buttons are called, which answers fit it, and which it takes without one.
struct ButtonRow {
    Buttons Choice;
    const char* Name;
    std::vector<Answer> Fitting;
    Answer Unanswered;
};
const ButtonRow buttonRows[] = {
    {Buttons::Ok, "ok", {}, Answer::Ok},
    {Buttons::YesNo, "yesno", {Answer::Yes, Answer::No}, Answer::No},
    {Buttons::YesNoCancel,
     "yesnocancel",
     {Answer::Yes, Answer::No, Answer::Cancel},
     Answer::Cancel},
    {Buttons::AbortRetryIgnore,
     "abortretryignore",
     {Answer::Abort, Answer::Retry, Answer::Ignore},
     Answer::Abort},
};

struct AnswerName {
    Answer Given;
    const char* Name;
};
constexpr AnswerName answerNames[] = {
    {Answer::Ok, "ok"},         {Answer::Yes, "yes"},     {Answer::No, "no"},
    {Answer::Cancel, "cancel"}, {Answer::Abort, "abort"}, {Answer::Retry, "retry"},
    {Answer::Ignore, "ignore"},
};

const char* NameOf(Icon picture) {
    for (const auto& row : iconNames) {
        if (row.Picture == picture) return row.Name;
    }
    return "none";
}

const ButtonRow& RowOf(Buttons choice) {
    for (const auto& row : buttonRows) {
        if (row.Choice == choice) return row;
    }
    return buttonRows[0];
}

/// Puts what follows "word " into the text, "" for the bare word. False for any other answer.
bool TakeWord(const std::string& answer, const std::string& word, std::string& rest) {
    if (answer != word && !answer.starts_with(word + " ")) return false;
    rest = answer.size() > word.size() ? answer.substr(word.size() + 1) : "";
    return true;
}

/// Puts "a b;c d" into the grid from the upper left cell on, which grows as typing would make it.
void FillGrid(const std::string& cells) {
    auto& grid = frmMatrix.grid;
    std::string_view rows = cells;
    for (int row = 1; !rows.empty(); ++row) {
        auto words = TakeUpTo(rows, ";");
        for (int col = 1; !words.empty();) {
            const auto word = TakeUpTo(words, " \t\v\f\r\n");
            if (word.empty()) continue;
            grid.Grow(row + 1, col + 1);
            grid.Cell(row, col++) = word;
        }
    }
}

}  // namespace

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
            case '\\': escaped += "\\\\"; break;
            case '\t': escaped += "\\t"; break;
            case '\r': escaped += "\\r"; break;
            case '\n': escaped += "\\n"; break;
            default: escaped += c;
        }
    }
    return escaped;
}

std::string Unescaped(const std::string& text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char next = text[i] == '\\' && i + 1 < text.size() ? text[i + 1] : '\0';
        switch (next) {
            case '\\': plain += '\\'; break;
            case 't': plain += '\t'; break;
            case 'r': plain += '\r'; break;
            case 'n': plain += '\n'; break;
            default: plain += text[i]; continue;
        }
        ++i;
    }
    return plain;
}

std::string RuntimeLine(int number, const std::string& description) {
    return "runtime\t" + NumberText(number) + "\t" + Escaped(description);
}

std::string ConsoleDesktop::TakeAnswer() {
    if (Answers.empty()) return "";
    auto answer = std::move(Answers.front());
    Answers.pop_front();
    return answer;
}

std::string ConsoleDesktop::TakePath() {
    std::string path;
    if (!TakeWord(TakeAnswer(), "path", path) || path.empty()) throw RuntimeError(32755);
    return path;
}

Answer ConsoleDesktop::MsgBox(const Message& message) {
    const auto& row = RowOf(message.Choice);
    WriteTranscript(std::string("msgbox\t") + NameOf(message.Picture) + "\t" + row.Name + "\t" +
                    Escaped(message.Title) + "\t" + Escaped(message.Text));
    if (row.Fitting.empty()) return row.Unanswered;
    const auto given = TakeAnswer();
    for (const auto& name : answerNames) {
        if (given != name.Name) continue;
        for (const auto fitting : row.Fitting) {
            if (fitting == name.Given) return fitting;
        }
    }
    return row.Unanswered;
}

std::string ConsoleDesktop::InputBox(const std::string& prompt, const std::string& title,
                                     const std::string& defaultText) {
    WriteTranscript("inputbox\t" + Escaped(title) + "\t" + Escaped(prompt) + "\t" +
                    Escaped(defaultText));
    const auto answer = TakeAnswer();
    std::string text;
    if (TakeWord(answer, "text", text)) return Unescaped(text);
    return answer == "cancel" ? "" : defaultText;
}

std::string ConsoleDesktop::OpenFileDialog(const std::string& filter, const std::string&) {
    WriteTranscript("openfile\t" + Escaped(filter));
    return TakePath();
}

std::string ConsoleDesktop::SaveFileDialog(const std::string& filter, const std::string&) {
    WriteTranscript("savefile\t" + Escaped(filter));
    return TakePath();
}

void ConsoleDesktop::ShowModal(std::string_view form) {
    if (form != "frmMatrix") return;
    WriteTranscript("matrix");
    std::string cells;
    if (TakeWord(TakeAnswer(), "cells", cells)) FillGrid(cells);
    frmMatrix_cmdOK_Click();
}

}  // namespace quorvane
