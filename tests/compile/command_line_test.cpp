// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "compile/run_compile.h"
#include "quorvane/version.h"
#include "support/table_file.h"

using namespace quorvane::testing;

namespace {

const std::string Links = "\r\n-1~-1~-1~0~0~0~0~0~0~0~0~0~0\r\n0~0~\r\n\r\n";

class CommandLine : public ::testing::Test {
protected:
    void SetUp() override {
        WriteAll(folder / "good.qvm", "1\r\nConstant Input~3" + Links);
        WriteAll(folder / "silent.qvm", "1\r\nDummy Input~" + Links);
        WriteAll(folder / "refused.qvm", "1\r\nSin~" + Links);
        WriteAll(folder / "unwired.qvm", "1\r\nSin~\r\n0~0~0~0~0~0~0~0~0~0~0~0~0\r\n0~0~\r\n\r\n");
        WriteAll(folder / "stalls.qvm", "1\r\nNo Such Input~" + Links);
        WriteAll(folder / "asks.qvm", "1\r\nKeyboard Input~0" + Links);
        WriteAll(folder / "fails.qvm",
                 "2\r\nConstant Input~3\r\n-1~-1~-1~2~0~0~0~0~0~0~0~0~0\r\n0~0~\r\n"
                 "Compute Function~Input9;\r\n1~-1~-1~0~0~0~0~0~0~0~0~0~0\r\n0~0~\r\n\r\n");
        WriteAll(folder / "cut.qvm", "2\r\nConstant Input~3" + Links);
        WriteAll(folder / "bytes.qvm", "1\r\nSin~\xE9\"\x01" + Links);
        WriteAll(folder / "empty", "");
        WriteAll(folder / "text", "# A heading\r\n\r\n3 boxes~\r\n");
        WriteAll(folder / "no end", "text 7");
        WriteAll(folder / "lf", "text 7\n");
        WriteAll(folder / "crlf", "text 7\r\n");
        WriteAll(folder / "cr", "text 7\r");
        WriteAll(folder / "out.m", "old");
    }

    WorkFolder folder;
};

/// The first word of each line, which must have ended.
std::string FirstWords(const std::string& text) {
    std::string words;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        words += (words.empty() ? "" : " ") + line.substr(0, line.find_first_of(" \t"));
    }
    return text.empty() || text.ends_with("\n") ? words : words + " without an end";
}

TEST_F(CommandLine, RunsEndInTheirWays) {
    const auto names = NamesIn(folder.Path);
    for (const auto& row : ReadTable("compile/command_line.tsv")) {
        for (const auto& arguments : Split(row[0], ';')) {
            SCOPED_TRACE(row.back() + " " + arguments);
            WriteAll(folder / "out.m", "old");
            auto words = Split(arguments.substr(arguments.starts_with(' ') ? 1 : 0), '|');
            std::string input = "/dev/null";
            if (words.back() == "none") words.pop_back();
            if (!words.empty() && words.back().starts_with("<")) {
                input = words.back().substr(1);
                words.pop_back();
            }
            const auto run = RunCompile(folder.Path, words, "", input);
            EXPECT_EQ(std::to_string(run.Exit), row[1]);
            EXPECT_EQ(run.Output, row[2]);
            EXPECT_EQ(FirstWords(run.Errors), row[3]) << run.Errors;
            EXPECT_EQ(ReadAll(folder / "out.m"), row[4]);
            EXPECT_EQ(NamesIn(folder.Path), names);
        }
    }
    EXPECT_EQ(RunCompile(folder.Path, {"good.qvm"}, "/dev/full").Exit, 2);
    EXPECT_EQ(RunCompile(folder.Path, {"--describe", "bytes.qvm"}).Output,
              "Sin:c02593: Sin \"\xE9\\\"\\x01\" at 0,0\n");
    EXPECT_EQ(RunCompile(folder.Path, {"--describe", "--json", "bytes.qvm"}).Output,
              R"({"file":"bytes.qvm","boxes":[{"id":"Sin:c02593","type":"Sin",)"
              "\"text\":\"\xEF\xBF\xBD"
              R"(\"\u0001","left":0,"top":0,)"
              R"("inputs":[false,false,false],"exits":[null,null,null,null,null]}]})"
              "\n");
    EXPECT_EQ(RunCompile(folder.Path, {"--check", "text"}).Errors,
              "quorvane-compile: text: line 1: not a Quorvane diagram, which begins with the "
              "number of its "
              "boxes\n");
}

TEST_F(CommandLine, HelpAndVersion) {
    const auto help = RunCompile(folder.Path, {"--help"});
    EXPECT_EQ(help.Exit, 0);
    EXPECT_EQ(help.Errors, "");
    const auto page = ReadAll(QUORVANE_SOURCE_DIR "/docs/quorvane-compile.1");
    const std::regex option("\\n  (?:-.,)?-(-[a-z-]+)");
    int options = 0;
    for (std::sregex_iterator at(help.Output.begin(), help.Output.end(), option), end; at != end;
         ++at, ++options) {
        EXPECT_NE(page.find("Fl " + at->str(1)), std::string::npos) << at->str(1);
    }
    EXPECT_GT(options, 15) << help.Output;
    const auto version = RunCompile(folder.Path, {"--version"});
    EXPECT_EQ(version.Exit, 0);
    EXPECT_EQ(version.Output, "quorvane-compile " QUORVANE_VERSION "\n");
}

}  // namespace
