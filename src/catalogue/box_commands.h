// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "diagram/worksheet.h"

namespace quorvane {

/// The key under which the icon table holds the picture of a new box.
enum class IconSource {
    Type,        ///< BoxType
    Text,        ///< BoxText
    TextOrDiag,  ///< BoxText, "Diag" for any text that begins so
    PlotKind     ///< BoxText up to its first ";"
};

/// All entries stay open at first: the dialog locks what the box lacks.
constexpr int ByDialog = 3;

/// A command that makes a box. It asks for the type, where it asks first; arms the box with AddBox;
/// writes the type and text, and locks; runs its dialog, which completes the record; and gives the
/// box its picture.
struct BoxCommand {
    std::string_view Control;  ///< The menu entry
    std::string_view Caption;
    std::string_view Dialog;   ///< Form that it opens, "input box" for a prompt, "" for none
    std::string_view BoxType;  ///< "" when the dialog decides
    const char* BoxText;       ///< nullptr when it is not written, or by the dialog
    int Entries;               ///< How many stay open, the first ones
    int Exits;
    IconSource Icon;
    /// Runs the dialog for the armed box of this number, where it is none of the option lists.
    void (*Complete)(int box) = nullptr;
    /// Asks for the type before there is a box.
    std::string (*AskType)() = nullptr;
};
extern const std::vector<BoxCommand> boxCommands;

/// Runs the command of a menu entry on a worksheet and leaves its box armed; nothing happens for an
/// entry that makes no box. The writes fall on record NextBox - 1, whatever AddBox has left there:
/// a box that is armed already is retyped, with its former text and locks where the command writes
/// none.
void RunBoxCommand(Worksheet& sheet, std::string_view control);

/// A key that the toolbox fires at a worksheet, and the command that it runs. The first row of a
/// key counts.
struct ToolboxKey {
    std::string_view Key;
    std::string_view Control;
};
extern const std::vector<ToolboxKey> toolboxKeys;

/// Runs the command of the key in sheet.cmdEventFire; nothing happens for one that is not in the
/// table.
void cmdEventFire_Click(Worksheet& sheet);

}  // namespace quorvane
