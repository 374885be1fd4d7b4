// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "diagram/worksheet.h"

namespace quorvane {

/// Runs the command of a menu entry on a worksheet and leaves its box armed; nothing happens for an
/// entry that makes no box. The writes fall on record NextBox - 1, whatever AddBox has left there:
/// a box that is armed already is retyped, with its former text and locks where the command writes
/// none.
void RunBoxCommand(Worksheet& sheet, std::string_view control);

/// Runs the command of the key in sheet.cmdEventFire; nothing happens for one that is no key of the
/// toolbox.
void cmdEventFire_Click(Worksheet& sheet);

}  // namespace quorvane
