// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "generator/compile_document.h"
#include "generator/link_door.h"

namespace quorvane {

/// A box that can't be written, and the first of its feeders that isn't done, 0 for none.
struct WaitingBox {
    int Box = 0;
    int Feeder = 0;
};

/// Outcome of an unattended run.
struct TrialEnd {
    RunEnd End = RunEnd::None;       ///< None after a run-time error
    std::string Script;              ///< As far as it came
    LineBoxes BoxOfLine;             ///< The box that wrote each line of it
    std::vector<std::string> Asked;  ///< What was told or asked on the way
    int Error = 0;                   ///< The run-time error that ended it, 0 for none
    int Depth = 0;  ///< Blocks still open at the end; below 0 when too many were closed
    std::vector<WaitingBox> Waiting;  ///< The front when it asked what to do about a stall
    std::vector<bool> Written;        ///< By number: the box is done
};

/// Walks a document with every question cancelled or aborted, and puts everything back as it was,
/// however the walk ends.
TrialEnd TryCompiling(int document);

}  // namespace quorvane
