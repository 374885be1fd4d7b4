// SPDX-License-Identifier: MIT
// Compiles the examples, runs their scripts in GNU Octave and compares the numbers that come out.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <sstream>

#include "compile/run_compile.h"
#include "support/diagram_fixture.h"

namespace quorvane::testing {
namespace {

namespace fs = std::filesystem;
using std::numbers::pi;

const fs::path Examples = fs::path(QUORVANE_SOURCE_DIR) / "examples";

/// What an expression is worth once the script of an example has run. `shown.plot{2}{1}` is the
/// first argument of the second plot command. The tolerance counts from 1 on in proportion.
struct Check {
    const char* Example;
    const char* Expression;
    std::vector<double> Values;
    double Tolerance = 1e-12;
};

// clang-format off
const std::vector<Check> Checks = {
    {"damped_oscillation", "shown.plot{1}{2}(1)", {1}},
    {"damped_oscillation", "shown.plot{1}{5}(end)", {std::exp(-3)}},
    {"damped_oscillation", "shown.plot{2}{1}(121)", {6}},
    {"damped_oscillation", "shown.plot{2}{2}(121)",
     {-std::exp(-1.5) * (std::cos(18) / 4 + 3 * std::sin(18)) / 3}, 5e-3},
    {"file_conversion", "box9", {69.8}},
    {"file_conversion", "load('fahrenheit.txt')", {52.7, 57.2, 67.1, 69.8, 63.5, 53.6}, 1e-7},
    {"logic", "box5", {3, 4}},
    {"special_matrices", "sum(box5)", {4 * 34}},
    {"special_matrices", "box6 - eye(4)", std::vector<double>(16, 0), 1e-9},
    {"marks", "box10", {13}},
    {"marks", "box11", {std::sqrt(80.0 / 9)}},
    {"marks", "box9", {8, 9, 11, 12, 13, 14, 15, 15, 16, 17}},
    {"marks", "shown.hist{1}{1}", {12, 15, 9, 17, 11, 14, 8, 16, 13, 15}},
    {"matrix_equation", "box7", {1, 2}},
    {"matrix_equation", "sort(box9)", {2, 5}},
    {"matrix_equation", "box10", {10}},
    {"matrix_equation", "box11", {0, 0}},
    {"multiplication_table", "size(box8)", {5, 5}},
    {"multiplication_table", "box8(4,:)", {4, 8, 12, 16, 20}},
    {"multiplication_table", "sum(box8(:))", {15 * 15}},
    {"newton_root", "box6", {std::numbers::sqrt2}},
    {"parcel_price", "box9", {1.2 * (10 + 0.4 * 26)}},
    {"parcel_price", "exist('box3')", {0}},  // the arm that is not taken
    {"polynomial_fit", "box7", {1, -6, 11, -6}, 1e-9},
    {"polynomial_fit", "box10", {1, 2, 3}, 1e-8},
    {"polynomial_fit", "shown.plot{1}{2}",
     {-6, -1.875, 0, 0.375, 0, -0.375, 0, 1.875, 6}, 1e-9},
    {"polynomial_fit", "shown.plot{1}{5}", {-6, -1.875, 0, 0.375, 0, -0.375, 0, 1.875, 6}},
    {"power_search", "box2", {10}},
    {"power_search", "box8", {1024}},
    {"quadrature", "box6", {2}, 1e-9},
    {"quadrature", "box11", {pi / 100 / std::tan(pi / 200)}},
    {"quadrature", "box9", {2 - pi / 100 / std::tan(pi / 200)}, 1e-9},
    {"sine", "numel(box1)", {101}},
    {"sine", "shown.plot{1}{1}(end)", {2 * pi}},
    {"sine", "shown.plot{1}{2}([1 26 51 76])", {0, 1, 0, -1}},
    {"spectrum", "box11", {40}},
    {"spectrum", "shown.plot{1}{1}(end)", {128}},
    {"spectrum", "find(shown.plot{1}{2} == max(shown.plot{1}{2}))", {41}},
    {"subroutine_rms", "box3", {std::sqrt(285.0 / 9)}},
    {"sum_loop", "box6", {55}},
    {"surface", "size(shown.mesh{1}{3})", {9, 17}},
    {"surface", "shown.mesh{1}{3}([1 5],9)", {std::exp(-1), 1}},
    {"text", "strcmp(box7, 'A DIAGRAM IS A SCRIPT')", {1}},
    {"text", "box9", {255}},
    {"text", "strcmp(box11, '21 letters and blanks')", {1}},
};
// clang-format on

/// Runs before the scripts, from a file, since only functions from there hide Octave's own. Curves
/// are kept as they are asked for, and drawn where Octave can draw: without its fonts it can't, and
/// the commands around a curve then do nothing.
constexpr auto Prelude = R"(1;
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
/// example ends in a line "@@", its number and the values.
std::string Stretch(const std::string& name, const std::string& script) {
    std::string text = "clear -variables; global shown; shown = struct();\n" + script + "\n";
    for (std::size_t i = 0; i < Checks.size(); ++i) {
        if (name != Checks[i].Example) continue;
        text += "printf('\\n@@ " + std::to_string(i) + "'); printf(' %.17g', " +
                Checks[i].Expression + "); printf('\\n');\n";
    }
    return text;
}

/// Feeds a session to Octave, in a folder with the data of the examples, and compares what it says.
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

    std::vector<std::vector<double>> values(Checks.size());
    std::istringstream output(ReadAll(folder / "output"));
    for (std::string line; std::getline(output, line);) {
        std::istringstream words(line);
        std::string mark;
        std::size_t number = 0;
        if (!(words >> mark >> number) || mark != "@@") continue;
        for (double value = 0; words >> value;) values.at(number).push_back(value);
    }
    for (std::size_t i = 0; i < Checks.size(); ++i) {
        const auto& check = Checks[i];
        if (std::find(names.begin(), names.end(), check.Example) == names.end()) continue;
        SCOPED_TRACE(std::string(check.Example) + ": " + check.Expression);
        ASSERT_EQ(values[i].size(), check.Values.size());
        for (std::size_t j = 0; j < values[i].size(); ++j) {
            const double expected = check.Values[j];
            EXPECT_NEAR(values[i][j], expected,
                        check.Tolerance * std::max(1.0, std::abs(expected)));
        }
    }
}

struct EngineExample : ::testing::TestWithParam<std::string> {};

TEST_P(EngineExample, GivesItsNumbersInOctave) {
    const auto& name = GetParam();
    EXPECT_TRUE(std::any_of(Checks.begin(), Checks.end(), [&](auto& row) {
        return name == row.Example;
    })) << "Nothing is expected of this example yet: add rows to Checks.";
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
