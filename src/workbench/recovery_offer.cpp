// SPDX-License-Identifier: MIT
#include "workbench/recovery_offer.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "files/document_file.h"
#include "platform/desktop.h"
#include "platform/file_table.h"
#include "platform/folder_lock.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "workbench/history.h"
#include "workbench/recovery.h"
#include "workbench/whole_boxes.h"

namespace quorvane {

namespace fs = std::filesystem;

RecoveryForm recovery;

namespace {

struct OfferedDiagram {
    fs::path File;
    std::string Caption;
    WholeBoxes Boxes;
    fs::file_time_type When;
    int Document = 0;  ///< Where it was opened
};

struct Offer {
    std::vector<FolderLock> Locks;  ///< Of the folders with these diagrams
    std::vector<fs::path> Folders;
    std::vector<OfferedDiagram> Diagrams;  ///< By name, the newest first
};
Offer offer;

std::string NameOf(const OfferedDiagram& diagram) {
    return diagram.Caption.empty() ? "Untitled" : std::string(FileNameOf(diagram.Caption));
}

fs::path CaptionFile(fs::path diagram) { return diagram.replace_extension(".name"); }

/// "" for what can't be read or is too large for a file of ours.
std::string ReadFile(const fs::path& path) {
    constexpr std::uintmax_t largest = 64U << 20U;
    std::error_code error;
    if (!fs::is_regular_file(path, error) || fs::file_size(path, error) > largest) return "";
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// What a folder or the root holds; nothing for one that can't be read.
std::vector<fs::path> PathsIn(const fs::path& folder) {
    std::vector<fs::path> paths;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        paths.push_back(at->path());
    }
    return paths;
}

bool IsDiagram(const fs::path& path) {
    std::error_code error;
    return path.extension() == ".qvm" && !path.filename().string().starts_with('.') &&
           fs::is_regular_file(fs::symlink_status(path, error));
}

/// A file that was being written when its program ended; the one that it was to replace is there.
bool IsLeftAside(const fs::path& path) {
    const auto name = path.filename().string();
    const bool isOurs =
        name.find(".qvm.") != std::string::npos || name.find(".name.") != std::string::npos;
    return name.starts_with('.') && isOurs;
}

OfferedDiagram ReadDiagram(const fs::path& path) {
    auto caption = ReadFile(CaptionFile(path));
    while (!caption.empty() && (caption.back() == '\n' || caption.back() == '\r')) {
        caption.pop_back();
    }
    std::error_code error;
    return {path, caption, ReadWholeBoxes(ReadFile(path)), fs::last_write_time(path, error)};
}

/// A caption whose diagram was never written.
bool IsLoneCaption(const fs::path& path, const std::vector<fs::path>& paths) {
    const auto begin = path.stem().string() + ".";
    return path.extension() == ".name" &&
           std::none_of(paths.begin(), paths.end(), [&](auto& other) {
               return other != path && other.filename().string().starts_with(begin);
           });
}

/// Lets go of a folder, which goes when nothing of use or unknown is left in it.
void Leave(FolderLock& lock, const fs::path& folder) {
    const auto paths = PathsIn(folder);
    if (std::any_of(paths.begin(), paths.end(), IsDiagram)) return lock.Release();
    std::error_code error;
    for (const auto& path : paths) {
        if (IsLeftAside(path) || IsLoneCaption(path, paths)) fs::remove(path, error);
    }
    lock.Remove();
}

/// Takes the folders that nobody holds. A folder without a diagram that is none of ours, or that
/// its program is just making, isn't touched.
void FindDiagrams() {
    ResetRecoveryOffer();
    const auto root = RecoveryRoot();
    if (root.empty()) return;
    for (const auto& folder : PathsIn(SystemPath(root))) {
        std::error_code error;
        if (!fs::is_directory(fs::symlink_status(folder, error))) continue;
        auto paths = PathsIn(folder);
        const bool hasDiagrams = std::any_of(paths.begin(), paths.end(), IsDiagram);
        FolderLock lock;
        if (!hasDiagrams && !fs::exists(folder / "lock", error)) continue;
        if (!lock.Take(folder.string())) continue;
        paths = PathsIn(folder);
        for (const auto& path : paths) {
            if (IsDiagram(path)) offer.Diagrams.push_back(ReadDiagram(path));
        }
        offer.Locks.push_back(std::move(lock));
        offer.Folders.push_back(folder);
    }
    std::sort(offer.Diagrams.begin(), offer.Diagrams.end(), [](const auto& a, const auto& b) {
        const auto nameOfA = NameOf(a), nameOfB = NameOf(b);
        return nameOfA != nameOfB ? nameOfA < nameOfB : a.When > b.When;
    });
}

void LeaveAll() {
    for (std::size_t i = 0; i < offer.Locks.size(); ++i) Leave(offer.Locks[i], offer.Folders[i]);
    ResetRecoveryOffer();
}

std::string Counted(int boxes) { return NumberText(boxes) + (boxes == 1 ? " box" : " boxes"); }

std::string TimeText(fs::file_time_type when) {
    using namespace std::chrono;
    const auto seconds = system_clock::to_time_t(
        time_point_cast<system_clock::duration>(fs::file_time_type::clock::to_sys(when)));
    std::array<char, 32> text{};
    const auto* local = std::localtime(&seconds);
    if (!local) return "";
    return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", local)};
}

std::ptrdiff_t Width(const std::string& text) {
    return std::count_if(text.begin(), text.end(), BeginsCharacter);
}

/// The beginning of a name that is too long for the list.
std::string Shortened(const std::string& name) {
    constexpr std::ptrdiff_t longest = 36;
    if (Width(name) <= longest) return name;
    std::size_t end = 0;
    for (std::ptrdiff_t count = 0; count < longest - 2; ++end) count += BeginsCharacter(name[end]);
    return name.substr(0, end - 1) + "...";
}

/// Pads the texts with blanks to the width of the longest one.
void MakeColumn(std::vector<std::string>& texts, bool toTheRight) {
    std::ptrdiff_t widest = 0;
    for (const auto& text : texts) widest = std::max(widest, Width(text));
    for (auto& text : texts) {
        const std::string blanks(static_cast<std::size_t>(widest - Width(text)), ' ');
        text.insert(toTheRight ? 0 : text.size(), blanks);
    }
}

/// A line for each diagram: its name, how many boxes can be opened, and when it was written.
std::vector<std::string> Listing() {
    std::vector<std::string> names, counts, lines;
    for (const auto& diagram : offer.Diagrams) {
        names.push_back(Shortened(NameOf(diagram)));
        counts.push_back(Counted(diagram.Boxes.Count()));
        if (diagram.Boxes.Count() == 1) counts.back() += "  ";
    }
    MakeColumn(names, false);
    MakeColumn(counts, true);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto& diagram = offer.Diagrams[i];
        lines.push_back(names[i] + "  " + counts[i] + "  " + TimeText(diagram.When) +
                        (diagram.Boxes.IsIntact ? "" : "  damaged"));
    }
    return lines;
}

/// Opens a diagram as a changed worksheet that no file has.
void Open(OfferedDiagram& diagram) {
    const int first = NextBox;
    LoadDocumentFile(diagram.Caption,
                     [&](int number, const std::string&) { OpenText(number, diagram.Boxes.File); });
    if (!lastLoad.Finished) return;
    diagram.Document = lastLoad.Document;
    for (int i = 0; i < diagram.Boxes.Count(); ++i) {
        Boxes[first + i].BoxText = diagram.Boxes.Texts[static_cast<std::size_t>(i)];
    }
    auto& window = *Documents[diagram.Document];
    if (diagram.Caption.empty()) window.Caption = "Untitled:" + window.Tag;
    auto& state = DocumentStates[diagram.Document];
    state.Modified = -1;
    state.Stored = 0;
}

/// Takes the file out of what is offered, when a copy of what was opened stands. Returns what has
/// to be told.
std::string Settle(const OfferedDiagram& diagram) {
    std::error_code error;
    const bool isOpen = HasRecoveryFile(diagram.Document);
    if (diagram.Boxes.IsIntact) {
        if (isOpen) {
            fs::remove(diagram.File, error);
            fs::remove(CaptionFile(diagram.File), error);
        }
        if (diagram.Document > 0) return "";
        return "There is no room for its " + Counted(diagram.Boxes.Count()) +
               ". It will be offered again.";
    }
    auto kept = diagram.File;
    if (isOpen || diagram.Boxes.Count() == 0) {
        kept += ".damaged";
        fs::rename(diagram.File, kept, error);
        if (error) kept = diagram.File;
    }
    return "It is damaged, and " + Counted(diagram.Document > 0 ? diagram.Boxes.Count() : 0) +
           " could be opened. The file is kept:\n" + kept.string();
}

void OpenOffered() {
    for (auto& diagram : offer.Diagrams) {
        const int count = diagram.Boxes.Count();
        const bool hasRoom = count + NextBox <= MaxBoxes + 1;
        if (hasRoom && (count > 0 || diagram.Boxes.IsIntact)) Open(diagram);
    }
    // What was opened can't be undone: it would be nowhere then.
    BeginHistory();
    NoteRecovery();
    WriteRecovery();
    std::string told;
    for (const auto& diagram : offer.Diagrams) {
        const auto text = Settle(diagram);
        if (!text.empty()) told += "\n\n" + NameOf(diagram) + ": " + text;
    }
    LeaveAll();
    if (!told.empty()) Tell("Not everything could be opened." + told, Icon::Exclamation);
}

void ThrowAwayOffered() {
    std::error_code error;
    for (const auto& diagram : offer.Diagrams) {
        fs::remove(diagram.File, error);
        fs::remove(CaptionFile(diagram.File), error);
    }
    LeaveAll();
}

void (*choice)() = LeaveAll;

void Choose(void (*chosen)()) {
    choice = chosen;
    recovery.Form.Visible = false;
}

}  // namespace

