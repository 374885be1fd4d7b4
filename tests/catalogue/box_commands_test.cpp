// SPDX-License-Identifier: MIT
#include "catalogue/box_commands.h"

#include <set>

#include "catalogue/catalogue_fixture.h"
#include "catalogue/icon_table.h"
#include "catalogue/option_lists.h"
#include "check/check_rows.h"
#include "files/work_folder.h"
#include "generator/emission_chain.h"
#include "shell/manual_index.h"
#include "shell/menus.h"
#include "toolbox/toolbox_config.h"

namespace quorvane::testing {

using BoxCommands = CatalogueTest;

TEST_F(BoxCommands, EachArmsOneBoxAsTheCatalogueSays) {
    for (const auto& command : boxCommands) {
        if (!MakesBox(command)) continue;
        const std::string dialog(command.Dialog);
        const bool form = dialog.starts_with("frm");
        SCOPED_TRACE(command.Control);
        Restart();
        if (form) {
            // OK at once, but in the plot's dialog, which can't be left without a choice
            Make(dialog, dialog == "frmPlot" ? "cmbType=2-D Plot|chkInput1(2)" : "");
            EXPECT_FALSE(Stands);
            // Subroutines alone are asked for before the box is armed.
            EXPECT_EQ(ModeInDialog, dialog == "frmSubs" ? 1 : 2);
        } else {
            RunBoxCommand(Sheet(), command.Control);
        }
        EXPECT_EQ(NextBox, 2);
        EXPECT_EQ(EditMode, 2);
        const auto row = BoxRow(Boxes[1]);
        const int picture = Sheet().box[1].Picture;
        EXPECT_EQ(picture == 0, dialog == "frmBasic") << "nothing was picked";
        if (!form) {
            EXPECT_TRUE(row[0] == command.BoxType || command.BoxType.empty()) << row[0];
            EXPECT_EQ(row[1], command.BoxText ? command.BoxText : "");
            EXPECT_EQ(row[2],
                      std::string("123").substr(0, static_cast<std::size_t>(command.Entries)));
            EXPECT_TRUE(command.Cell == 0 ? picture != FallbackCell : picture == command.Cell);
            EXPECT_EQ(row[3],
                      std::string("12345").substr(0, static_cast<std::size_t>(command.Exits)));
        }
        EXPECT_EQ(screen.FormsShown, form ? Texts{dialog} : Texts{});
        EXPECT_EQ(screen.Prompts.size(), dialog == "input box" ? 1u : 0u);
        EXPECT_EQ(TakeTold(), "");
    }
}

TEST_F(BoxCommands, ToolboxKeysRunTheirCommands) {
    for (const auto key : toolboxCatalogue) {
        SCOPED_TRACE(key);
        const auto control = ToolboxCommand(key);
        Restart();
        RunBoxCommand(Sheet(), control);
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
    EXPECT_EQ(ToolboxCommand("Special Matrix"), "mnuMatMake");
    for (const char* unknown : {"", "Pause", "sin", "Two Dimentional Inverse FFT"}) {
        Restart();
        Sheet().cmdEventFire = unknown;
        cmdEventFire_Click(Sheet());
        EXPECT_EQ(NextBox, 1) << unknown;
    }
    RunBoxCommand(Sheet(), "mnuArrow");
    EXPECT_EQ(EditMode, 1);
}

/// The types that a command may give its box.
std::set<std::string> TypesOf(const BoxCommand& command) {
    std::set<std::string> types = {std::string(command.BoxType)};
    if (const auto* list = FindOptionList(command.Dialog)) {
        for (const auto& option : list->Options) types.emplace(option.BoxType);
    }
    if (types.size() > 1) types.erase("");
    return types;
}

TEST_F(BoxCommands, EachHasItsMenuEntryPictureScriptAndPage) {
    const auto manual = ReadAll(QUORVANE_SOURCE_DIR "/resources/help/QUORVANE.HLP");
    EXPECT_NE(manual.find(ManualIndexPlace), std::string::npos);
    const auto index = ManualIndex();
    EXPECT_NE(index.find("Inputs, Keyboard, <a href=\"#inputs\">Matrix</a>"), std::string::npos);
    std::set<std::string_view> keys;
    for (const auto& command : boxCommands) {
        SCOPED_TRACE(command.Control);
        const auto entries =
            std::count_if(documentMenu.begin(), documentMenu.end(), [&](auto& row) {
                return row.Control == command.Control && row.Caption == command.Caption &&
                       HasCommand(row) == MakesBox(command);
            });
        EXPECT_EQ(entries, 1);
        for (const auto key : command.ToolboxKeys) {
            if (key.empty()) continue;
            EXPECT_TRUE(keys.insert(key).second) << key;
            EXPECT_NE(IconCell(key), FallbackCell) << key;
        }
        if (!MakesBox(command)) continue;
        for (const auto& type : TypesOf(command)) {
            const bool isNamed = type.empty() || type == "Pickup" || type == "Comment";
            EXPECT_TRUE(isNamed || FindEmissionRow(type) || FindTroubledType(type)) << type;
        }
        const std::string page(command.Page);
        EXPECT_NE(manual.find(" id=\"" + page + "\""), std::string::npos) << page;
        EXPECT_NE(index.find("<a href=\"#" + page + "\">"), std::string::npos) << page;
    }
    // Every tool can be put into a toolbox, each once.
    keys.insert("Arrow");
    EXPECT_EQ(std::set<std::string_view>(toolboxCatalogue.begin(), toolboxCatalogue.end()), keys);
    EXPECT_EQ(toolboxCatalogue.size(), keys.size());
}

}  // namespace quorvane::testing
