// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

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
/// The number of entries of a row that makes no box: a submenu or a separator.
constexpr int NoBox = -1;

/// An entry of the menu "Functions". Most of them make a box, and their row is all that there is to
/// know about it: where it stands in the menu, what the new record holds, its picture, its dialog,
/// the keys by which the toolbox calls it, its page in the manual and, for a plain type, its
/// script.
struct BoxCommand {
    int Depth;                           ///< In the menu: 1 for an entry of "Functions" itself
    std::string_view Control;            ///< The entry's name
    std::string_view Caption;            ///< "-" for a separator
    std::string_view BoxType = "";       ///< "" when the dialog decides
    const char* BoxText = nullptr;       ///< nullptr when it is not written, or by the dialog
    int Entries = NoBox;                 ///< How many stay open, the first ones
    int Exits = 0;                       ///< How many stay open, the first ones
    IconSource Icon = IconSource::Type;  ///< Where the key of its picture comes from
    int Cell = 0;                        ///< Picture of its toolbox keys and its type; 0 for none
    std::string_view Dialog = "";        ///< Form that it opens, "input box" for a prompt
    /// The keys by which the toolbox runs it, "" for none.
    std::array<std::string_view, 2> ToolboxKeys = {};
    std::string_view Page = "";  ///< The manual's page, by its anchor
    /// What the box writes once its feeders are done, with the holes of the emission chain; "" for
    /// a type that the chain knows.
    std::string_view Line = "";
};

/// The entries of the menu below "Multiple Arrows", in order.
extern const std::span<const BoxCommand> boxCommands;

inline bool MakesBox(const BoxCommand& row) { return row.Entries != NoBox; }

/// The command of a menu entry that makes a box, nullptr for any other name.
const BoxCommand* FindBoxCommand(std::string_view control);

/// The command that opens this dialog, nullptr when none does.
const BoxCommand* FindCommandOfDialog(std::string_view dialog);

/// A menu's caption without the mark of its letter and the dots that announce a dialog.
std::string PlainCaption(std::string_view caption);

/// The menu entry that a key of the toolbox stands for, "" for a key that is none.
std::string_view ToolboxCommand(std::string_view key);

/// The picture of a command's type or toolbox key, 0 for any other key.
int CommandCell(std::string_view key);

}  // namespace quorvane
