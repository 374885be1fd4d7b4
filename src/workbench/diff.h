// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "workbench/describe.h"

namespace quorvane {

/// What an edited diagram has done to a box. Also the order in which it is told.
enum class Change { Added, Removed, Moved, Changed, Rewired, Recoloured };

struct Difference {
    Change Kind = Change::Added;
    int OldNumber = 0;  ///< Of the box in the old diagram; 0 for one that was added
    int NewNumber = 0;  ///< In the new one; 0 for one that was removed
    std::string Line;   ///< In words
};

struct DiagramDiff {
    std::vector<Difference> Found;
    std::map<int, int> NewNumbers;  ///< Of the boxes that both have, by their old ones
};

/// What it takes to make the new diagram of the old one. A box is the same when it has the same id,
/// else when it has the same type and place, else when it is alike or its neighbours are the same.
/// Numbers make no difference.
DiagramDiff DiffDiagrams(const Description& older, const Description& newer);

}  // namespace quorvane
