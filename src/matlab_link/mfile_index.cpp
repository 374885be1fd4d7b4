// SPDX-License-Identifier: MIT
#include "matlab_link/mfile_index.h"

#include <algorithm>
#include <string_view>

#include "diagram/preferences.h"
#include "platform/desktop.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

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

std::vector<DriveRoot> SystemDrives() {
#ifdef _WIN32
    std::vector<DriveRoot> drives;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        drives.push_back({letter, std::string(1, letter) + ":\\"});
    }
    return drives;
#else
    return {{'C', "/"}};
#endif
}

}  // namespace

GrowableArray<FoundDirectory> DirectoryList(1);
GrowableArray<CategoryRecord> CategoryTable(1);
GrowableArray<std::string> FileList(1);
std::vector<DriveRoot> DriveRoots = SystemDrives();
ScanningForm frmScanning;

namespace {

/// The kernel's own trees: they hold no M-files and have no end.
constexpr std::string_view kernelTrees[] = {"/proc", "/sys", "/dev", "/run"};

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
    alignas(dirent64) static char buffer[65536];
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
    for (fs::directory_iterator at(path, error); !error && at != fs::directory_iterator();
         at.increment(error)) {
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

/// `path` ends in a separator; it is the same text all the way down, and comes back as it was.
void ScanFolders(std::string& path, const std::vector<std::string>& folders) {
    const auto length = path.size();
    for (const auto& name : folders) {
        path += name;
        if (std::find(std::begin(kernelTrees), std::end(kernelTrees), path) ==
            std::end(kernelTrees)) {
            DirectoryList.Append({path, {}});
            path = JoinPath(path, "");
            auto contents = ReadFolder(path);
            DirectoryList[DirectoryList.UpperBound()].MFiles = std::move(contents.MFiles);
            ScanFolders(path, contents.Folders);
        }
        path.resize(length);
    }
}

void ShowProgress(const std::string& text) {
    frmScanning.lblScanning.Caption = text;
    desktop->PaintNow();
}

void AddLine(std::string& index, std::string_view line) { index.append(line).append("\r\n"); }

void AddFiles(std::string& index, const std::string& path, const std::vector<std::string>& names) {
    for (const auto& name : names) AddLine(index, JoinPath(path, name));
}

/// The elements without a path are listed with the files of the last folder, since that is where
/// the walk through the folders ends.
void AddAllFiles(std::string& index) {
    const auto& last = DirectoryList[DirectoryList.UpperBound()].MFiles;
    AddFiles(index, "", last);
    if (!DirectoryList[1].MFiles.empty()) AddFiles(index, "", last);
    for (int i = 2; i <= DirectoryList.UpperBound(); ++i) {
        AddFiles(index, DirectoryList[i].Path, DirectoryList[i].MFiles);
    }
}

void ReturnToProgramDirectory() {
    Attempt([] { ChangeDirectory(ProgramDirectory); });
}

}  // namespace

void ResetMFileIndex() {
    DirectoryList = GrowableArray<FoundDirectory>(1);
    CategoryTable = GrowableArray<CategoryRecord>(1);
    FileList = GrowableArray<std::string>(1);
    DriveRoots = SystemDrives();
}

void ScanDirectory(const std::string& path) {
    auto below = path;
    ScanFolders(below, ReadFolder(path).Folders);
}

void WriteMFileIndex() {
    CategoryTable = GrowableArray<CategoryRecord>(1);
    DirectoryList[1].MFiles = ReadFolder(".").MFiles;
    ShowProgress("Now writing directories.");
    std::string index;
    AddLine(index, "[Directories]");
    for (int i = 1; i <= DirectoryList.UpperBound(); ++i) {
        const auto& [path, files] = DirectoryList[i];
        if (files.empty()) continue;
        const std::string name(FileNameOf(path));
        AddLine(index, std::string(name).append(";").append(path));
        CategoryTable.Append({name, path});
    }
    ShowProgress("Now writing file names.");
    AddLine(index, "[Files]");
    AddAllFiles(index);
    Attempt([&] { ReplaceFile(MFileIndex, index); });
}

void frmScanning_Activate() {
    auto& caption = frmScanning.lblScanning.Caption;
    for (const char drive : frmPrefs.txtDrives.Text) {
        const auto letter = UpperCase(std::string_view(&drive, 1));
        ShowProgress(caption.substr(0, caption.size() - 2) + letter + ":");
        for (const auto& root : DriveRoots) {
            if (letter[0] == root.Letter) ScanDirectory(root.Path);
        }
    }
    ReturnToProgramDirectory();
    WriteMFileIndex();
    ReturnToProgramDirectory();
    frmScanning = {};
}

Form frmScanning_Table() {
    return {.Name = "frmScanning",
            .State = &frmScanning.Form,
            .Controls = {{"lblScanning", &frmScanning.lblScanning}},
            .Activated = frmScanning_Activate};
}

}  // namespace quorvane
