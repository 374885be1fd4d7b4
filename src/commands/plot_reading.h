// SPDX-License-Identifier: MIT
#pragma once

#include "diagram/box_table.h"

namespace quorvane {

/// Fills the loaded dialog of a plot so that its OK would compose the text of this box again. What
/// the dialog can't compose leaves it with its defaults.
void ShowPlot(const Box& former);

}  // namespace quorvane
