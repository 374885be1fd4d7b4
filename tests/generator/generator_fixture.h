// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "generator/compile_document.h"
#include "generator/front.h"
#include "platform/raised_error.h"
#include "support/diagram_fixture.h"
#include "support/table_file.h"

namespace quorvane::testing {

using Texts = std::vector<std::string>;

inline std::string Joined(const Texts& parts, const std::string& separator) {
    std::string line;
    for (const auto& part : parts) line += (&part == &parts[0] ? "" : separator) + part;
    return line;
}

inline std::string StallText(std::string_view boxAndType) {
    return Crlf("There seems to be an infinite loop here, whereby " + std::string(boxAndType) +
                " cannot be processed.\nDo you want to retry, abort or ignore this box ?");
}

/// A test of the generator on document 1.
class GeneratorTest : public DiagramTest {
protected:
    /// Prepares the answers with these first letters.
    void Prepare(const std::string& answers) {
        using enum Answer;
        const std::map<char, Answer> known = {
            {'A', Abort}, {'R', Retry}, {'I', Ignore}, {'Y', Yes}, {'N', No}};
        for (const char answer : answers) screen.MessageAnswers.push_back(known.at(answer));
    }
    std::string Compile(int mode = 1) {
        return CompileDocument(static_cast<std::int16_t>(mode), "1");
    }
    /// The texts of all messages so far.
    Texts Told() const {
        Texts texts;
        for (const auto& message : screen.Messages) texts.push_back(message.Text);
        return texts;
    }
    /// What each way out of a run leaves behind.
    static void ExpectAtRest(RunEnd end) {
        EXPECT_EQ(lastRunEnd, end);
        EXPECT_EQ(DocumentWindow(1).MousePointer, PointerDefault);
        for (int i = 0; i < NextBox; ++i) EXPECT_EQ(Boxes[i].BoxMark, "") << "box" << i;
    }

    /// Draws each diagram of a table and has it examined, with the row that tells what is expected.
    template <class Examine>
    void ForEachDiagram(const std::string& table, Examine&& examine) {
        const auto rows = ReadTable(table);
        for (auto row = rows.begin(); row != rows.end();) {
            const auto& expected = *row++;
            SCOPED_TRACE(expected.back() + " " + expected[0]);
            Restart();
            for (; row != rows.end() && row->front().empty(); ++row) {
                for (std::size_t i = 1; i + 1 < row->size() && !(*row)[i].empty(); ++i) {
                    DrawBox((*row)[i]);
                }
            }
            examine(expected);
        }
    }
    /// Compiles each diagram of a table twice, to text and where its row says so to MATLAB.
    void CheckDiagrams(const std::string& table) {
        ForEachDiagram(table, [&](const Texts& expected) {
            for (const int mode : {1, 1, 0, 0}) {
                if (mode == 1 || !expected[5].empty()) CheckRun(mode, expected);
            }
        });
    }

private:
    void CheckRun(int mode, const Texts& row) {
        screen.Messages.clear();
        screen.Sent.clear();
        Prepare(row[1]);
        std::string script;
        const int error = RaisedError([&] { script = Compile(mode); });
        auto expected = Split(row[2], '|');
        const auto end = error != 0                    ? RunEnd::None
                         : expected.back() == "Done !" ? RunEnd::Done
                                                       : RunEnd::Aborted;
        for (auto& text : expected) text = text.starts_with("box") ? StallText(text) : text;
        auto told = Told();
        if (error != 0) told.push_back("error " + std::to_string(error));
        EXPECT_EQ(told, expected);
        EXPECT_EQ(script, mode == 1 ? Crlf(row[4]) : "");
        EXPECT_EQ(Joined(screen.Sent, "--"), mode == 1 ? "" : Crlf(row[5]));
        EXPECT_EQ(nestingDepth, std::atoi(row[3].c_str()));
        EXPECT_EQ(EditMode, end == RunEnd::Done ? 1 : 0);
        EXPECT_TRUE(screen.MessageAnswers.empty());
        ExpectAtRest(end);
    }
};

}  // namespace quorvane::testing
