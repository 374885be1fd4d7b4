// SPDX-License-Identifier: MIT
#include "platform/paths.h"

#include <filesystem>

#include "platform/runtime_error.h"

namespace quorvane {

std::string_view FileNameOf(std::string_view path) {
    const auto at = path.find_last_of("/\\");
    return at == std::string_view::npos ? path : path.substr(at + 1);
}

std::string_view FolderOf(std::string_view path) {
    const auto at = path.find_last_of("/\\");
    return at == std::string_view::npos ? std::string_view() : path.substr(0, at);
}

std::string JoinPath(std::string_view folder, std::string_view name) {
#ifdef _WIN32
    constexpr char separator = '\\';
#else
    constexpr char separator = '/';
#endif
    std::string path(folder);
    path += separator;
    path += name;
    return path;
}

std::string CurrentDirectory() {
    std::error_code error;
    const auto path = std::filesystem::current_path(error);
    if (error) throw RuntimeError(76);
    return path.string();
}

void ChangeDirectory(const std::string& path) {
    std::error_code error;
    std::filesystem::current_path(path, error);
    if (error) throw RuntimeError(76);
}

}  // namespace quorvane
