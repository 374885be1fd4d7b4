// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "diagram/worksheet.h"

namespace quorvane {

/// Compiles the worksheet to the clipboard. A refused or aborted run leaves an empty one.
void mnuExeDDE_Click(Worksheet& sheet);

/// Asks for a file, compiles the worksheet and writes the script to the file. A failing write is
/// silent.
void mnuExeFile_Click(Worksheet& sheet);

/// Makes a script a function of the file's name: the name loses its extension, in the path too, and
/// the script gets its head and end. A path without a folder gets no head.
std::string AddFunctionHeader(std::string& path, const std::string& script);

}  // namespace quorvane
