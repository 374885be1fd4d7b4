// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "diagram/box_table.h"
#include "generator/link_door.h"
#include "platform/runtime_error.h"

namespace quorvane {

/// The state of one run of the generator, apart from the front.
struct Run {
    std::int16_t Mode = 1;      ///< 1 to text, 0 to MATLAB
    std::int16_t Document = 0;  ///< The document whose start boxes begin the walk
    std::string scriptText;     ///< With mode 0 only what is not sent yet
    int stallBox = 0;           ///< The box under suspicion, 0 for none
    int stallCount = 0;         ///< Failed visits since the last success after stallBox was chosen
    int boxesDone = 0;
    bool notesLines = false;  ///< With mode 1 boxOfLine is kept, too
    LineBoxes
        boxOfLine;  ///< The box that wrote each line of scriptText, with mode 0 or where asked
    std::ptrdiff_t linesEnded = 0;  ///< Line ends in the first bytesCounted bytes of scriptText
    std::size_t bytesCounted = 0;
    int plotPrefixSent = 0;  ///< 1 once the first plot has gone to MATLAB
    /// What a failing statement does; some boxes turn it to Ignore for the rest of the run.
    ErrorPolicy Policy = ErrorPolicy::Fatal;
    /// Scratch text that some boxes assemble; a box that assembles none sees the previous
    /// one.
    std::string workText;
};

/// Appends text and a line end to the script.
void WriteLine(Run& run, std::string_view text);

/// A record by number under the run's policy: under Ignore a number outside the table reads as a
/// free record.
const Box& ReadBox(const Run& run, int number);

/// Clears the marks of all boxes, as every way out of a run does.
void ClearMarks();

/// InputsReady under the run's policy; a failing test counts as not ready.
bool Ready(Run& run, int box);

}  // namespace quorvane
