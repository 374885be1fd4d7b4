// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "check/check_document.h"
#include "workbench/describe.h"

namespace quorvane {

/// The findings in the diagram of this file.
struct FileFindings {
    std::string File;
    std::vector<Finding> Findings;
};

/// All findings as one JSON list, on a line. Bytes that aren't UTF-8 become U+FFFD.
std::string FindingsJson(const std::vector<FileFindings>& files);

/// A described diagram as one JSON object, on a line. A slot is the id of the box at its far end,
/// null when it is open, false when it is locked.
std::string DescriptionJson(const std::string& file, const Description& boxes);

}  // namespace quorvane
