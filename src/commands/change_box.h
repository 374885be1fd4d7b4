// SPDX-License-Identifier: MIT
#pragma once

#include "diagram/worksheet.h"

namespace quorvane {

/// Opens the dialog by which box `number` of this worksheet was made, filled from its record as far
/// as its text can be read back. Its OK gives the box another type, text and picture: number,
/// place and colours stay, and so do the arrows on slots that stay open; an arrow on a slot that is
/// locked now is taken off at both ends. What was left as it stood changes nothing. False for a box
/// without a dialog.
bool ChangeBox(Worksheet& sheet, int number);

}  // namespace quorvane
