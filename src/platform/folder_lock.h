// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace quorvane {

/// Holds a folder against other programs by a lock on the file "lock" in it, which the system drops
/// with the process, however that ends. Programs that this one starts don't inherit it.
class FolderLock {
public:
    FolderLock() = default;
    ~FolderLock() { Release(); }
    FolderLock(FolderLock&& other) noexcept;
    FolderLock& operator=(FolderLock&& other) noexcept;
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// Makes the file if need be, and doesn't wait: false when another program holds the folder, or
    /// when it can't be locked.
    bool Take(const std::string& folder);
    bool IsHeld() const { return file_ != none; }
    void Release();
    /// Lets go of the folder and removes it, unless there is more in it than the lock.
    void Remove();

private:
    static constexpr std::intptr_t none = -1;
    std::intptr_t file_ = none;  ///< What the system calls the open file
    std::string folder_;
};

}  // namespace quorvane
