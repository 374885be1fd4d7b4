// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "compile/console_desktop.h"

namespace quorvane {

/// Loads the diagram at `path`, or from standard input for "-", as document 1 of a program that has
/// no other. The loader's messages don't show. When it can't be compiled, one line says why.
bool LoadDiagram(ConsoleDesktop& console, const std::string& path, std::string& why);

}  // namespace quorvane
