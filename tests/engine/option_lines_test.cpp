// SPDX-License-Identifier: MIT
// Runs the line of every option of the list dialogs in GNU Octave.
#include "workbench/option_lines.h"

#include "catalogue/engine_refusals.h"
#include "engine/examples.h"
#include "support/diagram_fixture.h"

namespace quorvane::testing {
namespace {

using EngineOptions = DiagramTest;

/// What boxes 1 to 3 hold for an option.
std::string InputsOf(const std::string& dialog, const std::string& option) {
    std::string inputs = "box1=[4 1;2 3];box2=[1 2;3 4];box3=[1 0;0 1];";
    for (const auto& row : ReadTable("engine/option_inputs.tsv")) {
        if (row[0] == dialog && (row[1].empty() || row[1] == option)) inputs = row[2];
    }
    return inputs;
}

/// As a text of Octave.
std::string Literal(const std::string& text) {
    return '"' + Replaced(Replaced(Replaced(text, "\\", "\\\\"), "\"", "\\\""), "\r\n", "\\n") +
           '"';
}

TEST_F(EngineOptions, AreRefusedAsTheirTipsSay) {
    std::string script = ReadAll(QUORVANE_SOURCE_DIR "/tests/engine/options.m");
    std::map<std::string, std::string> expected, lines;
    for (const auto& list : optionLists) {
        for (const auto& option : list.Options) {
            const auto name = OptionName(list, option);
            if (name.empty()) continue;
            const auto key = std::string(list.Dialog) + " " + name;
            const auto& line = lines[key] = LineOfOption(list, option);
            const auto refusal = EngineRefusal(list.Dialog, name);
            expected[key] = refusal.empty() ? "runs" : refusal;
            script += "try_line('" + key + "'," +
                      Literal(InputsOf(std::string(list.Dialog), name)) + "," + Literal(line) +
                      ");\n";
        }
    }
    const WorkFolder folder;
    WriteAll(folder / "session.m", script);
    const auto command = "cd " + Quoted(folder.Path.string()) + " && " + Quoted(QUORVANE_OCTAVE) +
                         " --quiet --no-init-file --no-history session.m >output 2>errors";
    EXPECT_EQ(std::system(command.c_str()), 0) << ReadAll(folder / "errors");
    std::map<std::string, std::string> told;
    for (const auto& printed : Split(ReadAll(folder / "output"), '\n')) {
        if (!printed.starts_with("@@ ")) continue;
        const auto parts = Split(printed.substr(3), '\t');
        told[parts[0]] = parts[1];
    }
    for (const auto& [key, answer] : expected)
        EXPECT_EQ(told[key], answer) << key << ": " << lines[key];
}

}  // namespace
}  // namespace quorvane::testing
