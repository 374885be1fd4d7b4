// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "diagram/worksheet.h"

namespace quorvane {

/// The step of the guided tour that the next click on its panel shows. There is one tour for all
/// worksheets: a click in another one goes on where the last one stopped.
extern std::int16_t TourStep;

/// Starts the tour on a worksheet, or ends it there.
void mnuHelpTour_Click(Worksheet& sheet);
/// Shows the text of the step and goes on; behind the last text the panel goes away.
void pnlTour_Click(Worksheet& sheet);

}  // namespace quorvane
