// SPDX-License-Identifier: MIT
#include "matlab_link/directory_dialog.h"

#include <algorithm>
#include <filesystem>

#include "platform/desktop.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace quorvane {

namespace fs = std::filesystem;

DirectoryForm frmDirectory;

namespace {

constexpr auto StoreSection = "Engine";
constexpr auto StoreKey = "Folder";

/// Runs an action with each entry of the current directory; what can't be read has none.
template <class Action>
void ForEachEntry(Action&& action) {
    std::error_code error;
    fs::directory_iterator at(".", error);
    for (; !error && at != fs::directory_iterator(); at.increment(error)) action(*at);
}

std::vector<std::string> Drives() {
    std::vector<std::string> drives;
#ifdef _WIN32
    std::error_code error;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const auto drive = std::string(1, letter) + ":";
        if (fs::exists(drive + "\\", error)) drives.push_back(drive);
    }
#endif
    return drives;
}

/// ".." and the subfolders of the current directory.
std::vector<std::string> WaysOn() {
    std::vector<std::string> folders = {".."};
    ForEachEntry([&](const fs::directory_entry& entry) {
        std::error_code error;
        if (entry.is_directory(error)) folders.push_back(entry.path().filename().string());
    });
    std::sort(folders.begin() + 1, folders.end());
    return folders;
}

/// The first "*.ini" of the current directory, "" when there is none.
std::string FirstSettingsFile() {
    std::string first;
    ForEachEntry([&](const fs::directory_entry& entry) {
        std::error_code error;
        const auto name = entry.path().filename().string();
        if (!UpperCase(name).ends_with(".INI") || entry.is_directory(error)) return;
        if (first.empty() || name < first) first = name;
    });
    return first;
}

void AcceptByItself() {
    if (UpperCase(FirstSettingsFile()) != "QUORVANE.INI" ||
        frmDirectory.lblTop.Caption != "Please Locate the Quorvane Directory") {
        return;
    }
    frmDirectory.director.Text = CurrentDirectory();
    frmDirectory_cmdOK_Click();
}

/// Goes to a folder; the engine of this folder stands selected.
void GoTo(const std::string& folder) {
    ChangeDirectory(folder);
    frmDirectory.director.Text = CurrentDirectory();
    frmDirectory.Dir1.List = WaysOn();
    const auto& engines = frmDirectory.Engines;
    const auto at = std::find_if(engines.begin(), engines.end(), [](const FoundEngine& engine) {
        return engine.Folder == frmDirectory.director.Text;
    });
    frmDirectory.lstEngines.ListIndex =
        at == engines.end() ? -1 : static_cast<int>(at - engines.begin());
}

std::string FolderOfTyped(const std::string& path) {
    std::error_code error;
    const auto typed = SystemPath(path);
    const bool isProgram =
        fs::is_regular_file(typed, error) && typed.parent_path().filename() == "bin";
    return isProgram ? typed.parent_path().parent_path().string() : path;
}

}  // namespace

void frmDirectory_OfferEngines() {
    auto& engines = frmDirectory.Engines;
    engines = FindEngines(desktop->WherePrograms());
    const auto last = EngineIn(desktop->ReadStore(StoreSection, StoreKey));
    auto known = std::find_if(engines.begin(), engines.end(), [&](const FoundEngine& engine) {
        return engine.Folder == last.Folder;
    });
    if (known == engines.end() && !last.Name.empty()) known = engines.insert(engines.begin(), last);
    for (const auto& engine : engines) {
        frmDirectory.lstEngines.List.push_back(engine.Name + " in " + engine.Folder);
    }
    frmDirectory.lblEngines.Visible = frmDirectory.lstEngines.Visible = !engines.empty();
    if (known == engines.end()) return;
    frmDirectory.lstEngines.ListIndex = static_cast<int>(known - engines.begin());
    frmDirectory_lstEngines_Click();
}

void frmDirectory_lstEngines_Click() {
    const int row = frmDirectory.lstEngines.ListIndex;
    if (row < 0 || row >= static_cast<int>(frmDirectory.Engines.size())) return;
    frmDirectory.txtPath.Text = frmDirectory.Engines[static_cast<std::size_t>(row)].Folder;
    frmDirectory_txtPath_Change();
}

void frmDirectory_txtPath_Change() {
    const auto folder = FolderOfTyped(frmDirectory.txtPath.Text);
    frmDirectory.IsPicked = true;
    frmDirectory.director.Text = folder;
    frmDirectory.lstEngines.ListIndex = -1;
    // The beginning of a relative path would lead astray.
    if (!SystemPath(folder).is_absolute() || !Attempt([&] { GoTo(folder); })) return;
    frmDirectory.Dir1.Text = frmDirectory.director.Text;
}

void RememberEngine(const std::string& folder) {
    desktop->WriteStore(StoreSection, StoreKey, folder);
}

void frmDirectory_Load() {
    frmDirectory = {};
    frmDirectory.Form.Loaded = true;
    Attempt([] { frmDirectory.director.Text = CurrentDirectory(); });
    frmDirectory.Drive1.List = Drives();
    if (!frmDirectory.Drive1.List.empty()) {
        frmDirectory.Drive1.Text = frmDirectory.director.Text.substr(0, 2);
    }
    frmDirectory.Dir1.Text = frmDirectory.director.Text;
    frmDirectory.Dir1.List = WaysOn();
    frmDirectory.txtPath.Text = frmDirectory.director.Text;
}

void frmDirectory_Drive1_Change() {
    if (!Attempt([] { ChangeDirectory(frmDirectory.Drive1.Text); })) return;
    frmDirectory.Dir1.Text = CurrentDirectory();
    frmDirectory_Dir1_Change();
}

void frmDirectory_Dir1_Change() {
    auto& path = frmDirectory.Dir1.Text;
    if (!Attempt([&] { GoTo(path); })) return;
    frmDirectory.IsPicked = false;
    frmDirectory.txtPath.Text = frmDirectory.director.Text;
    // A path that is being typed stays as it is, so that the user can go on typing.
    if (!SystemPath(path).is_absolute()) path = frmDirectory.director.Text;
    AcceptByItself();
}

void frmDirectory_cmdOK_Click() { frmDirectory.Form.Visible = false; }

Form frmDirectory_Table() {
    return {"frmDirectory",
            &frmDirectory.Form,
            {{"lblTop", &frmDirectory.lblTop},
             {"lblEngines", &frmDirectory.lblEngines},
             {"lstEngines", &frmDirectory.lstEngines, frmDirectory_lstEngines_Click},
             {"txtPath", &frmDirectory.txtPath, frmDirectory_txtPath_Change},
             {"Drive1", &frmDirectory.Drive1, frmDirectory_Drive1_Change},
             {"Dir1", &frmDirectory.Dir1, frmDirectory_Dir1_Change},
             {"director", &frmDirectory.director},
             {"cmdOK", &frmDirectory.cmdOK, frmDirectory_cmdOK_Click}},
            nullptr,
            frmDirectory_cmdOK_Click};
}

}  // namespace quorvane
