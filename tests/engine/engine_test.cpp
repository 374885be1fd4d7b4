// SPDX-License-Identifier: MIT
// Compiles the examples, runs their scripts in GNU Octave and compares the numbers that come out.
#include "engine/examples.h"
#include "support/diagram_fixture.h"

namespace quorvane::testing {
namespace {

/// Feeds the script of an example to Octave, in a folder with the data of the examples.
void ExpectChecks(const std::string& name) {
    const WorkFolder folder;
    for (const auto& entry : fs::directory_iterator(Examples)) {
        if (entry.path().extension() == ".txt") fs::copy(entry.path(), folder.Path);
    }
    WriteAll(folder / "prelude.m", Prelude);
    WriteAll(folder / "session", std::string("source('prelude.m');\n") + Fresh +
                                     Compiled(name, "1") + "\n" + ChecksOf(name));
    const auto command = "cd " + Quoted(folder.Path.string()) + " && " + Quoted(QUORVANE_OCTAVE) +
                         " --quiet --no-init-file --no-history <session >output 2>errors";
    EXPECT_EQ(std::system(command.c_str()), 0) << ReadAll(folder / "errors");

    ExpectGood(ReadAll(folder / "output"), {name});
}

struct EngineExample : ::testing::TestWithParam<std::string> {};

TEST_P(EngineExample, GivesItsNumbersInOctave) {
    const auto& name = GetParam();
    EXPECT_TRUE(std::any_of(Checks.begin(), Checks.end(), [&](auto& row) {
        return name == row[0];
    })) << "Nothing is expected of this example yet: add rows to checks.tsv.";
    ExpectChecks(name);
}

INSTANTIATE_TEST_SUITE_P(Examples, EngineExample, ::testing::ValuesIn(ExampleNames()),
                         [](const auto& tested) { return tested.param; });

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
