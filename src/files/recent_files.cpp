// SPDX-License-Identifier: MIT
#include "files/recent_files.h"

#include <algorithm>

#include "diagram/worksheet.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

const std::string Section = "Recent Files";
constexpr int StoredNames = 4;

std::string KeyOf(int number) { return "RecentFile" + NumberText(number); }

void ShowEntry(CheckedArray<MenuItem, 0, 4>& menu, int entry, const std::string& name) {
    menu[0].Visible = true;
    menu[entry].Caption = name;
    menu[entry].Visible = true;
}

}  // namespace

bool IsRecentFile(const std::string& name) {
    for (int i = 1; i <= 4; ++i) {
        if (frmMDI.mnuFileArray[i].Caption == name) return true;
    }
    return false;
}

void ShiftRecentFiles(const std::string& name) {
    for (int i = StoredNames - 1; i >= 1; --i) {
        const auto value = desktop->ReadStore(Section, KeyOf(i));
        if (!value.empty()) desktop->WriteStore(Section, KeyOf(i + 1), value);
    }
    desktop->WriteStore(Section, KeyOf(1), name);
}

std::vector<std::string> RecentFiles() {
    std::vector<std::string> names;
    for (int i = 1; i <= StoredNames; ++i) {
        auto name = desktop->ReadStore(Section, KeyOf(i));
        if (!name.empty()) names.push_back(std::move(name));
    }
    return names;
}

void AddRecentFile(const std::string& name) {
    if (!IsRecentFile(name)) ShiftRecentFiles(name);
    RefreshRecentFileMenus();
}

void RefreshRecentFileMenus() {
    if (desktop->ReadStore(Section, KeyOf(1)).empty()) return;
    const auto rows = desktop->ReadStoreSection(Section);
    const int last = std::min(static_cast<int>(rows.size()), StoredNames) - 1;
    for (int i = 1; i <= last; ++i) {
        const auto& name = rows[static_cast<std::size_t>(i)].second;
        ShowEntry(frmMDI.mnuFileArray, i, name);
        ForEachOpenDocument(
            [&](Worksheet& window, int) { ShowEntry(window.mnuFileArray, i + 1, name); });
    }
}

}  // namespace quorvane
