// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/option_lists.h"
#include "commands/plot_box.h"
#include "diagram/worksheet.h"

namespace quorvane {

/// Something that the field "quick" finds.
struct QuickRow {
    std::string Text;
    std::string Where;  ///< What it is, or where it stands: "Vector Operations", "Edit", "sine.qvm"
    int Picture = 0;    ///< Cell of the icon strip, 0 for none
    /// One of these says what choosing the row does.
    std::string_view Control = "";  ///< A menu entry; with an option or graph type, its command
    const OptionList* List = nullptr;
    int Option = 0;  ///< Row of the list
    const GraphType* Graph = nullptr;
    int Box = 0;
    std::string File = "";  ///< An example
};

/// The menus that FindQuick looks through, besides the commands that make boxes. They put
/// themselves in here when the program starts.
struct QuickMenus {
    std::vector<QuickRow> (*Entries)() = [] { return std::vector<QuickRow>(); };
    /// Runs an entry's command; false when it is none of these.
    bool (*Run)(std::string_view control, Worksheet& sheet) = [](auto, auto&) { return false; };
};
extern QuickMenus quickMenus;

/// What fits a text, best first: commands, options of the list dialogs, graph types, menu entries,
/// boxes, examples. A row fits when each word of the text begins one of its words, or when the text
/// is made of first letters of its words; the case doesn't count. With `boxesOnly` only boxes are
/// looked for, and an empty text finds all.
std::vector<QuickRow> FindQuick(std::string_view text, bool boxesOnly = false);

/// Does what a person would do who had found the row in a menu, on this worksheet. An option or
/// graph type is picked in its dialog, which is left to the user only where it asks for more. Boxes
/// are shown by the screen; nothing happens for them here.
void ChooseQuick(const QuickRow& row, Worksheet& sheet);

}  // namespace quorvane
