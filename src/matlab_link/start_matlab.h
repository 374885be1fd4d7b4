// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// Asks where MATLAB is and starts it from there. A failing step is reported and the next one runs:
/// a folder without the program gets two messages. The current directory is that of the program
/// afterwards.
void mnuFileStartMatlab_Click();

}  // namespace quorvane
