// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/checked_array.h"
#include "platform/controls.h"
#include "platform/form.h"

namespace quorvane {

/// The M-files on the drives. A scan walks the drives and leaves what it found in the index, the
/// file MFileIndex of the program directory, which later runs read instead. A folder with a dot in
/// its name is left out with everything below it; links to folders are not followed.

constexpr const char* MFileIndex = "mfiles.txt";

struct FoundDirectory {
    std::string Path;  ///< Whole, without a separator at its end
    std::vector<std::string> MFiles;
};
/// The folders that the scan found. Elements 0 and 1 are empty, a drive's root is never in it.
extern GrowableArray<FoundDirectory> DirectoryList;

struct CategoryRecord {
    std::string name;  ///< The last part of the path
    std::string path;
};
/// The folders that hold M-files. Elements 0 and 1 are empty.
extern GrowableArray<CategoryRecord> CategoryTable;

/// The path of each M-file, as read from the index. Elements 0 and 1 are empty.
extern GrowableArray<std::string> FileList;

struct DriveRoot {
    char Letter;       ///< A capital
    std::string Path;  ///< With a separator at its end
};
/// What the letters of the drives stand for: on Windows each its drive, elsewhere C stands for "/".
extern std::vector<DriveRoot> DriveRoots;

void ResetMFileIndex();

/// Appends the folders below a path, which ends in a separator, to the directory list. What can't
/// be read counts as empty.
void ScanDirectory(const std::string& path);

/// Reads the program directory, fills the category table from the directory list and replaces the
/// index. Failures are dropped.
void WriteMFileIndex();

/// The window that shows a scan's progress. The scan starts once it is on the screen, and it
/// unloads itself at the end.
struct ScanningForm {
    FormState Form = {.Caption = "Quorvane", .MousePointer = PointerHourglass};
    Label lblScanning = {.Caption = "Now scanning drive A:"};
};
extern ScanningForm frmScanning;

/// Scans the drives whose letters stand in the preferences.
void frmScanning_Activate();
Form frmScanning_Table();

}  // namespace quorvane
