// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// The argument that makes the program open what it finds for recovery without asking.
constexpr const char* OpenAgain = "--open-again";

/// From here on recovery files are written: a second after a change, at once when the desktop
/// session ends or a signal ends the program.
void StartRecoveryWatch();

/// Sees to it that what is due is written in a second. Dispatch calls it after each event.
void WatchRecovery();

}  // namespace quorvane
