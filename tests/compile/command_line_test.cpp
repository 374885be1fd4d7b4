// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>

#include "compile/run_compile.h"
#include "quorvane/version.h"

using namespace quorvane::testing;

namespace {

const std::string Links = "\r\n-1~-1~-1~0~0~0~0~0~0~0~0~0~0\r\n0~0~\r\n\r\n";
const std::string DoneLine = "msgbox\tinformation\tok\tQuorvane\tDone !\n";

class CommandLine : public ::testing::Test {
protected:
    void SetUp() override {
        WriteAll(folder / "good.qvm", "1\r\nConstant Input~3" + Links);
        WriteAll(folder / "silent.qvm", "1\r\nDummy Input~" + Links);
        WriteAll(folder / "refused.qvm", "1\r\nSin~" + Links);
        WriteAll(folder / "stalls.qvm", "1\r\nNo Such Input~" + Links);
        WriteAll(folder / "fails.qvm",
                 "2\r\nConstant Input~3\r\n-1~-1~-1~2~0~0~0~0~0~0~0~0~0\r\n0~0~\r\n"
                 "Compute Function~Input9;\r\n1~-1~-1~0~0~0~0~0~0~0~0~0~0\r\n0~0~\r\n\r\n");
        WriteAll(folder / "cut.qvm", "2\r\nConstant Input~3" + Links);
    }

    CompileRun Run(const std::vector<std::string>& arguments, const std::string& output = "") {
        return RunCompile(folder.Path, arguments, output);
    }

    WorkFolder folder;
};

bool IsOneLine(const std::string& text) {
    return text.size() > 1 && text.ends_with("\n") &&
           std::count(text.begin(), text.end(), '\n') == 1;
}

TEST_F(CommandLine, WrongUseIsToldInOneLine) {
    const std::vector<std::vector<std::string>> rows = {
        {},
        {"--nonsense", "good.qvm"},
        {"-x", "good.qvm"},
        {"good.qvm", "silent.qvm"},
        {"--mode", "2", "good.qvm"},
        {"--mode", "-1", "good.qvm"},
        {"--mode", "one", "good.qvm"},
        {"good.qvm", "--mode"},
        {"good.qvm", "-o"},
        {"good.qvm", "--answers"},
        {"good.qvm", "--answers", "none"},
        {"good.qvm", "--answers", "."},
        {"none.qvm"},
        {"."},
        {""},
        {"cut.qvm"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::PrintToString(row));
        const auto run = Run(row);
        EXPECT_EQ(run.Exit, 2);
        EXPECT_EQ(run.Output, "");
        EXPECT_TRUE(IsOneLine(run.Errors)) << run.Errors;
    }
}

TEST_F(CommandLine, HelpAndVersion) {
    const auto help = Run({"--help"});
    EXPECT_EQ(help.Exit, 0);
    EXPECT_EQ(help.Errors, "");
    for (const char* const option : {"DIAGRAM", "-o", "--start-unwired", "--answers", "--mode"}) {
        EXPECT_NE(help.Output.find(option), std::string::npos) << option;
    }
    const auto version = Run({"--version"});
    EXPECT_EQ(version.Exit, 0);
    EXPECT_EQ(version.Output, "quorvane-compile " QUORVANE_VERSION "\n");
    EXPECT_EQ(version.Errors, "");
}

TEST_F(CommandLine, TheScriptGoesWhereItIsSent) {
    const auto printed = Run({"good.qvm"});
    EXPECT_EQ(printed.Exit, 0);
    EXPECT_EQ(printed.Output, "box1=3;\r\n");
    EXPECT_EQ(printed.Errors, DoneLine);
    struct Row {
        std::vector<std::string> Arguments;
        const char* Text;
    };
    const Row rows[] = {
        {{"good.qvm", "-o", "out.m"}, "box1=3;\r\n"},
        {{"--output=out.m", "--mode=0", (folder / "good.qvm")}, "box1=3;\r\n--\r\n"},
        {{"-o", "out.m", "silent.qvm"}, ""},
        {{"-o", "out.m", "--mode", "0", "silent.qvm"}, "--\r\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::PrintToString(row.Arguments));
        WriteAll(folder / "out.m", "an older and longer script");
        const auto run = Run(row.Arguments);
        EXPECT_EQ(run.Exit, 0);
        EXPECT_EQ(run.Output, "");
        EXPECT_EQ(run.Errors, DoneLine);
        EXPECT_EQ(ReadAll(folder / "out.m"), row.Text);
    }
}

TEST_F(CommandLine, ARunThatFailsLeavesTheOldScriptAlone) {
    struct Row {
        std::vector<std::string> Arguments;
        int Exit;
    };
    const Row rows[] = {{{"refused.qvm"}, 1}, {{"stalls.qvm"}, 1},
                        {{"fails.qvm"}, 3},   {{"cut.qvm"}, 2},
                        {{"none.qvm"}, 2},    {{"good.qvm", "--mode", "2"}, 2}};
    WriteAll(folder / "out.m", "old");
    const auto names = NamesIn(folder.Path);
    for (auto row : rows) {
        SCOPED_TRACE(row.Arguments[0]);
        row.Arguments.insert(row.Arguments.end(), {"-o", "out.m"});
        EXPECT_EQ(Run(row.Arguments).Exit, row.Exit);
        EXPECT_EQ(ReadAll(folder / "out.m"), "old");
        EXPECT_EQ(NamesIn(folder.Path), names);
    }
}

TEST_F(CommandLine, AScriptThatCannotBeWrittenIsReported) {
    const std::vector<std::string> places = {"none/out.m", ".", "/dev/full"};
    for (const auto& place : places) {
        SCOPED_TRACE(place);
        const auto run = Run({"good.qvm", "-o", place});
        EXPECT_EQ(run.Exit, 2);
        EXPECT_EQ(run.Output, "");
        EXPECT_EQ(run.Errors.substr(0, DoneLine.size()), DoneLine);
        EXPECT_TRUE(IsOneLine(run.Errors.substr(DoneLine.size()))) << run.Errors;
    }
    EXPECT_EQ(Run({"good.qvm"}, "/dev/full").Exit, 2);
}

TEST_F(CommandLine, AnswersMayEndTheirLinesInAnyWay) {
    WriteAll(folder / "asks.qvm", "1\r\nKeyboard Input~0" + Links);
    for (const std::string end : {"", "\n", "\r\n", "\r"}) {
        WriteAll(folder / "answers", "text 7" + end);
        EXPECT_EQ(Run({"asks.qvm", "--answers", "answers"}).Output, "box1=[ 7 ];\r\n");
    }
    WriteAll(folder / "answers", "");
    EXPECT_EQ(Run({"asks.qvm", "--answers", "answers"}).Output, "box1=[ 0 ];\r\n");
    EXPECT_EQ(Run({"asks.qvm"}).Output, "box1=[ 0 ];\r\n");
}

}  // namespace
