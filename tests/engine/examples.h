// SPDX-License-Identifier: MIT
// The examples as they are compiled, and what is expected of their numbers.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>

#include "compile/run_compile.h"
#include "support/table_file.h"

namespace quorvane::testing {

namespace fs = std::filesystem;

inline const fs::path Examples = fs::path(QUORVANE_SOURCE_DIR) / "examples";

/// Rows of example, expression, what it is worth and the tolerance.
inline const std::vector<std::vector<std::string>> Checks = ReadTable("engine/checks.tsv");

/// Runs before the scripts, from a file, since only functions from there hide Octave's own. Curves
/// are kept as they are asked for, and drawn where Octave can draw: without its fonts it can't, and
/// the commands around a curve then do nothing.
inline const std::string Prelude = ReadAll(QUORVANE_SOURCE_DIR "/tests/engine/prelude.m");

/// Stands in front of each example: nothing is left of the one before it.
constexpr auto Fresh = "clear -variables; global shown; shown = struct();\n";

inline std::vector<std::string> ExampleNames() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(Examples)) {
        if (entry.path().extension() == ".qvm") names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// The script of an example. A question without an answer, or an answer without a question, fails.
inline std::string Compiled(const std::string& name, const std::string& mode) {
    const auto answersFile = Examples / (name + ".answers");
    std::vector<std::string> arguments = {"--mode", mode, (Examples / (name + ".qvm")).string()};
    if (fs::exists(answersFile)) {
        arguments.insert(arguments.end(), {"--answers", answersFile.string()});
    }
    const auto answers = ReadAll(answersFile);
    const auto run = RunCompile(Examples, arguments);
    EXPECT_EQ(run.Exit, 0) << name;
    EXPECT_TRUE(run.Errors.ends_with("\tDone !\n")) << name << ": " << run.Errors;
    EXPECT_EQ(std::count(run.Errors.begin(), run.Errors.end(), '\n'),
              std::count(answers.begin(), answers.end(), '\n') + 1)
        << name << ": " << run.Errors;
    return run.Output;
}

/// The checks of an example, to be run behind it.
inline std::string ChecksOf(const std::string& name) {
    std::string text;
    for (std::size_t i = 0; i < Checks.size(); ++i) {
        const auto& row = Checks[i];
        if (name != row[0]) continue;
        text += "check(" + std::to_string(i) + ", " + row[1] + ", " + row[2] + ", " +
                (row[3].empty() ? "1e-12" : row[3]) + ");\n";
    }
    return text;
}

/// Each check of these examples must have come out good in what Octave printed.
inline void ExpectGood(const std::string& printed, const std::vector<std::string>& names) {
    std::map<std::string, std::string> told;
    std::istringstream output(printed);
    for (std::string mark, number; output >> mark;) {
        if (mark == "@@" && output >> number) std::getline(output, told[number]);
    }
    for (std::size_t i = 0; i < Checks.size(); ++i) {
        const auto& row = Checks[i];
        if (std::find(names.begin(), names.end(), row[0]) == names.end()) continue;
        EXPECT_EQ(told[std::to_string(i)], " good") << row.back() << ": " << row[1];
    }
}

}  // namespace quorvane::testing
