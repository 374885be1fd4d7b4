// SPDX-License-Identifier: MIT
#include "files/close_document.h"

#include <filesystem>

#include "diagram/editor_fixture.h"
#include "files/work_folder.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

class Closing : public EditorTest {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        NewDocument();
        Place("Sin", 1000, 1000);
        Place("Cos", 2000, 2000, 2);
        Place("Tan", 3000, 3000);
        Place("Log", 4000, 4000, 2);
        Boxes[2].BoxText = "box4";
    }

    WorkFolder folder;
};

TEST_F(Closing, AnUnchangedDocumentGoesWithoutAQuestion) {
    DocumentStates[1].Modified = 0;
    SelectNumbers({2});
    EXPECT_TRUE(CloseDocument(1));
    EXPECT_TRUE(screen.Messages.empty());
    EXPECT_FALSE(Documents[1]);
    EXPECT_EQ(DocumentStates[1].Closed, -1);
    EXPECT_EQ(NextBox, 3);
    EXPECT_EQ(Boxes[1].BoxType, "Log");
    EXPECT_EQ(Boxes[2].BoxType, "Cos");
    EXPECT_EQ(Boxes[2].BoxText, "box1") << "a silent deletion renames as well";
    EXPECT_EQ(Corner(1, 2), Point(4000, 4000));
    EXPECT_FALSE(Sheet(2).box.Has(4));
    EXPECT_EQ(Selected(), Numbers());
    EXPECT_EQ(NewDocument(), 1);
    EXPECT_EQ(DocumentStates[1].Modified, -1) << "the number's new document counts as changed";
    EXPECT_EQ(NewDocument(), 3);
}

TEST_F(Closing, TheAnswerDecides) {
    struct Row {
        const char* Case;
        Answer Given;
        bool Named, Closes, Saves;
    };
    const Row rows[] = {
        {"yes", Answer::Yes, true, true, true},
        {"yes, but no name", Answer::Yes, false, true, false},
        {"no", Answer::No, true, true, false},
        {"cancel", Answer::Cancel, true, false, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.Case);
        SetUp();
        screen.Messages.clear();
        const auto path = folder / (std::string(row.Case) + ".qvm");
        if (row.Named) screen.Paths = {path};
        screen.MessageAnswers = {row.Given};
        EXPECT_EQ(CloseDocument(1), row.Closes);
        screen.Paths.clear();
        ASSERT_EQ(screen.Messages.size(), 1U);
        const auto& question = screen.Messages[0];
        EXPECT_EQ(question.Text, "Do you wish to save this file before closing ?");
        EXPECT_EQ(question.Picture, Icon::Exclamation);
        EXPECT_EQ(question.Choice, Buttons::YesNoCancel);
        EXPECT_EQ(question.Title, "Quorvane");
        EXPECT_EQ(std::filesystem::exists(path), row.Saves);
        EXPECT_EQ(Documents[1] == nullptr, row.Closes);
        EXPECT_EQ(NextBox, row.Closes ? 3 : 5);
        EXPECT_EQ(DocumentStates[1].Closed, -1) << "also after a refusal";
    }
}

TEST_F(Closing, ARefusedWindowStaysAndItsNumberIsFree) {
    screen.MessageAnswers = {Answer::Cancel};
    mnuFileClose_Click(Sheet(1));
    ASSERT_TRUE(Documents[1]);
    SetPointerAll(PointerHourglass);
    EXPECT_EQ(Sheet(1).MousePointer, PointerDefault) << "it is no open document any more";
    EXPECT_EQ(NewDocument(), 1);
    EXPECT_EQ(DocumentStates[1].Closed, 0);
    EXPECT_TRUE(Sheet(1).box.Has(1)) << "the new document lives in the old window";
    screen.MessageAnswers = {Answer::No};
    mnuFileClose_Click(Sheet(1));
    EXPECT_FALSE(Documents[1]);
    EXPECT_EQ(NextBox, 3);
}

TEST_F(Closing, AFullTableAndTheTemplate) {
    while (NextBox <= MaxBoxes) Place("Sin", 0, 0, 2);
    DocumentStates[2].Modified = 0;
    EXPECT_TRUE(CloseDocument(2));
    EXPECT_EQ(NextBox, 3);
    Worksheet templateSheet;
    mnuFileClose_Click(templateSheet);
    EXPECT_TRUE(Documents[1]);
}

}  // namespace
