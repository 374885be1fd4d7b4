// SPDX-License-Identifier: MIT
// Compiles the examples, runs their scripts in GNU Octave and compares the numbers that come out.
#include <algorithm>
#include <map>
#include <sstream>

#include "compile/run_compile.h"
#include "support/diagram_fixture.h"
#include "support/table_file.h"

namespace quorvane::testing {
namespace {

namespace fs = std::filesystem;

const fs::path Examples = fs::path(QUORVANE_SOURCE_DIR) / "examples";

/// Rows of example, expression, what it is worth and the tolerance.
const std::vector<std::vector<std::string>> Checks = ReadTable("engine/checks.tsv");

/// Runs before the scripts, from a file, since only functions from there hide Octave's own. Curves
/// are kept as they are asked for, and drawn where Octave can draw: without its fonts it can't, and
/// the commands around a curve then do nothing.
constexpr auto Prelude = R"(1;
function check(number, value, worth, tolerance)
  value = double(value(:)); worth = worth(:);
  good = numel(value) == numel(worth) && all(abs(value - worth) <= tolerance * max(1, abs(worth)));
  if good, told = 'good'; else, told = mat2str(value', 17); end
  printf('\n@@ %d %s\n', number, told);
end
warning('off', 'all');
set(0, 'defaultfigurevisible', 'off');
global canDraw;
try, axes(); canDraw = true; catch, canDraw = false; end
function system_dependent(varargin), end
function show(name, values)
  global shown canDraw;
  if ! isfield(shown, name), shown.(name) = {}; end
  shown.(name){end + 1} = values;
  if canDraw, builtin(name, values{:}); end
end
function plot(varargin), show('plot', varargin); end
function hist(varargin), show('hist', varargin); end
function mesh(varargin), show('mesh', varargin); end
if ! canDraw
  for name = {'figure', 'title', 'xlabel', 'ylabel', 'zlabel', 'grid', 'hold'}
    eval(['function ' name{1} '(varargin), end']);
  end
end
)";

std::vector<std::string> ExampleNames() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(Examples)) {
        if (entry.path().extension() == ".qvm") names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// The script of an example. A question without an answer, or an answer without a question, fails.
std::string Compiled(const std::string& name, const std::string& mode) {
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

/// A script as a stretch of a session: nothing is left of the one before it, and each check of this
/// example is made behind it.
std::string Stretch(const std::string& name, const std::string& script) {
    std::string text = "clear -variables; global shown; shown = struct();\n" + script + "\n";
    for (std::size_t i = 0; i < Checks.size(); ++i) {
        const auto& row = Checks[i];
        if (name != row[0]) continue;
        text += "check(" + std::to_string(i) + ", " + row[1] + ", " + row[2] + ", " +
                (row[3].empty() ? "1e-12" : row[3]) + ");\n";
    }
    return text;
}

/// Feeds a session to Octave, in a folder with the data of the examples. Each check of these
/// examples must come out good.
void ExpectChecks(const std::string& session, const std::vector<std::string>& names) {
    const WorkFolder folder;
    for (const auto& entry : fs::directory_iterator(Examples)) {
        if (entry.path().extension() == ".txt") fs::copy(entry.path(), folder.Path);
    }
    WriteAll(folder / "prelude.m", Prelude);
    WriteAll(folder / "session", "source('prelude.m');\n" + session);
    const auto command = "cd " + Quoted(folder.Path.string()) + " && " + Quoted(QUORVANE_OCTAVE) +
                         " --quiet --no-init-file --no-history <session >output 2>errors";
    EXPECT_EQ(std::system(command.c_str()), 0) << ReadAll(folder / "errors");

    std::map<std::string, std::string> told;
    std::istringstream output(ReadAll(folder / "output"));
    for (std::string mark, number; output >> mark;) {
        if (mark == "@@" && output >> number) std::getline(output, told[number]);
    }
    for (std::size_t i = 0; i < Checks.size(); ++i) {
        const auto& row = Checks[i];
        if (std::find(names.begin(), names.end(), row[0]) == names.end()) continue;
        EXPECT_EQ(told[std::to_string(i)], " good") << row.back() << ": " << row[1];
    }
}

struct EngineExample : ::testing::TestWithParam<std::string> {};

TEST_P(EngineExample, GivesItsNumbersInOctave) {
    const auto& name = GetParam();
    EXPECT_TRUE(std::any_of(Checks.begin(), Checks.end(), [&](auto& row) {
        return name == row[0];
    })) << "Nothing is expected of this example yet: add rows to checks.tsv.";
    ExpectChecks(Stretch(name, Compiled(name, "1")), {name});
}

INSTANTIATE_TEST_SUITE_P(Examples, EngineExample, ::testing::ValuesIn(ExampleNames()),
                         [](const auto& tested) { return tested.param; });

/// All examples one after another as they would be sent to a running MATLAB.
TEST(Engine, OneSessionTakesAllThatIsSent) {
    std::string session;
    for (const auto& name : ExampleNames()) {
        std::istringstream sent(Compiled(name, "0"));
        std::string script;
        for (std::string line; std::getline(sent, line);) {
            if (line != "--\r") script += line + "\n";
        }
        session += Stretch(name, script);
    }
    ExpectChecks(session, ExampleNames());
}

using EngineFiles = DiagramTest;

TEST_F(EngineFiles, ExamplesAreFilesAsTheProgramSavesThem) {
    for (const auto& name : ExampleNames()) {
        const auto path = Examples / (name + ".qvm");
        const WorkFolder folder;
        SetUp();
        LoadDocumentFile(path.string());
        screen.Paths = {folder / "saved.qvm"};
        SaveDocument(2, 2);
        EXPECT_EQ(ReadAll(folder / "saved.qvm"), ReadAll(path)) << name;
    }
}

}  // namespace
}  // namespace quorvane::testing
