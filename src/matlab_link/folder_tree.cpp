// SPDX-License-Identifier: MIT
#include "matlab_link/folder_tree.h"

#include <algorithm>
#include <atomic>
#include <thread>

#include "platform/paths.h"

#ifdef __linux__
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <filesystem>
#endif

namespace quorvane {

namespace {

struct FolderContents {
    std::vector<std::string> Folders;
    std::vector<std::string> MFiles;
};

/// What an entry may be, judged by its name. A line of the index can't hold a line end.
enum class NameKind { Other, Folder, MFile };

NameKind KindOfName(std::string_view name) {
    const auto dot = name.rfind('.');
    const bool isFolder = dot == std::string_view::npos;
    const bool isMFile = !isFolder && dot + 2 == name.size() && (name.back() | 0x20) == 'm';
    if (!isFolder && !isMFile) return NameKind::Other;
    if (name.find_first_of("\r\n") != std::string_view::npos) return NameKind::Other;
    return isFolder ? NameKind::Folder : NameKind::MFile;
}

#ifdef __linux__

bool HasMode(int folder, const dirent64& entry, mode_t wanted, int flags) {
    struct stat status {};
    return fstatat(folder, entry.d_name, &status, flags) == 0 &&
           (status.st_mode & S_IFMT) == wanted;
}

bool IsFolder(int folder, const dirent64& entry) {
    if (entry.d_type != DT_UNKNOWN) return entry.d_type == DT_DIR;
    return HasMode(folder, entry, S_IFDIR, AT_SYMLINK_NOFOLLOW);
}

bool IsFile(int folder, const dirent64& entry) {
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK) return entry.d_type == DT_REG;
    return HasMode(folder, entry, S_IFREG, 0);
}

void Keep(FolderContents& contents, int folder, const dirent64& entry) {
    const auto kind = KindOfName(entry.d_name);
    if (kind == NameKind::Folder && IsFolder(folder, entry)) {
        contents.Folders.emplace_back(entry.d_name);
    } else if (kind == NameKind::MFile && IsFile(folder, entry)) {
        contents.MFiles.emplace_back(entry.d_name);
    }
}

/// Reads many entries with one system call: a scan spends most of its time here.
void ReadEntries(const std::string& path, FolderContents& contents) {
    alignas(dirent64) thread_local char buffer[65536];
    const int folder = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (folder < 0) return;
    while (true) {
        const auto filled = getdents64(folder, buffer, sizeof buffer);
        if (filled <= 0) break;
        for (const char* at = buffer; at < buffer + filled;) {
            const auto& entry = *reinterpret_cast<const dirent64*>(at);
            Keep(contents, folder, entry);
            at += entry.d_reclen;
        }
    }
    close(folder);
}

#else

void ReadEntries(const std::string& path, FolderContents& contents) {
    namespace fs = std::filesystem;
    std::error_code error;
    for (fs::directory_iterator at(SystemPath(path), error);
         !error && at != fs::directory_iterator(); at.increment(error)) {
        std::error_code none;
        auto name = at->path().filename().string();
        const auto kind = KindOfName(name);
        if (kind == NameKind::Folder &&
            at->symlink_status(none).type() == fs::file_type::directory) {
            contents.Folders.push_back(std::move(name));
        } else if (kind == NameKind::MFile && at->is_regular_file(none)) {
            contents.MFiles.push_back(std::move(name));
        }
    }
}

#endif

FolderContents ReadFolder(const std::string& path) {
    FolderContents contents;
    ReadEntries(path, contents);
    std::sort(contents.Folders.begin(), contents.Folders.end());
    std::sort(contents.MFiles.begin(), contents.MFiles.end());
    return contents;
}

/// Fewer folders than these are read sooner than a thread is started.
constexpr std::size_t WorthAThread = 64;

/// Calls `work` for each number from `begin` to `end`, on all cores.
template <class Work>
void ForAll(std::size_t begin, std::size_t end, const Work& work) {
    std::atomic<std::size_t> next = begin;
    const auto run = [&] {
        for (auto at = next++; at < end; at = next++) work(at);
    };
    std::vector<std::thread> threads;
    const auto cores =
        std::min<std::size_t>(std::thread::hardware_concurrency(), (end - begin) / WorthAThread);
    for (std::size_t i = 1; i < cores; ++i) threads.emplace_back(run);
    run();
    for (auto& thread : threads) thread.join();
}

}  // namespace

std::vector<std::string> MFilesIn(const std::string& path) { return ReadFolder(path).MFiles; }

/// Level by level: what lies in the folders of one level is the next.
std::vector<FolderOfTree> ReadFolderTree(const std::string& root,
                                         bool (*leftOut)(std::string_view path)) {
    std::vector<FolderOfTree> tree;
    tree.push_back({root, {}, {}});
    const auto baseOf = [&](std::size_t at) {
        return at == 0 ? root : JoinPath(tree[at].Path, "");
    };
    for (std::size_t begin = 0; begin < tree.size();) {
        const auto end = tree.size();
        std::vector<std::vector<std::string>> inner(end - begin);
        ForAll(begin, end, [&](std::size_t at) {
            auto contents = ReadFolder(baseOf(at));
            tree[at].MFiles = std::move(contents.MFiles);
            inner[at - begin] = std::move(contents.Folders);
        });
        for (auto at = begin; at < end; ++at) {
            const auto base = baseOf(at);
            for (const auto& name : inner[at - begin]) {
                auto path = base + name;
                if (leftOut(path)) continue;
                tree[at].Inner.push_back(tree.size());
                tree.push_back({std::move(path), {}, {}});
            }
        }
        begin = end;
    }
    return tree;
}

}  // namespace quorvane
