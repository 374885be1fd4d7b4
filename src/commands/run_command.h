// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "catalogue/box_commands.h"
#include "diagram/box_table.h"
#include "diagram/worksheet.h"

namespace quorvane {

/// Runs the command of a menu entry on a worksheet and leaves its box armed; nothing happens for an
/// entry that makes no box. The writes fall on record NextBox - 1, whatever AddBox has left there:
/// a box that is armed already is retyped, with its former text and locks where the command writes
/// none.
void RunBoxCommand(Worksheet& sheet, std::string_view control);

/// The two halves of a command, for a new box and for one that is changed: then `former` is what it
/// was, and the dialog is filled from it. TypeForBox asks for the type, where the command does.
/// CompleteBox writes the record and runs the dialog; it returns the icon key, "" when no option
/// was picked.
std::string TypeForBox(const BoxCommand& command, const Box* former);
std::string CompleteBox(const Worksheet& sheet, const BoxCommand& command, int number,
                        const std::string& type, const Box* former);

/// Runs the command of the key in sheet.cmdEventFire; nothing happens for one that is no key of the
/// toolbox.
void cmdEventFire_Click(Worksheet& sheet);

}  // namespace quorvane
