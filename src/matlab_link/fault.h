// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "generator/link_door.h"

namespace quorvane {

/// Why a script failed.
struct Fault {
    std::int16_t Box = 0;  ///< Whose line it is, 0 when no box wrote it
    bool Refused = false;  ///< The script can't be parsed, so that nothing of it ran
    std::string Message;   ///< As the engine puts it, its lines counted in the box
    std::string Told;      ///< The message for the log; of several boxes it names the one at fault
};

/// Reads what the engine tells of a fault: the line of the script, from 1, or 0 where it isn't
/// known, ":" and the message. `lines` holds the box that wrote each line of the script.
Fault ReadFault(const std::string& told, const LineBoxes& lines);

}  // namespace quorvane
