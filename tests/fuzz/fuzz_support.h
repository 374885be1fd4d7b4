// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <iostream>
#include <string>

#include "files/work_folder.h"
#include "shell/application.h"
#include "support/scripted_desktop.h"

namespace quorvane::testing {

inline void Check(bool holds, const std::string& what) {
    if (holds) return;
    std::cerr << "FINDING: " << what << std::endl;
    std::abort();
}

/// FNV-1a. The choices of a run hang on it, so that no byte of the input is spent on them.
inline std::uint32_t HashOf(std::string_view bytes) {
    std::uint32_t hash = 2166136261U;
    for (const char byte : bytes) hash = (hash ^ static_cast<std::uint8_t>(byte)) * 16777619U;
    return hash ^ (hash >> 15);
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
