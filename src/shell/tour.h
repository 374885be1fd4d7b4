// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "diagram/worksheet.h"

namespace quorvane {

/// The step of the guided tour that the next click on its panel shows. There is one tour for all
/// worksheets: a click in another one continues where the last one stopped.
extern std::int16_t TourStep;

/// Starts the tour on a worksheet, or ends it there.
void mnuHelpTour_Click(Worksheet& sheet);
/// Shows the text of the step and advances; after the last text the panel disappears.
void pnlTour_Click(Worksheet& sheet);

/// Which of the texts a panel shows, "3 of 10"; "" for the welcome before them.
std::string TourCount(const TourPanel& panel);

}  // namespace quorvane
