// SPDX-License-Identifier: MIT
// A digest of the texts of each table. A letter that changes on purpose changes its number here.
#include <regex>

#include "catalogue/box_commands.h"
#include "catalogue/option_lists.h"
#include "commands/plot_box.h"
#include "files/work_folder.h"
#include "shell/menus.h"
#include "support/table_file.h"

#include <gtest/gtest.h>

namespace quorvane::testing {

/// The texts that stand one behind another, each ended by a line.
void Add(std::string& all, std::initializer_list<std::string_view> texts) {
    for (const auto text : texts) all += std::string(text) + "\n";
}
std::string_view TextOf(const char* text) { return text ? text : "-"; }

TEST(Captions, NoLetterChangesByChance) {
    std::string menus, commands, options, plots, forms;
    for (const auto& row : documentMenu) Add(menus, {row.Control, row.Caption, row.Shortcut});
    for (const auto& row : frameMenu) Add(menus, {row.Control, row.Caption, row.Shortcut});
    for (const auto& row : boxCommands) {
        Add(commands, {row.Control, row.Caption, row.BoxType, TextOf(row.BoxText), row.Dialog,
                       row.ToolboxKeys[0], row.ToolboxKeys[1], row.Page, row.Line});
    }
    for (const auto& list : optionLists) {
        Add(options, {list.Dialog, list.Caption, list.FrameCaption, TextOf(list.Entries),
                      list.Field.Control, list.Field.Caption, list.Field.Default});
        for (const auto& option : list.Options) {
            Add(options, {option.Caption, option.BoxType, TextOf(option.BoxText),
                          TextOf(option.Entries), option.Control});
        }
    }
    for (const auto& row : graphTypes) Add(plots, {row.Name, row.Icon, row.Command});
    const std::filesystem::path layouts = QUORVANE_SOURCE_DIR "/src/qt/forms";
    const std::regex caption("<string[^>]*>([^<]*)</string>");
    for (const auto& name : NamesIn(layouts)) {
        const auto text = ReadAll(layouts / name);
        for (std::sregex_iterator at(text.begin(), text.end(), caption), end; at != end; ++at) {
            Add(forms, {at->str(1)});
        }
    }
    EXPECT_EQ(DigestOf(menus), 3282296876U) << menus;
    EXPECT_EQ(DigestOf(commands), 3325012703U) << commands;
    EXPECT_EQ(DigestOf(options), 3345340014U) << options;
    EXPECT_EQ(DigestOf(plots), 4283258331U) << plots;
    EXPECT_EQ(DigestOf(forms), 1689760866U) << forms;
}

}  // namespace quorvane::testing
