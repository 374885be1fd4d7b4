// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace quorvane {

/// Runs one handler and shows the records afterwards. Every event of the screen comes through here.
/// A run-time error that the handler lets out is told to the user and ends the program.
void Dispatch(const std::function<void()>& handler);

/// Shows the records on every window; the frame sets it.
extern std::function<void()> RefreshScreen;

}  // namespace quorvane
