// SPDX-License-Identifier: MIT
#pragma once

#include "compile/console_desktop.h"
#include "compile/options.h"

namespace quorvane {

/// Looks at the diagrams as the options ask, one after the other, and compiles none. One that can't
/// be read doesn't keep the others from it. Gives back the exit code.
int Review(ConsoleDesktop& console, const Options& options);

}  // namespace quorvane
