// SPDX-License-Identifier: MIT
#include "generator/generator_fixture.h"

namespace quorvane::testing {

namespace {

/// A text as box 2 with the entries 1, -7 and -32768. Error is what it raises while failures are
/// fatal, Expected what it writes: with an error only once failures are ignored.
struct FilterCase {
    const char* Text;
    const char* Expected;
    int Error = 0;
};

const std::vector<FilterCase> functionCases = {
    {"Output=Input1+input2;", "box2=box1+box-7;\n"},
    {"output=Input1", "box2=0;output=box1\n"},
    {"Outputs=Output;INPUT1", "box2s=Output;INPUT1\n"},
    {" Output=1", "box2=0; Output=1\n"},
    {"", "box2=0;\n"},
    {"Input12", "box2=0;box12\n"},
    {"InInput1put1", "box2=0;Inbox1put1\n"},
    {"a(Input1)\nb(Input2)", "box2=0;a(box1)\nb(box-7)\n"},
    // The scan ends where the text ended before it: at 33, 35 and 36 with the last word at 36.
    {"Output=Input3+Input3+Input3+Input3;", "box2=box-32768+box-32768+box-32768+Input3;\n"},
    {"Output=Input3+Input3+Input3+Input3+1;", "box2=box-32768+box-32768+box-32768+Input3+1;\n"},
    {"Output=Input3+Input3+Input3+Input3+12;",
     "box2=box-32768+box-32768+box-32768+box-32768+12;\n"},
    {"Inputs+Input1", "box2=0;Inputs+box1\n", 13},
    {"Input 1+input1", "box2=0;Input 1+box1\n", 13},
    {"Output=Input1+Input", "box2=box1+Input\n", 13},
    {"Output=input", "box2=input\n", 13},
    {"Output=Input0+Input1", "box2=Input0+box1\n", 9},
    {"Output=input4+Input1", "box2=input4+box1\n", 9},
    {"Output=Input9", "box2=Input9\n", 9},
};

const std::vector<FilterCase> plotCases = {
    {"Plot2d;plot(Input1,Input2)\n", "plot(box1,box-7)\n"},
    {"Plot2d;figure;\nplot(Input1)\ngrid;\n", "figure;\nplot(box1)\ngrid;\n"},
    {"plot(Input1)", "plot(box1)"},
    {"plot(Input1);bar(Input1)", "bar(box1)"},
    {";Input1", "box1"},
    {"Bar;;;Input1", ";box1"},
    {"Bar;input1;Inputs;Input", "input1;Inputs;Input"},
    {"Bar;", ""},
    {"Bar;Input3Input3Input3Input3", "box-32768box-32768box-32768Input3"},
    {"Bar;Input3Input3Input3Input3+++", "box-32768box-32768box-32768Input3+++"},
    {"Bar;Input3Input3Input3Input3++++", "box-32768box-32768box-32768box-32768++++"},
    {"Bar;Input0+Input1", "Input0+box1", 9},
    {"Bar;Input4+Input1", "Input4+box1", 9},
};

}  // namespace

class TextFilterTest : public GeneratorTest {
protected:
    /// Compiles the text behind a source; a cancelled file input makes the run ignore failures.
    std::string Filtered(const char* source, const char* type, const char* text) {
        Restart();
        Draw({{source, "", {}, {2}}, {type, Crlf(text), {1, -7, -32768}}});
        return Compile();
    }
    void Check(const char* type, const std::vector<FilterCase>& cases) {
        for (const auto& row : cases) {
            SCOPED_TRACE(row.Text);
            std::string script;
            const int error = ErrorOf([&] { script = Filtered("Dummy Input", type, row.Text); });
            EXPECT_EQ(error, row.Error);
            if (row.Error == 0) {
                EXPECT_EQ(script, Crlf(row.Expected));
            }
            EXPECT_EQ(Filtered("Ascii File Input", type, row.Text), Crlf(row.Expected));
        }
    }
};

TEST_F(TextFilterTest, FunctionsAndCommands) {
    Check("Compute Function", functionCases);
    Check("Matlab Command", functionCases);
}

TEST_F(TextFilterTest, SomeBoxesMakeFailuresIgnored) {
    const std::vector<std::pair<const char*, int>> cases = {
        {"Sin", 13}, {"Ascii File Output", 0}, {"Next", 0}, {"End Subroutine", 0}};
    for (const auto& [type, error] : cases) {
        Restart();
        Draw({{"Constant Input", "1", {}, {2}},
              {"Insert Subroutine A", "", {1}, {5}},
              {"A Subroutine", "", {}, {4}},
              {type, "", {3}, {5}},
              {"Compute Function", "Inputs", {1}}});
        EXPECT_EQ(ErrorOf([&] { Compile(); }), error) << type;
    }
}

TEST_F(TextFilterTest, Plots) { Check("Plot Output", plotCases); }

}  // namespace quorvane::testing
