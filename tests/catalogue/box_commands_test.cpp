// SPDX-License-Identifier: MIT
#include "catalogue/box_commands.h"

#include "catalogue/catalogue_fixture.h"

namespace quorvane::testing {

using BoxCommands = CatalogueTest;

TEST_F(BoxCommands, EachArmsOneBoxAsTheCatalogueSays) {
    const auto rows = ReadTable("catalogue/box_commands.tsv");
    ASSERT_EQ(boxCommands.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& row = rows[i];
        const auto& dialog = row[2];
        const bool form = dialog.starts_with("frm");
        SCOPED_TRACE(row.back());
        EXPECT_EQ(boxCommands[i].Control, row[0]);
        EXPECT_EQ(boxCommands[i].Caption, row[1]);
        EXPECT_EQ(boxCommands[i].Dialog, dialog);
        Restart();
        if (form) {
            // OK at once, but in the plot's dialog, which can't be left without a choice
            Make(dialog, dialog == "frmPlot" ? "cmbType=2-D Plot|chkInput1(2)" : "");
            EXPECT_FALSE(Stands);
            // Subroutines alone are asked for before the box is armed.
            EXPECT_EQ(ModeInDialog, dialog == "frmSubs" ? 1 : 2);
        } else {
            RunBoxCommand(Sheet(), row[0]);
        }
        EXPECT_EQ(NextBox, 2);
        EXPECT_EQ(EditMode, 2);
        EXPECT_EQ(Row(Boxes[1]), RowAt(row, 3));
        EXPECT_EQ(NumberText(Sheet().box[1].Picture), row[7]);
        EXPECT_EQ(screen.FormsShown, form ? Texts{dialog} : Texts{});
        EXPECT_EQ(screen.Prompts.size(), dialog == "input box" ? 1u : 0u);
        EXPECT_EQ(TakeTold(), "");
    }
}

TEST_F(BoxCommands, ToolboxKeysRunTheirCommands) {
    const auto rows = ReadTable("catalogue/toolbox_keys.tsv");
    ASSERT_EQ(toolboxKeys.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& key = rows[i][0];
        SCOPED_TRACE(rows[i].back());
        EXPECT_EQ(toolboxKeys[i].Key, key);
        Restart();
        RunBoxCommand(Sheet(), rows[i][1]);
        const Box expected = Boxes[1];
        Restart();
        const int document = NewDocument();
        Sheet(document).cmdEventFire = key;
        cmdEventFire_Click(Sheet(document));
        Boxes[1].BoxDocument = expected.BoxDocument;
        EXPECT_EQ(Boxes[1], expected);
        EXPECT_EQ(EditMode, key == "Arrow" ? 3 : key == "Subroutine" ? 1 : 2);
        EXPECT_EQ(screen.MenusPopped, key == "Subroutine" ? Texts{"mnuSpecSub|2"} : Texts{});
    }
    for (const char* unknown : {"", "Pause", "sin", "Two Dimentional Inverse FFT"}) {
        Restart();
        Sheet().cmdEventFire = unknown;
        cmdEventFire_Click(Sheet());
        EXPECT_EQ(NextBox, 1) << unknown;
    }
    RunBoxCommand(Sheet(), "mnuArrow");
    EXPECT_EQ(EditMode, 1);
}

TEST_F(BoxCommands, AnArmedBoxIsRetyped) {
    const Box& box = Make("frmConst");
    RunBoxCommand(Sheet(), "mnuTrigSin");
    EXPECT_EQ(NextBox, 2);
    // "Sin" writes no text and opens no entry.
    EXPECT_EQ(Row(box), (Texts{"Sin", "pi", "", "12345"}));
    EXPECT_EQ(Sheet().box[1].Picture, 118);
    // Options that differ from their list write their entries alone.
    Make("frmRound", "opn(3)");
    EXPECT_EQ(Row(box), (Texts{"Rem", "pi", "2", "12345"}));
    // An empty condition leaves the text.
    Make("frmCheck", "opn(5)");
    EXPECT_EQ(Row(box), (Texts{"Find", "pi", "", "12345"}));
    // Without a choice the arithmetic operators leave type and picture; their text goes.
    Make("frmBasic");
    EXPECT_EQ(Row(box), (Texts{"Find", "", "", "12345"}));
    EXPECT_EQ(Sheet().box[1].Picture, 19);
    // A plot has the picture of its graph type.
    Make("frmPlot", "cmbType=Pseudocolor|chkInput2(1)");
    EXPECT_EQ(Sheet().box[1].Picture, 103);
    // The exits that a command leaves open are not opened again.
    Make("frmSubs", "available_subs=a Subroutine");
    EXPECT_EQ(Row(box), (Texts{"Insert Subroutine a", "Subroutine", "", ""}));
}

TEST_F(BoxCommands, APictureWithoutItsControlIsPassedOver) {
    // Armed in document 1 and retyped from document 2, which has no element 1.
    NewDocument();
    RunBoxCommand(Sheet(1), "mnuTrigSin");
    RunBoxCommand(Sheet(2), "mnuTrigCos");
    EXPECT_EQ(Boxes[1].BoxType, "Cos");
    EXPECT_FALSE(Sheet(2).box.Has(1));
    EXPECT_EQ(Sheet(1).box[1].Picture, 118);
    EXPECT_EQ(TakeTold(), "");
}

TEST_F(BoxCommands, WritesFallOnTheLastRecordButOne) {
    const auto run = [&](int mode) {
        EditMode = static_cast<std::int16_t>(mode);
        RunBoxCommand(Sheet(), "mnuSpecDummy");
        return NumberText(NextBox) + " " + Boxes[1].BoxType + "/" + Boxes[2].BoxType;
    };
    Draw({{"Cos", "", {0}}, {"Tan", "", {0}}});
    EXPECT_EQ(run(5), "3 Cos/Dummy Input");
    EXPECT_EQ(run(3), "2 Dummy Input/");  // Takes record 2 back, which is then cleared
    // With no box at all there is no record to write.
    ResetBoxTable();
    EXPECT_EQ(run(3), "0 /");
    EXPECT_EQ(Boxes[0].BoxType, "");
    // With all boxes in use the last one stays.
    Restart();
    for (int i = 1; i <= MaxBoxes; ++i) Draw({{"Sin", ""}});
    EXPECT_EQ(run(1), "350 Sin/Sin");
    EXPECT_EQ(screen.Messages.size(), 1u);
    EXPECT_EQ(Boxes[349].BoxType + "/" + Boxes[350].BoxType, "Dummy Input/Sin");
}

}  // namespace quorvane::testing
