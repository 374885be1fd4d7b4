// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvane {

/// Opens the browser of MATLAB commands for one of the two dialogs that take a command from it:
/// "mat" for frmMatlabFunction, "func" for frmFunc. It loads with the hourglass as pointer, shows
/// itself modally and leaves its choice in the dialog's txtFunc. The program sets it to the browser
/// when it starts; until then it does nothing.
extern void (*OpenCommandBrowser)(std::string_view caller);

}  // namespace quorvane
