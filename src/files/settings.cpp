// SPDX-License-Identifier: MIT
#include "files/settings.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string>

#include "diagram/worksheet.h"
#include "files/recent_files.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/profile_file.h"
#include "platform/runtime_error.h"

namespace quorvane {

const std::vector<std::string_view> settingsTemplate = {
    "[Quorvane ini file]",       "Show Bubbles = 1",     "Line Width = 1",
    "Unused Boxs for Input = 1", "Show Toolbox = 1",     "Default Toolbox = default.tlb",
    "Toolbox Size = 3X3",        "Scan Drives = abcdef",
};

namespace {

constexpr const char* Section = "Prefrences";
constexpr std::string_view Unset = "Not Used";
/// A longer value is cut.
constexpr std::size_t LongestValue = 254;
/// A longer toolbox size is ignored.
constexpr std::size_t LongestSize = 9;

std::string CheckedText(const CheckBox& box) { return NumberText(box.Value); }

// Key, what is written for it; in the order of writing
const std::pair<const char*, std::function<std::string()>> writtenSettings[] = {
    {"Show Bubbles", [] { return CheckedText(frmPrefs.chkShowBubbles); }},
    {"Line Width", [] { return frmPrefs.txtLineWidth.Text; }},
    {"Unused Boxs for Input", [] { return CheckedText(frmPrefs.chkInput); }},
    {"Show Toolbox", [] { return CheckedText(frmPrefs.chkShowToolbox); }},
    {"Default Toolbox", [] { return frmPrefs.txtToolbox.Text; }},
    {"Toolbox Size", [] { return frmPrefs.lbltoolboxsize.Caption; }},
    {"Scan Drives", [] { return frmPrefs.txtDrives.Text; }},
};

/// No value for a key that is missing, empty or "Not Used".
std::optional<std::string> Setting(const char* key) {
    auto value = GetPrivateProfileString(Section, key, std::string(Unset),
                                         JoinPath(ProgramDirectory, "QUORVANE.INI"));
    if (value.empty() || value.starts_with(Unset)) return {};
    value.resize(std::min(value.size(), LongestValue));
    return value;
}

void ReadCheckBox(const char* key, CheckBox& box) {
    if (const auto value = Setting(key)) box.Value = value->front() == '0' ? 0 : 1;
}

}  // namespace

void ReadSettings() {
    frmPrefs.Form.Loaded = true;
    if (const auto width = Setting("Line Width")) {
        auto& bar = frmPrefs.sclWidth;
        bar.Value = std::clamp(TextToInt16(width->substr(0, 1)), bar.Min, bar.Max);
        frmPrefs_sclWidth_Change();
    }
    ReadCheckBox("Show Bubbles", frmPrefs.chkShowBubbles);
    ReadCheckBox("Show Toolbox", frmPrefs.chkShowToolbox);
    frmMDI.mnuOptionsToolbox.Checked = frmPrefs.chkShowToolbox.Value != 0;
    if (const auto toolbox = Setting("Default Toolbox")) {
        frmPrefs.txtToolbox.Text = *toolbox;
        frmMDI.mnuOptionsCurrentToolbox.Caption = "Current Toolbox: " + *toolbox;
    }
    if (const auto size = Setting("Toolbox Size"); size && size->size() <= LongestSize) {
        frmPrefs.lbltoolboxsize.Caption = *size;
    }
    if (const auto drives = Setting("Scan Drives")) frmPrefs.txtDrives.Text = *drives;
    RefreshRecentFileMenus();
}

void WriteSettings() {
    const auto file = JoinPath(ProgramDirectory, "quorvane.ini");
    for (const auto& [key, value] : writtenSettings) {
        WritePrivateProfileString(Section, key, value(), file);
    }
}

}  // namespace quorvane
