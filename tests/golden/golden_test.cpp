// SPDX-License-Identifier: MIT
// Each folder beside this file is a case: a diagram, its arguments and answers where it has any,
// and what quorvane-compile then prints, reports and ends with, byte for byte.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "compile/run_compile.h"

using namespace quorvane::testing;
namespace fs = std::filesystem;

namespace {

std::vector<fs::path> Cases() {
    std::vector<fs::path> cases;
    for (const auto& entry : fs::directory_iterator(QUORVANE_SOURCE_DIR "/tests/golden")) {
        if (entry.is_directory()) cases.push_back(entry.path());
    }
    std::sort(cases.begin(), cases.end());
    return cases;
}

/// Fails where a case folder is missing a part, or holds one that is not looked at.
void ExpectWhole(const fs::path& folder) {
    auto names = NamesIn(folder);
    for (const char* const needed : {"script.m", "transcript", "exit"}) {
        EXPECT_EQ(names.erase(needed), 1U) << "the case has no " << needed;
    }
    for (const char* const known : {"diagram.qvm", "args", "answers"}) names.erase(known);
    EXPECT_EQ(names, std::set<std::string>()) << "nothing reads these";
}

class Golden : public ::testing::TestWithParam<fs::path> {};

TEST_P(Golden, Compiles) {
    const auto& folder = GetParam();
    ExpectWhole(folder);
    std::vector<std::string> arguments;
    std::istringstream lines(ReadAll(folder / "args"));
    for (std::string line; std::getline(lines, line);) arguments.push_back(line);
    if (fs::exists(folder / "answers")) {
        arguments.insert(arguments.end(), {"--answers", "answers"});
    }
    arguments.emplace_back("diagram.qvm");
    const auto run = RunCompile(folder, arguments);
    EXPECT_EQ(run.Output, ReadAll(folder / "script.m"));
    EXPECT_EQ(run.Errors, ReadAll(folder / "transcript"));
    EXPECT_EQ(std::to_string(run.Exit) + "\n", ReadAll(folder / "exit"));
}

// Without a case there is nothing to instantiate, which is a failure of its own.
INSTANTIATE_TEST_SUITE_P(Cases, Golden, ::testing::ValuesIn(Cases()),
                         [](const auto& tested) { return tested.param.filename().string(); });

}  // namespace
