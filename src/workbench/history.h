// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

namespace quorvane {

struct Snapshot;

/// Undo and redo over everything that changes a diagram. There is one history for the whole
/// program, since the numbers of boxes run over all documents.

/// The oldest steps are forgotten when the history holds more bytes than this.
constexpr std::size_t HistoryBytes = 32U << 20U;

/// Notes a step if the diagrams have changed since the last one. A box counts when it has been
/// placed: while it is armed, the steps are those of the other boxes. Throws nothing.
void NoteStep();

/// What the next undo or redo would do, for the user: "place Sin"; "" for nothing.
std::string UndoName();
std::string RedoName();

/// Take the last step back, and make it anew. The first undo gives up what is pending, if anything
/// is. Nothing happens where there is no step.
void Undo();
void Redo();

/// Gives up the toolbox's button that no worksheet has taken yet, and an armed box, a pending
/// arrow, a waiting move or copy; false when nothing is pending.
bool GiveUp();

/// Grows with each step that is noted, taken back or made anew.
int HistoryChanges();

/// The last state that a step has led to. An armed box is no part of it.
const Snapshot& PresentSnapshot();

/// Forgets all steps: the history begins with the present state.
void BeginHistory();

void ResetHistory();

}  // namespace quorvane
