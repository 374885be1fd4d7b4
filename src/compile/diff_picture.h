// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>

#include "diagram/box_table.h"
#include "workbench/diff.h"

namespace quorvane {

/// Puts the boxes that were removed back into document 1, which holds the new diagram, as far as
/// there is room, with their arrows where the slots at both ends are free. Gives back the colours
/// by box: added ones are green, removed ones red, changed ones blue.
std::map<int, std::int32_t> TintDifferences(const CheckedArray<Box, 0, MaxBoxes>& older,
                                            const DiagramDiff& diff);

}  // namespace quorvane
