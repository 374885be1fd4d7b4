// SPDX-License-Identifier: MIT
#include "matlab_link/mfile_index.h"

#include <algorithm>
#include <string_view>

#include "diagram/preferences.h"
#include "matlab_link/folder_tree.h"
#include "platform/desktop.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

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
bool IsKernelTree(std::string_view path) {
    constexpr std::string_view trees[] = {"/proc", "/sys", "/dev", "/run"};
    return std::find(std::begin(trees), std::end(trees), path) != std::end(trees);
}

void AppendTree(std::vector<FolderOfTree>& tree, std::size_t at) {
    for (const auto inner : tree[at].Inner) {
        DirectoryList.Append({tree[inner].Path, std::move(tree[inner].MFiles)});
        AppendTree(tree, inner);
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
    auto tree = ReadFolderTree(path, IsKernelTree);
    AppendTree(tree, 0);
}

void WriteMFileIndex() {
    CategoryTable = GrowableArray<CategoryRecord>(1);
    DirectoryList[1].MFiles = MFilesIn(".");
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
