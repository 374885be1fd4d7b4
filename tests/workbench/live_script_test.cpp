// SPDX-License-Identifier: MIT
#include "workbench/live_script.h"

#include <algorithm>

#include "files/document_fixture.h"
#include "generator/compile_document.h"
#include "generator/front.h"
#include "support/random_user.h"
#include "support/table_file.h"
#include "workbench/after_event.h"
#include "workbench/history.h"
#include "workbench/outline.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

class LiveScriptTest : public DocumentTest {
protected:
    /// The script of each worksheet is what the clipboard would get, each of its lines has a box of
    /// that worksheet, and asking for it leaves no trace.
    static void Compare() {
        QuietDesktop nobody;
        desktop = &nobody;
        const auto boxes = Boxes;
        ForEachOpenDocument([&](const Worksheet& sheet, int document) {
            Front[0] = 77;
            const int mode = EditMode;
            const auto gauge = sheet.pnlResource.Value;
            const auto live = ScriptOf(document);
            EXPECT_EQ(EditMode, mode);
            EXPECT_EQ(Front[0], 77);
            EXPECT_EQ(sheet.pnlResource.Value, gauge);
            EXPECT_TRUE(Boxes == boxes);
            std::string script;
            Attempt([&] { script = CompileDocument(1, sheet.Tag); });
            EXPECT_EQ(live.Text, script);
            EXPECT_EQ(std::count(script.begin(), script.end(), '\n') + !script.ends_with('\n'),
                      std::ssize(live.BoxOfLine) + script.empty())
                << script;
            for (const int box : live.BoxOfLine) EXPECT_EQ(Boxes[box].BoxDocument, document);
            Boxes = boxes;
        });
    }
};

/// A line that begins with the name of a box and "=" is that box's own; but these two also write
/// one for the box that uses them.
void ExpectOwnLines(const LiveScript& live) {
    auto lines = Split(Replaced(live.Text, "\r\n", "\n"), '\n');
    lines.resize(live.BoxOfLine.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const auto& writer = Boxes[live.BoxOfLine[i]].BoxType;
        const auto text = Replaced(lines[i], " ", "");
        const auto named = text.starts_with("box") ? std::atoi(text.c_str() + 3) : 0;
        if (named == 0 || !text.starts_with(BoxName(named) + "=")) continue;
        if (writer == "Matlab Command" || writer == "End Subroutine") continue;
        EXPECT_EQ(live.BoxOfLine[i], named) << lines[i];
    }
}

TEST_F(LiveScriptTest, ItIsWhatTheClipboardWouldGet) {
    int scripts = 0;
    for (const auto& entry : std::filesystem::directory_iterator(QUORVANE_SOURCE_DIR "/examples")) {
        if (entry.path().extension() != ".qvm") continue;
        SCOPED_TRACE(entry.path());
        Restart();
        LoadDocumentFile(entry.path().string());
        AfterEvent();
        Compare();
        scripts += !ScriptOf(2).Text.empty();
        ExpectOwnLines(ScriptOf(2));
    }
    EXPECT_GT(scripts, 10);
    ResetApplication();
    RandomUser user(3);
    for (int i = 0; i < 300 && !HasFailure(); ++i) {
        desktop = &user;
        user.Operate();
        if (EditMode == 2) continue;
        AfterEvent();
        Compare();
    }
}

TEST_F(LiveScriptTest, QuestionsAndFindingsStandBesideIt) {
    AfterEvent();
    EXPECT_EQ(ScriptOf(1).Asked, std::vector<std::string>{"There are no inputs !"});
    Draw({{"Keyboard Input", "", {}, {}}, {"Sin", "", {0}, {}}});
    AfterEvent();
    const auto& live = ScriptOf(1);
    EXPECT_EQ(live.Text, "box1=[  ];\r\n");
    EXPECT_EQ(live.BoxOfLine, LineBoxes{1});
    EXPECT_EQ(live.Asked, std::vector<std::string>{"Enter the data devided by spaces"});
    EXPECT_EQ(FindingsOfBox(1), "");
    EXPECT_NE(FindingsOfBox(2), "");
    Undo();
    EXPECT_EQ(ScriptOf(1).Text, "") << "made anew";
    EXPECT_EQ(ScriptOf(9).Text, "");
}

TEST_F(LiveScriptTest, TheOutlineListsAndDeletesBoxes) {
    Draw({{"Sin", "a\r\nb", {2}, {}}, {"Cos", "", {}, {1}}});
    NewDocument();
    const auto names = [](const char* filter) {
        std::string text;
        for (const auto& row : Outline(filter)) {
            text +=
                row.Name + "/" + row.Type + "/" + row.Text + "/" + row.From + "/" + row.To + " ";
        }
        return text;
    };
    EXPECT_EQ(names(""), "Untitled:1//// box1/Sin/a b/box2/ box2/Cos///box1 Untitled:2//// ");
    EXPECT_EQ(names("cOS"), "Untitled:1//// box2/Cos///box1 ");
    EXPECT_EQ(names("no such text"), "");
    DeleteBox_Key(2);
    DeleteBox_Key(7);
    EXPECT_EQ(names(""), "Untitled:1//// box1/Sin/a b// Untitled:2//// ");
    EXPECT_EQ(Boxes[1].BoxIn[1], 0);
}

}  // namespace
