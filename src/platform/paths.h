// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quorvane {

/// The part after the last "/" or "\"; both are separators wherever the program splits a path.
std::string_view FileNameOf(std::string_view path);
/// The folder before the last "/" or "\", without it; "" where the path has none.
std::string_view FolderOf(std::string_view path);
/// Joins with the separator of this platform.
std::string JoinPath(std::string_view folder, std::string_view name);

/// A name in the form that the system takes. Ours are UTF-8 on Windows, where the standard library
/// would read them as something else, and bytes elsewhere.
std::filesystem::path SystemPath(const std::string& name);

/// The path of an existing file. Where there is none with the very name, one whose name differs in
/// the case of its letters counts; where there is none at all, `path` comes back as it is.
std::string FindFile(const std::string& path);
/// The same for a name in a folder.
std::string FindInFolder(std::string_view folder, std::string_view name);
/// 32 for a regular file, found as FindFile does; error 53 for anything else and for none.
int FileAttributes(const std::string& path);

/// The process's current folder; error 76 when it is gone.
std::string CurrentDirectory();
/// Error 76 when there is no such folder.
void ChangeDirectory(const std::string& path);

}  // namespace quorvane
