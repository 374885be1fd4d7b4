// SPDX-License-Identifier: MIT
// Runs of quorvane-compile with an engine behind it.
#include <gtest/gtest.h>

#include <cstdlib>

#include "compile/run_compile.h"
#include "support/table_file.h"

using namespace quorvane::testing;

namespace {

bool HasProgram(const std::string& name) {
    return std::system(("command -v " + name + " >/dev/null").c_str()) == 0;
}

class EngineRun : public ::testing::Test {
protected:
    WorkFolder folder;

    void SetUp() override { WriteAll(folder / "answers.txt", "text 21\n"); }
    void WriteBox(const std::string& text) {
        WriteAll(folder / "a.qvm", "1\r\nConstant Input~" + Replaced(text, "\r\n", ";;") +
                                       "\r\n-1~-1~-1~0~0~0~0~0~0~0~0~0~0\r\n0~0~\r\n\r\n");
    }
    /// What a shell prints; $C is the command line.
    std::string Shell(const std::string& script) {
        const auto start = "cd " + Quoted(folder.Path.string()) + "; C=" + Quoted(QUORVANE_COMPILE);
        WriteAll(folder / "script", start + "\n" + script);
        const auto printed = folder / "printed";
        [[maybe_unused]] const int status =
            std::system(("sh " + (folder / "script") + " >" + printed + " 2>&1").c_str());
        return ReadAll(printed);
    }
};

TEST_F(EngineRun, Table) {
    const bool hasOctave = HasProgram("octave-cli");
    for (const auto& row : ReadTable("compile/run.tsv")) {
        if (!hasOctave && row[1].find("--engine") == std::string::npos) continue;
        SCOPED_TRACE(row.back() + " " + row[0] + " " + row[1]);
        WriteBox(row[0]);
        std::vector<std::string> words = {"--run", "a.qvm"};
        if (!row[1].empty()) {
            const auto more = Split(row[1], '|');
            words.insert(words.end(), more.begin(), more.end());
        }
        const auto run = RunCompile(folder.Path, words);
        const auto errors = Replaced(Replaced(run.Errors, "\t", " "),
                                     "msgbox information ok Quorvane Done !\n", "");
        EXPECT_EQ(std::to_string(run.Exit), row[2]);
        EXPECT_EQ(run.Output, row[3]);
        const auto start = row[4].substr(0, row[4].find("..."));
        EXPECT_EQ(row[4].ends_with("...") ? errors.substr(0, start.size()) : errors,
                  row[4].ends_with("...") ? start : row[4]);
    }
}

/// Output comes while the run goes on, and an interrupt ends all that the engine has started, even
/// what ignores it.
TEST_F(EngineRun, AnInterruptLeavesNothingBehind) {
    if (!HasProgram("octave-cli")) GTEST_SKIP() << "octave-cli isn't there";
    WriteBox(R"(1;disp("ready");system("trap '' INT; echo $$ >child; exec sleep 100");)");
    EXPECT_EQ(Shell("$C --run a.qvm >out & run=$!\n"
                    "for i in $(seq 200); do [ -s child ] && break; sleep 0.1; done\n"
                    "sleep 0.5; cat out; kill -INT $run; wait $run; echo $?\n"
                    "for i in $(seq 20); do kill -0 $(cat child) || break; sleep 0.1; done 2>&-\n"
                    "kill -0 $(cat child) 2>&- && echo lives"),
              "ready\n130\n");
    EXPECT_EQ(NamesIn(folder.Path).count("octave-workspace"), 0U);
}

TEST_F(EngineRun, FortyAtOnce) {
    if (!HasProgram("octave-cli")) GTEST_SKIP() << "octave-cli isn't there";
    WriteBox("0");
    const std::string each = HasProgram("parallel") ? "parallel -j4 --will-cite" : "xargs -P4 -I{}";
    std::string squares;
    for (int i = 1; i <= 40; ++i) squares += std::to_string(i * i) + "\n";
    EXPECT_EQ(Shell("seq 40 | " + each +
                    " \"$C\" --run --set \"'box1={}^2;disp(box1)'\" a.qvm 2>&- | sort -n"),
              squares);
}

}  // namespace
