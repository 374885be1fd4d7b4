// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvane {

/// The manual's page, by its anchor, on a dialog, window or panel of this name; "" where it has
/// none.
std::string_view HelpPageOf(std::string_view window);

/// The page on boxes of this type: that of the command that makes them.
std::string_view HelpPageOfType(std::string_view type);

}  // namespace quorvane
