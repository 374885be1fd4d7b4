// SPDX-License-Identifier: MIT
#include "platform/paths.h"

#include "platform/numbers.h"
#include "platform/runtime_error.h"

#ifdef _WIN32
#include <windows.h>
#endif

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

#ifdef _WIN32
std::filesystem::path SystemPath(const std::string& name) {
    const auto length = static_cast<int>(name.size());
    std::wstring wide(name.size(), L'\0');
    const int filled = MultiByteToWideChar(CP_UTF8, 0, name.data(), length, wide.data(), length);
    wide.resize(static_cast<std::size_t>(filled));
    return wide;
}
#else
std::filesystem::path SystemPath(const std::string& name) { return name; }
#endif

std::string FindFile(const std::string& path) {
    namespace fs = std::filesystem;
    std::error_code error;
    if (fs::exists(SystemPath(path), error)) return path;
    const auto name = FileNameOf(path);
    const auto folder = path.substr(0, path.size() - name.size());
    const auto wanted = LowerCase(name);
    std::string best;
    fs::directory_iterator at(SystemPath(folder.empty() ? "." : folder), error);
    for (; !error && at != fs::directory_iterator(); at.increment(error)) {
        const auto found = at->path().filename().string();
        if (LowerCase(found) == wanted && (best.empty() || found < best)) best = found;
    }
    return best.empty() ? path : folder + best;
}

std::string FindInFolder(std::string_view folder, std::string_view name) {
    return FindFile(JoinPath(folder, name));
}

int FileAttributes(const std::string& path) {
    constexpr int archive = 32;
    std::error_code error;
    if (!std::filesystem::is_regular_file(SystemPath(FindFile(path)), error))
        throw RuntimeError(53);
    return archive;
}

std::string CurrentDirectory() {
    std::error_code error;
    const auto path = std::filesystem::current_path(error);
    if (error) throw RuntimeError(76);
    return path.string();
}

void ChangeDirectory(const std::string& path) {
    std::error_code error;
    std::filesystem::current_path(SystemPath(path), error);
    if (error) throw RuntimeError(76);
}

}  // namespace quorvane
