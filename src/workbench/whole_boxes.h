// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// A diagram file as far as it can be trusted.
struct WholeBoxes {
    std::string File;                ///< A file of its whole boxes, which the loader takes
    std::vector<std::string> Texts;  ///< Of each box, also what stands behind a "~" in it
    bool IsIntact = false;           ///< That is the very file that was read

    int Count() const { return static_cast<int>(Texts.size()); }
};

/// Reads the boxes up to the first one that is not whole. Arrows to boxes that are lost are taken
/// off.
WholeBoxes ReadWholeBoxes(std::string_view bytes);

}  // namespace quorvane
