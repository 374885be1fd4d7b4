// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "diagram/worksheet.h"
#include "workbench/quick_find.h"

namespace quorvane {

/// An entry of a menu bar. An entry that is followed by a deeper one is a menu; one that has a
/// command can be chosen; any other is shown greyed.
template <class Handler>
struct MenuRow {
    int Depth;                  ///< 0 on the bar itself
    std::string_view Control;   ///< The entry's name
    int Index;                  ///< Element of a control array, -1 for a single control
    std::string_view Caption;   ///< "-" for a separator; a recent file's comes from its record
    std::string_view Shortcut;  ///< "" for none
    Handler Command = nullptr;
};
using DocumentMenuRow = MenuRow<void (*)(Worksheet& sheet)>;
using FrameMenuRow = MenuRow<void (*)()>;

/// The menu bar of the active worksheet, in order. The commands that make boxes have no handler
/// here: they are found by their control (RunMenuCommand).
extern const std::vector<DocumentMenuRow> documentMenu;
/// The short menu bar of the frame while no worksheet is active.
extern const std::vector<FrameMenuRow> frameMenu;

/// True when the entry can be chosen.
bool HasCommand(const DocumentMenuRow& row);
/// Runs the entry's handler, or without one the box command of its control.
void RunMenuCommand(const DocumentMenuRow& row, Worksheet& sheet);

/// The entries with commands of their own, as the field "quick" finds them, and the run of one.
std::vector<QuickRow> MenuEntries();
bool RunMenuEntry(std::string_view control, Worksheet& sheet);

/// The record that holds an entry's caption, check mark and visibility; nullptr when they never
/// change.
const MenuItem* MenuRecord(const Worksheet& sheet, std::string_view control, int index);
const MenuItem* MenuRecord(const FrameWindow& frame, std::string_view control, int index);

}  // namespace quorvane
