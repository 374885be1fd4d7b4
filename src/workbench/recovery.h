// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace quorvane {

/// Recovery files: while a worksheet differs from what is stored of it, a copy stands as an
/// ordinary diagram file in a folder of this running program, below "recovery" in the user's folder
/// for state. The folder is locked as long as the program runs. "3.qvm" is a copy, "3.name" holds
/// the worksheet's caption.

/// Takes the texts of the worksheets that have changed; the next write writes them. The files of
/// those that were stored or closed are removed at once. A worksheet that was closed after the
/// system had refused to save it keeps its file. An armed box is no part of a copy.
void NoteRecovery();

/// True while a write has something to do.
bool RecoveryIsDue();

/// Writes what was taken, at any time, also while a handler runs. False when not all of it could be
/// written: it is due again then. Throws nothing.
bool WriteRecovery();

/// True when the copy of this worksheet stands on disk as it was taken last.
bool HasRecoveryFile(int document);

/// The folder that holds those of all running programs; "" when the system names none.
std::string RecoveryRoot();

/// What to tell the user as long as it is so, "" for nothing: recovery files can't be written; the
/// system refused to save worksheets that are open.
std::string RecoveryProblem();
std::string SaveProblem();

/// Writes what is due and lets go of the folder, which is gone when it has no copies.
void EndRecovery();

/// Forgets the folder and leaves it as it is.
void ResetRecovery();

}  // namespace quorvane
