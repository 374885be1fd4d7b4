// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace quorvane {

/// A box that can't be written, and the first of its feeders that isn't done, 0 for none.
struct WaitingBox {
    int Box = 0;
    int Feeder = 0;
};

/// Outcome of an unattended run.
struct TrialEnd {
    bool Done = false;  ///< It came to its end
    int Error = 0;      ///< The run-time error that ended it, 0 for none
    int Depth = 0;      ///< Blocks still open at the end; below 0 when too many were closed
    std::vector<WaitingBox> Waiting;  ///< The front when it asked what to do about a stall
    std::vector<bool> Written;        ///< By number: the box is done
};

/// Walks a document with every question cancelled or aborted, and puts everything back as it was,
/// however the walk ends.
TrialEnd TryCompiling(int document);

}  // namespace quorvane
