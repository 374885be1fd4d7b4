// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace quorvane {

/// Saves every open document that has changes as a diagram file in the per-user data folder and
/// returns the files' names. What can't be written is left out; nothing is thrown.
std::vector<std::string> WriteRecoveryFiles();

}  // namespace quorvane
