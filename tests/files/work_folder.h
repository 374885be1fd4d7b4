// SPDX-License-Identifier: MIT
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>

namespace quorvane::testing {

/// An empty folder that everybody may use, gone with all that is in it at the end of the scope.
struct WorkFolder {
    std::filesystem::path Path;

    WorkFolder() {
        auto name = (std::filesystem::temp_directory_path() / "quorvane_test_XXXXXX").string();
        if (!mkdtemp(name.data())) throw std::runtime_error("no work folder: " + name);
        Path = std::filesystem::canonical(name);
        std::filesystem::permissions(Path, std::filesystem::perms::all);
    }
    ~WorkFolder() {
        std::error_code error;
        std::filesystem::remove_all(Path, error);
    }
    WorkFolder(const WorkFolder&) = delete;
    WorkFolder& operator=(const WorkFolder&) = delete;

    std::string operator/(const std::string& name) const { return (Path / name).string(); }
};

/// The bytes of a file; "" when it is not there.
inline std::string ReadAll(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteAll(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    if (!file.flush()) throw std::runtime_error("can't write " + path.string());
}

/// The names in a folder, hidden ones too.
inline std::set<std::string> NamesIn(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

}  // namespace quorvane::testing
