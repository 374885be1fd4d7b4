// SPDX-License-Identifier: MIT
#include "shell/recovery.h"

#include <filesystem>

#include "diagram/worksheet.h"
#include "files/document_file.h"
#include "platform/desktop.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace quorvane {

namespace {

/// A name in the folder that no file has yet.
std::string FreeName(const std::string& folder) {
    for (int i = 1;; ++i) {
        auto name = JoinPath(folder, "recovered-" + NumberText(i) + ".qvm");
        std::error_code error;
        if (!std::filesystem::exists(SystemPath(name), error)) return name;
    }
}

}  // namespace

std::vector<std::string> WriteRecoveryFiles() {
    std::vector<std::string> files;
    const auto folder = desktop->DataFolder();
    if (folder.empty()) return files;
    std::error_code error;
    std::filesystem::create_directories(SystemPath(folder), error);
    for (int i = 1; i <= Documents.UpperBound(); ++i) {
        if (!Documents[i] || !DocumentStates[i].Modified) continue;
        // When one diagram can't be saved, for whatever reason, the next one still may be.
        try {
            const auto name = FreeName(folder);
            ReplaceFile(name, DocumentText(static_cast<std::int16_t>(i)) + "\r\n");
            files.push_back(name);
        } catch (const std::exception&) {
            continue;
        }
    }
    return files;
}

}  // namespace quorvane
