// SPDX-License-Identifier: MIT
#include "catalogue/catalogue_fixture.h"
#include "catalogue/icon_table.h"
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
    /// The type that a command with this dialog gives.
    static std::string_view TypeOf(std::string_view dialog) {
        const auto command =
            std::find_if(boxCommands.begin(), boxCommands.end(),
                         [&](const BoxCommand& row) { return row.Dialog == dialog; });
        return command->BoxType;
    }
};

TEST_F(Dialogs, EachOptionMakesItsBox) {
    for (const auto& list : optionLists) {
        frmOptionList_Load(list);
        EXPECT_EQ(frmOptionList.Form.Caption, list.Caption);
        for (const auto& option : list.Options) {
            const auto name = OptionName(list, option);
            const bool basic = list.Dialog == "frmBasic";
            if (name.empty() || (option.Index == NoIndex && !basic)) continue;
            SCOPED_TRACE(std::string(list.Dialog) + " " + name);
            Restart();
            std::string steps = name, text = option.BoxText ? option.BoxText : "";
            if (const auto hole = text.find("{field}"); hole != std::string::npos) {
                const bool typed = list.Field.What == ListField::Kind::Text;
                steps = (typed ? std::string(list.Field.Control) + "=7.5|" : "") + steps;
                text.replace(hole, 7, typed ? "7.5" : "");
            }
            const auto row = BoxRow(Make(std::string(list.Dialog), steps));
            EXPECT_FALSE(Stands);
            EXPECT_EQ(row[0], option.BoxType.empty() ? TypeOf(list.Dialog) : option.BoxType);
            EXPECT_EQ(row[1], text);
            EXPECT_EQ(row[2], option.Entries ? option.Entries : list.Entries);
            EXPECT_EQ(row[3], "12345");
            const int picture = Sheet().box[7].Picture;
            EXPECT_TRUE(picture != FallbackCell || row[0] == "wavwrite") << picture;
            EXPECT_TRUE(IconCell(row[0]) == picture || IconCell(text) == picture ||
                        text.starts_with("Diag"));
            Reopen(std::string(list.Dialog));
        }
    }
}

TEST_F(Dialogs, StepsArePackedIntoTheBox) {
    for (const auto& row : ReadTable("catalogue/dialogs.tsv")) {
        SCOPED_TRACE(row.back());
        Restart();
        const auto& box = Make(row[0], row[1]);
        EXPECT_FALSE(Stands);
        EXPECT_EQ(BoxRow(box), RowAt(row, 2));
        EXPECT_EQ(TakeTold(), row[6]);
        if (!box.BoxType.empty()) Reopen(row[0]);
    }
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
