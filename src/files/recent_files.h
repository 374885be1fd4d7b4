// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace quorvane {

/// The recent files live in the per-user store, section "Recent Files", keys "RecentFile1" (the
/// newest) to "RecentFile4". The menus show them as mnuFileArray of the frame and of each document.

/// True when one of the frame's entries 1 to 4 has this caption.
bool IsRecentFile(const std::string& name);

/// The stored names, the newest first.
std::vector<std::string> RecentFiles();

/// Puts `name` first unless the frame's menu already shows it, and refills the menus.
void AddRecentFile(const std::string& name);

/// Moves every stored name down by one and stores `name` as the newest.
void ShiftRecentFiles(const std::string& name);

/// Fills the menus from the store. Row 0, the newest name, isn't shown in the frame, and a document
/// shows each name one entry further down than the frame.
void RefreshRecentFileMenus();

}  // namespace quorvane
