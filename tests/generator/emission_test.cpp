// SPDX-License-Identifier: MIT
#include "catalogue/box_commands.h"
#include "generator/emission_chain.h"

#include <algorithm>
#include <set>

#include "commands/matrix_input.h"
#include "generator/generator_fixture.h"
#include "platform/numbers.h"

namespace quorvane::testing {

class EmissionTest : public GeneratorTest {
protected:
    /// Three constants, the box under test as box 4, a "Screen Output" behind it which shows that
    /// it was done, and a box that is never reached.
    void DrawAsBox4(const std::string& type, const std::string& text, const std::string& in) {
        for (const char* value : {"1", "2", "3"}) Draw({{"Constant Input", value, {}, {4}}});
        Draw({{type, Crlf(text), Numbers(in), {5}}, {"Screen Output", "", {4}}, {"Sin"}});
    }
    static std::string Whole(const std::string& ofBox4) {
        return Crlf("box1=1;\nbox3=3;\nbox2=2;\n" + ofBox4 + "box5=box4\n");
    }
    /// All that was asked and told, the last message excepted, separated by ", ".
    std::string Asked() const {
        Texts asked = Told();
        asked.pop_back();
        for (const auto& more : {screen.Prompts, screen.FileDialogs, screen.FormsShown}) {
            asked.insert(asked.end(), more.begin(), more.end());
        }
        return Joined(asked, ", ");
    }
};

TEST_F(EmissionTest, EveryKeyWritesItsTextOnceItsFeedersAreDone) {
    for (const auto& row : ReadTable("generator/emission.tsv")) {
        for (const auto& key : Split(row[0], '|')) {
            SCOPED_TRACE(row.back() + " " + key);
            const auto stalled = StallText("box4 (" + key + ")");
            std::string expected;
            for (const char c : row[3]) expected += c == '@' ? LowerCase(key) : std::string(1, c);
            expected = row[3] == "stalls" ? "" : Whole(expected);
            Restart();
            DrawAsBox4(key, row[1], row[2]);
            for (int run = 1; run <= 2; ++run) {
                screen = ScriptedDesktop();
                screen.Paths.assign(row[5].empty() ? 0 : 1, row[5]);
                screen.Forms["frmMatrix"] = [] {
                    frmMatrix_grid_KeyDown('9', "9");
                    frmMatrix_cmdOK_Click();
                };
                EXPECT_EQ(Compile(), expected);
                EXPECT_EQ(Told().back(), expected.empty() ? stalled : "Done !");
                EXPECT_EQ(Asked(), row[4]);
                EXPECT_FALSE(frmMatrix.Form.Loaded);
            }
            auto& in = Boxes[4].BoxIn;
            const auto arrow = std::find_if(in.begin(), in.end(), [](int box) { return box > 0; });
            if (arrow == in.end()) continue;
            *arrow = 6;
            screen.Messages.clear();
            EXPECT_EQ(Compile(), "");
            EXPECT_EQ(Told(), Texts{stalled});
        }
    }
}

static_assert(RowText("a literal of several parts{id}").Parts()[1].Behind == Hole::Number);

TEST_F(EmissionTest, TheChainHoldsEachKeyOnce) {
    std::set<std::string> expected = {"Keyboard Input", "For", "While", "Next",
                                      "End Subroutine", "If",  "End If"};
    for (const auto& row : ReadTable("generator/emission.tsv")) {
        if (row[3] == "stalls") continue;
        for (const auto& key : Split(row[0], '|')) expected.insert(key);
    }
    std::set<std::string> known;
    for (const auto& command : boxCommands) {
        if (!command.Line.empty()) known.emplace(command.BoxType);
    }
    for (const auto& row : emissionChain) {
        for (const auto key : row.Keys) EXPECT_TRUE(known.emplace(key).second) << key;
    }
    EXPECT_EQ(known, expected);
}

TEST_F(EmissionTest, FeedersReplaceInputWords) {
    for (const auto& row : ReadTable("generator/filters.tsv")) {
        for (const auto& key : Split(row[0], '|')) {
            // Behind a dummy input failures are fatal, behind a cancelled file input ignored.
            for (const char* source : {"Dummy Input", "Ascii File Input"}) {
                SCOPED_TRACE(row.back() + " " + key + " behind " + source);
                Restart();
                Draw({{source, "", {}, {2}}, {key, Crlf(row[1]), {1, -7, -32768}}});
                const int error = source[0] == 'D' ? std::atoi(row[3].c_str()) : 0;
                std::string script;
                EXPECT_EQ(RaisedError([&] { script = Compile(); }), error);
                EXPECT_EQ(script, error == 0 ? Crlf(row[2]) : "");
            }
        }
    }
}

}  // namespace quorvane::testing
