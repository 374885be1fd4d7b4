// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace quorvane {

/// Writes a text to the file at `path`, or to standard output for "". False when it can't.
bool WriteOutput(const std::string& path, const std::string& text);

/// One line on standard error that says what can't be done. Gives back the exit code 2.
int Refuse(const std::string& what);

}  // namespace quorvane
