// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace quorvane {

/// The path of a program beside this one, whether it is there or not; "" on a system where this
/// program can't start others yet, which is Windows.
std::string ProgramBeside(const std::string& name);

/// Runs a program with this text as standard input. Gives its exit code, -1 when it couldn't be
/// started or was killed.
int RunProgram(std::vector<std::string> command, const std::string& input);

}  // namespace quorvane
