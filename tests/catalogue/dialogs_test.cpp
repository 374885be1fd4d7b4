// SPDX-License-Identifier: MIT
#include "catalogue/catalogue_fixture.h"
#include "commands/command_browser_door.h"
#include "commands/flow_dialogs.h"
#include "commands/function_dialogs.h"
#include "commands/option_list_dialog.h"

namespace quorvane::testing {

struct Dialogs : CatalogueTest {
    /// Box 7 is the next one; two of those before it can be inserted as subroutines.
    void SetUp() override {
        DiagramTest::SetUp();
        Draw({{"a Subroutine"}, {"End Subroutine"}, {"Sin"}});
        Draw({{"Insert Subroutine a"}, {" Subroutine"}, {"a subroutine"}});
    }
};

TEST_F(Dialogs, EachListShowsItsOptions) {
    const auto rows = ReadTable("catalogue/option_lists.tsv");
    const auto options = ReadTable("catalogue/options.tsv");
    ASSERT_EQ(optionLists.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& row = rows[i];
        const auto& list = optionLists[i];
        SCOPED_TRACE(row.back());
        frmOptionList_Load(list);
        EXPECT_EQ(list.Dialog, row[0]);
        EXPECT_EQ(frmOptionList.Form.Caption, row[1]);
        EXPECT_EQ(list.FrameCaption, row[2]);
        EXPECT_EQ(list.Field.Caption, row[3]);
        Texts shown, expected;
        for (const auto& control : FindForm(row[0])->Controls) {
            if (!std::holds_alternative<OptionButton*>(control.Record)) continue;
            shown.push_back(control.Name + " " + Shown(control.Record));
        }
        for (const auto& option : options) {
            if (option[0] == row[0]) expected.push_back(option[1] + " " + option[2]);
        }
        EXPECT_EQ(shown, expected);
    }
}

TEST_F(Dialogs, EachOptionMakesItsBox) {
    for (const auto& row : ReadTable("catalogue/options.tsv")) {
        SCOPED_TRACE(row.back());
        Restart();
        const auto& box = Make(row[0], (row[4] == "7.5" ? "txtConst=7.5|" : "") + row[1]);
        EXPECT_FALSE(Stands);
        EXPECT_EQ(Row(box), RowAt(row, 3));
        EXPECT_EQ(NumberText(Sheet().box[7].Picture), row[7]);
    }
}

TEST_F(Dialogs, StepsArePackedIntoTheBox) {
    for (const auto& row : ReadTable("catalogue/dialogs.tsv")) {
        SCOPED_TRACE(row.back());
        Restart();
        const auto& box = Make(row[0], row[1]);
        EXPECT_FALSE(Stands);
        EXPECT_EQ(Row(box), RowAt(row, 2));
        EXPECT_EQ(TakeTold(), row[6]);
    }
}

TEST_F(Dialogs, PromptsAreStoredAsAnswered) {
    screen.Texts = {"a>0", "box4", "a"};
    for (const char* command : {"mnuLoopWhile", "mnuSpecPickup", "mnuSpecSubStart"}) {
        EditMode = 1;
        RunBoxCommand(Sheet(), command);
    }
    EXPECT_EQ(Row(Boxes[7]), (Texts{"While", "a>0", "123", "12345"}));
    EXPECT_EQ(Row(Boxes[8]), (Texts{"Pickup", "box4", "", "12345"}));
    EXPECT_EQ(Row(Boxes[9]), (Texts{"a Subroutine", "Subroutine", "", "12345"}));
    EXPECT_EQ(screen.Prompts, (Texts{"Quorvane|Enter the condition in Matlab Script|",
                                     "Quorvane|Please enter the variable to pick up|box8",
                                     "Quorvane|What is the subroutine's name ?|"}));
}

TEST_F(Dialogs, SubroutinesToInsertAreListedByTheirTypes) {
    frmSubs_Load();
    EXPECT_EQ(frmSubs.available_subs.List, (Texts{"a Subroutine", " Subroutine"}));
}

TEST_F(Dialogs, TheBrowserIsOpenedForTheDialogThatAsks) {
    static Texts callers;
    callers.clear();
    const auto before = OpenCommandBrowser;
    OpenCommandBrowser = [](std::string_view caller) {
        callers.push_back(std::string(caller) + " " + frmMatlabFunction.Form.Caption + " " +
                          frmFunc.Form.Caption);
    };
    frmMatlabFunction_Load();
    frmFunc_Load();
    Play("frmMatlabFunction", "cmdShowFunc");
    Play("frmFunc", "cmdMatlab");
    EXPECT_EQ(callers, (Texts{"mat Loading M-file panel Function Editor",
                              "func Matlab Function Loading M-file panel"}));
    EXPECT_EQ(frmFunc.Form.Caption, "Function Editor");
    OpenCommandBrowser = before;
}

}  // namespace quorvane::testing
