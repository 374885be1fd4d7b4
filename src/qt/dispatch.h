// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace quorvane {

/// Runs one handler and shows the records afterwards. Every event of the screen comes through here.
/// Whatever the handler lets out is told as a run-time error, 7 or 51 where it is none, to the user
/// and ends the program.
void Dispatch(const std::function<void()>& handler);

/// Shows the records on every window; the frame sets it.
extern std::function<void()> RefreshScreen;

}  // namespace quorvane
