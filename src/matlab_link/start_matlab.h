// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// Asks where MATLAB is and starts it from there. A failing step is reported and the next one runs,
/// so a folder without the program gives two messages. Afterwards the current directory is the
/// program directory.
void mnuFileStartMatlab_Click();

}  // namespace quorvane
