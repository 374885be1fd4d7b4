// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// A folder below the one that was read.
struct FolderOfTree {
    std::string Path;                 ///< Without a separator at its end, but for the first one
    std::vector<std::string> MFiles;  ///< By name
    std::vector<std::size_t> Inner;   ///< Its folders, as places in the tree, by name
};

/// Reads the folders below `root`, which ends in a separator and is the first of what comes back,
/// by as many threads as there are cores; the result is the same for any number. Links are not
/// followed, folders that can't be read are empty, and those that `leftOut` names aren't looked
/// into.
std::vector<FolderOfTree> ReadFolderTree(const std::string& root,
                                         bool (*leftOut)(std::string_view path));

/// The M-files in one folder, by name.
std::vector<std::string> MFilesIn(const std::string& path);

}  // namespace quorvane
