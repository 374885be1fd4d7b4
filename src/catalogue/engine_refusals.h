// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvane {

/// What GNU Octave says to the line of an option, by its dialog and the option's name: that it is
/// no line of its language, or that a function isn't there. "" for an option whose line it runs.
std::string_view EngineRefusal(std::string_view dialog, std::string_view option);

}  // namespace quorvane
