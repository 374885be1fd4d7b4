// SPDX-License-Identifier: MIT
// Runs the line of every option of the list dialogs in GNU Octave.
#include "workbench/option_lines.h"

#include "catalogue/engine_refusals.h"
#include "engine/examples.h"
#include "support/diagram_fixture.h"

namespace quorvane::testing {
namespace {

using EngineOptions = DiagramTest;

/// What boxes 1 to 3 hold for the dialogs and options that don't take plain matrices.
struct Inputs {
    std::string Dialog, Option, Set;
};
// clang-format off
const std::vector<Inputs> inputsOfOptions = {
    {"frmBasic", "power", "box1=[4 1;2 3];box2=2;"},
    {"frmBetaFunc", "", "box1=0.5;box2=2;box3=3;"},
    {"frmBetaFunc", "opn(7)", "box1=2;box2=[0.1 0.5];"},
    {"frmCmplx", "opn(6)", "box1=[1+i 3 1-i];box2=1e-6;"},
    {"frmDiff", "", "box1=[1 4 9 16];box2=1;"},
    {"frmMatAnalysis", "", "box1=[4 1;2 3];box2=1;"},
    {"frmNumeric", "", "box1=[0 1];box2=1;box3=odeset();"},
    {"frmNumeric", "opn(2)", "box1=@sin;box2=0;box3=1;"},
    {"frmNumeric", "opn(3)", "box1=@sin;box2=0;box3=1;"},
    {"frmNumeric", "opn(4)", "box1=[1 2 3 4];box2=8;"},
    {"frmNumeric", "opn(5)", "box1=[1 2 3 4];box2=8;"},
    {"frmPoly", "", "box1=[1 -6 11 -6];box2=[1 -1];"},
    {"frmPoly", "opn(2)", "box1=[1 -1];box2=3;box3=[];"},
    {"frmPoly", "opn(3)", "box1=[1 -1];box2=[1 2;3 4];"},
    {"frmPoly", "opn(4)", "box1=[1 2];box2=[3 4];box3=5;"},
    {"frmPoly", "opn(5)", "box1=[1 2 3];box2=[1 4 9];box3=2;"},
    {"frmSound", "", "box1=[0 0.5];box2='quorvane';"},
    {"frmSound", "opn(0)", "box1=zeros(1,8);box2=8000;"},
    {"frmSpecMat", "", "box1=4;box2=1;"},
    {"frmSpecMat", "opn(0)", "box1=[1 2 3];"},
    {"frmSpecMat", "opn(1)", "box1=3;"},
    {"frmSpecMat", "opn(3)", "box1=[1 2 3];box2=[3 4 5];"},
    {"frmSpecMat", "opn(9)", "box1=[1 2 3];box2=[1 4 5];"},
    {"frmSpecMat", "opn(10)", "box1=[1 2 3];"},
    {"frmStrCompare", "", "box1='some text';box2='text';box3='words';"},
    {"frmStrConvert", "", "box1='3FF0';box2='text';box3='more';"},
    {"frmStrConvert", "opn(1)", "box1='3';"},
    {"frmStrConvert", "opn(2)", "box1=3;"},
    {"frmStrConvert", "opn(3)", "box1=3;"},
    {"frmStrConvert", "opn(4)", "box1=[1 2;3 4];box2=5;box3='class';"},
    {"frmStrConvert", "opn(7)", "box1=255;"},
    {"frmStrMake", "opn(1)", "box1=4;"},
    {"frmStrMake", "opn(2)", "box1='text  ';"},
    {"frmStrMake", "opn(3)", "box1='1+1;';box2='2;';"},
    {"frmVec", "opn(5)", "box1=[1 2 3];box2=[3 4 5];"},
    {"frmVec", "opn(6)", "box1=[1 2 3];box2=[3 4 5];"},
    {"frmVec", "opn(7)", "box1=1;box2=[1 0.5];box3=[1 2 3];"},
    {"frmVec", "opn(8)", "box1=[1 1];box2=[1 2;3 4];box3='same';"},
};
// clang-format on

std::string InputsOf(const std::string& dialog, const std::string& option) {
    std::string inputs = "box1=[4 1;2 3];box2=[1 2;3 4];box3=[1 0;0 1];";
    for (const auto& row : inputsOfOptions) {
        if (row.Dialog == dialog && (row.Option.empty() || row.Option == option)) inputs = row.Set;
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
