// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "generator/row_text.h"
#include "generator/run.h"

namespace quorvane {

/// When a box of the row may be written: None at once, Inputs when its feeders are done.
enum class Gate { None, Inputs };

/// Which boxes of a row a piece is for: all, those of the named types, those of other types, or
/// those whose lower-cased text is named.
enum class For { All, Types, OtherTypes, Texts };

/// A part of a line that only some boxes get.
struct Piece {
    /// Digits of the entries that must hold an arrow for the piece to be written, "" for none.
    std::string_view Wired;
    RowText Text;
    For Whom = For::All;
    std::vector<std::string_view> Names = {};
};

/// True when a piece is for this box, by its type or text.
bool IsFor(const Piece& piece, const Box& box);

/// A row of the chain: the types it writes and how. A row without a writer writes Head, the pieces
/// that apply and Close, and a line end.
struct EmissionRow {
    std::vector<std::string_view> Keys;
    Gate Opens = Gate::None;
    RowText Head = "";
    std::vector<Piece> Pieces = {};
    RowText Close = "";
    /// Writes the box, which the walk has met in slot `slot`, in place of the texts; false leaves
    /// it unmarked.
    bool (*Write)(Run& run, int box, int slot) = nullptr;
    /// Knows the types of a row that can't list them.
    bool (*Knows)(std::string_view type) = nullptr;
};

/// All rows in the order in which they are searched; the first that knows the type is taken.
extern const std::vector<EmissionRow> emissionChain;

/// The row of a type, nullptr when none knows it.
const EmissionRow* FindEmissionRow(std::string_view type);

/// Writes one box by the row of its type, if there is one and the box is ready, and marks it as
/// done.
void EmitBox(Run& run, int box, int slot);

}  // namespace quorvane
