// SPDX-License-Identifier: MIT
#include "platform/folder_lock.h"

#include <filesystem>
#include <utility>

#include "platform/paths.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quorvane {

namespace {

std::string LockFile(const std::string& folder) { return JoinPath(folder, "lock"); }

#ifdef _WIN32

/// Nobody else can open the file until it is closed.
std::intptr_t OpenLocked(const std::string& path) {
    return reinterpret_cast<std::intptr_t>(CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                                                       0, nullptr, OPEN_ALWAYS,
                                                       FILE_ATTRIBUTE_NORMAL, nullptr));
}

void Close(std::intptr_t file) { CloseHandle(reinterpret_cast<HANDLE>(file)); }

#else

/// Whoever held it may have removed the file between our opening and our locking it.
bool IsStillThere(int file, const std::string& path) {
    struct stat opened {
    }, there{};
    return fstat(file, &opened) == 0 && stat(path.c_str(), &there) == 0 &&
           opened.st_ino == there.st_ino && opened.st_dev == there.st_dev;
}

std::intptr_t OpenLocked(const std::string& path) {
    constexpr int forUser = 0600;
    const int file = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, forUser);
    if (file < 0) return -1;
    if (flock(file, LOCK_EX | LOCK_NB) == 0 && IsStillThere(file, path)) return file;
    close(file);
    return -1;
}

void Close(std::intptr_t file) { close(static_cast<int>(file)); }

#endif

}  // namespace

FolderLock::FolderLock(FolderLock&& other) noexcept
    : file_(std::exchange(other.file_, none)), folder_(std::move(other.folder_)) {}

FolderLock& FolderLock::operator=(FolderLock&& other) noexcept {
    std::swap(file_, other.file_);
    std::swap(folder_, other.folder_);
    return *this;
}

bool FolderLock::Take(const std::string& folder) {
    Release();
    folder_ = folder;
    file_ = OpenLocked(LockFile(folder));
    return IsHeld();
}

void FolderLock::Release() {
    if (IsHeld()) Close(std::exchange(file_, none));
}

void FolderLock::Remove() {
    if (!IsHeld()) return;
    std::error_code error;
    for (std::filesystem::directory_iterator at(SystemPath(folder_), error), end;
         !error && at != end; at.increment(error)) {
        if (at->path().filename() != "lock") return Release();
    }
#ifdef _WIN32
    Release();  // A file that is open can't be removed here.
#endif
    std::filesystem::remove(SystemPath(LockFile(folder_)), error);
    Release();
    std::filesystem::remove(SystemPath(folder_), error);
}

}  // namespace quorvane
