// SPDX-License-Identifier: MIT
// Reads the sources for global variables that a reset of the program would forget.
#include <gtest/gtest.h>

#include <regex>

#include "files/work_folder.h"

using namespace quorvane::testing;

namespace {

namespace fs = std::filesystem;

/// What stays: whoever starts the program sets the desktop, the open files have CloseAllFiles, and
/// snapshots count their bytes themselves.
const std::set<std::string> Kept = {"desktop", "openFiles", "currentLine", "keptBytes"};

using Names = std::set<std::string>;

void AddMatches(const std::string& text, const std::regex& wanted, Names& names) {
    for (std::sregex_iterator at(text.begin(), text.end(), wanted), end; at != end; ++at) {
        names.insert(at->str(1));
    }
}

TEST(Application, AResetForgetsNoVariable) {
    const auto multiline = std::regex::multiline;
    const std::regex variable(
        R"re(^(?!(?:const|constexpr|using|extern|namespace|struct|class|enum|return)\b)[A-Za-z][\w:<>,*+ ]* \**(\w+)(?: = [^;]*|\{[^;]*\}|\(\d*\))?;)re",
        multiline);
    const std::regex reset(R"re(^void (?:Reset|Clear)\w+\(\) \{(\n(?:    .*\n)*| .*)\})re",
                           multiline);
    const std::regex word(R"re(\b(\w+)\b)re");
    Names variables, bodies, mentioned;
    for (const auto& entry : fs::recursive_directory_iterator(QUORVANE_SOURCE_DIR "/src")) {
        const auto path = entry.path().generic_string();
        const bool isProgram =
            path.find("/qt/") != path.npos || path.find("/compile/") != path.npos;
        if (entry.path().extension() != ".cpp" || isProgram) continue;
        const auto text = ReadAll(entry.path());
        AddMatches(text, variable, variables);
        AddMatches(text, reset, bodies);
    }
    for (const auto& body : bodies) AddMatches(body, word, mentioned);
    ASSERT_TRUE(variables.contains("Boxes") && variables.contains("frmPlot")) << "none were found";
    Names forgotten;
    for (const auto& name : variables) {
        if (!mentioned.contains(name) && !Kept.contains(name)) forgotten.insert(name);
    }
    EXPECT_EQ(forgotten, Names());
}

}  // namespace