void OfferRecovery() {
    FindDiagrams();
    if (offer.Diagrams.empty()) return LeaveAll();
    LoadForm(recovery);
    recovery.lblTop.Caption = "These worksheets had changes when Quorvane ended unexpectedly:";
    recovery.diagrams.List = Listing();
    recovery.diagrams.ListIndex = 0;
    choice = LeaveAll;
    desktop->ShowModal("recovery");
    recovery = {};
    choice();
}

void OpenRecovery() {
    FindDiagrams();
    if (offer.Diagrams.empty()) return LeaveAll();
    OpenOffered();
}

void recovery_openAll_Click() { Choose(OpenOffered); }
void recovery_later_Click() { Choose(LeaveAll); }
void recovery_throwAway_Click() { Choose(ThrowAwayOffered); }

Form recovery_Table() {
    return {"recovery",
            &recovery.Form,
            {{"lblTop", &recovery.lblTop},
             {"diagrams", &recovery.diagrams},
             {"openAll", &recovery.openAll, recovery_openAll_Click},
             {"later", &recovery.later, recovery_later_Click},
             {"throwAway", &recovery.throwAway, recovery_throwAway_Click}},
            nullptr,
            recovery_later_Click};
}

void ResetRecoveryOffer() {
    offer = {};
    choice = LeaveAll;
}

}  // namespace quorvane
