// SPDX-License-Identifier: MIT
#pragma once

#include <iostream>
#include <string>

#include "files/work_folder.h"
#include "shell/application.h"
#include "support/scripted_desktop.h"
#include "support/table_file.h"

namespace quorvane::testing {

inline void Check(bool holds, const std::string& what) {
    if (holds) return;
    std::cerr << "FINDING: " << what << std::endl;
    std::abort();
}

/// A folder for the files of all runs, in memory where there is such a thing: a save waits for the
/// disk.
inline const WorkFolder& FuzzFolder() {
    if (std::filesystem::is_directory("/dev/shm")) setenv("TMPDIR", "/dev/shm", 0);
    static const WorkFolder folder;
    return folder;
}

/// Gives an input to a check: its bytes, and the path of a file that holds them.
template <class Input>
int RunInput(const char* name, const std::uint8_t* data, std::size_t size, Input input) {
    const std::string bytes(data, data + size);
    const auto path = FuzzFolder() / name;
    WriteAll(path, bytes);
    ResetApplication();
    input(bytes, path);
    ResetApplication();
    desktop = nullptr;
    return 0;
}

}  // namespace quorvane::testing
