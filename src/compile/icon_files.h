// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace quorvane {

/// The SVG file of a cell of the icon strip; "" for a cell without one. The build makes these texts
/// from resources/icons.
std::string IconFile(int cell);

}  // namespace quorvane
