// SPDX-License-Identifier: MIT
#pragma once

#include "diagram/worksheet.h"

namespace quorvane {

/// Closes a document: asks to save its changes, deletes its boxes from the table and removes its
/// window. False when the user cancels: the window then stays, but its number counts as free.
/// Error 9 or 91 for a document without a window.
bool CloseDocument(int document);

/// The worksheet may be gone afterwards.
void mnuFileClose_Click(Worksheet& sheet);

}  // namespace quorvane
