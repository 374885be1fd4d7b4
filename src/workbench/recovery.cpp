// SPDX-License-Identifier: MIT
#include "workbench/recovery.h"

#include <algorithm>
#include <filesystem>
#include <random>
#include <vector>

#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "files/document_file.h"
#include "platform/desktop.h"
#include "platform/file_table.h"
#include "platform/folder_lock.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "workbench/history.h"
#include "workbench/snapshot.h"

namespace quorvane {

namespace fs = std::filesystem;

namespace {

/// The copy of a worksheet.
struct Copy {
    int Document = 0;  ///< 0 for a worksheet that was closed after a save that the system refused
    int File = 0;      ///< Its number in the folder, 0 before it has one
    std::string Caption;
    std::string Text;
    bool Due = true;  ///< It isn't in the folder yet, or is an older one there
};

/// What tells that a worksheet has come, gone or been stored.
struct Standing {
    bool HasWindow = false;
    int Stored = 0;
    std::string Caption;

    bool operator==(const Standing&) const = default;
};

struct OwnFolder {
    std::string Path;
    FolderLock Lock;
    std::vector<Copy> Copies;
    int LastFile = 0;
    int Changes = 0;  ///< HistoryChanges() when the texts were taken
    std::vector<Standing> Documents;
    std::string Problem;
};
OwnFolder own;

bool HasWindow(int document) {
    return document <= Documents.UpperBound() && Documents[document] != nullptr;
}

bool IsAsTaken(int document) {
    const auto index = static_cast<std::size_t>(document);
    static const Standing none;
    const auto& taken = index < own.Documents.size() ? own.Documents[index] : none;
    if (!HasWindow(document)) return !taken.HasWindow;
    return taken.HasWindow && taken.Stored == DocumentStates[document].Stored &&
           taken.Caption == Documents[document]->Caption;
}

/// While a box is armed, only a step of the history tells what the others are like.
bool HaveChanged() {
    if (own.Changes != HistoryChanges()) return true;
    if (EditMode == 2) return false;
    const int last = std::max(Documents.UpperBound(), static_cast<int>(own.Documents.size()) - 1);
    for (int i = 1; i <= last; ++i) {
        if (!IsAsTaken(i)) return true;
    }
    return false;
}

/// The table as if no box were armed, for as long as this lives.
struct AtRest {
    AtRest() { NextBox = PresentSnapshot().NextBox; }
    ~AtRest() { NextBox = Before; }
    AtRest(const AtRest&) = delete;
    AtRest& operator=(const AtRest&) = delete;
    const std::int16_t Before = NextBox;
};

std::string FileOf(const Copy& copy, const char* ending) {
    return JoinPath(own.Path, NumberText(copy.File) + ending);
}

void RemoveFiles(const Copy& copy) {
    if (copy.File == 0) return;
    std::error_code error;
    fs::remove(SystemPath(FileOf(copy, ".qvm")), error);
    fs::remove(SystemPath(FileOf(copy, ".name")), error);
}

/// The copy of a worksheet. One that was closed and is back by an undo gets the copy that it left.
std::vector<Copy>::iterator CopyOf(int document, const std::string& text) {
    auto& copies = own.Copies;
    const auto found = std::find_if(copies.begin(), copies.end(),
                                    [&](const Copy& copy) { return copy.Document == document; });
    if (found != copies.end()) return found;
    return std::find_if(copies.begin(), copies.end(),
                        [&](const Copy& copy) { return copy.Document == 0 && copy.Text == text; });
}

void TakeText(int document) {
    auto text = DocumentText(static_cast<std::int16_t>(document));
    const auto& caption = Documents[document]->Caption;
    auto copy = CopyOf(document, text);
    if (text == *PresentSnapshot().Documents.at(static_cast<std::size_t>(document)).StoredText) {
        if (copy == own.Copies.end()) return;
        RemoveFiles(*copy);
        own.Copies.erase(copy);
        return;
    }
    if (copy == own.Copies.end()) copy = own.Copies.insert(copy, Copy());
    copy->Document = document;
    if (copy->Text == text && copy->Caption == caption) return;
    copy->Text = std::move(text);
    copy->Caption = caption;
    copy->Due = true;
}

void LeaveClosed() {
    auto& copies = own.Copies;
    for (auto& copy : copies) {
        if (copy.Document == 0 || HasWindow(copy.Document)) continue;
        const bool wasRefused = copy.Document <= DocumentStates.UpperBound() &&
                                DocumentStates[copy.Document].SaveFailed;
        if (!wasRefused) RemoveFiles(copy);
        copy.Document = wasRefused ? 0 : -1;
    }
    copies.erase(std::remove_if(copies.begin(), copies.end(),
                                [](const Copy& copy) { return copy.Document < 0; }),
                 copies.end());
}

/// Makes a folder that has our lock in it; the system's words when that fails.
std::string MakeFolder() {
    std::error_code error;
    if (own.Lock.IsHeld() && fs::exists(SystemPath(own.Path), error)) return "";
    const auto root = RecoveryRoot();
    if (root.empty()) return "there is no folder for them";
    fs::create_directories(SystemPath(root), error);
    std::random_device random;
    for (int tries = 0; !error && tries < 10; ++tries) {
        own.Path = JoinPath(root, NumberText(random()));
        const auto folder = SystemPath(own.Path);
        if (!fs::create_directory(folder, error)) continue;
        fs::permissions(folder, fs::perms::owner_all, error);
        if (own.Lock.Take(own.Path)) {
            for (auto& copy : own.Copies) copy.Due = true;
            return "";
        }
        fs::remove(folder, error);
    }
    return error ? error.message() : "their folder can't be locked";
}

/// The caption comes first, so that there is no copy without one.
void Write(Copy& copy) {
    if (copy.File == 0) copy.File = ++own.LastFile;
    ReplaceFile(FileOf(copy, ".name"), copy.Caption + "\r\n", Unsynced);
    ReplaceFile(FileOf(copy, ".qvm"), copy.Text + "\r\n", Unsynced);
    copy.Due = false;
}

}  // namespace

void NoteRecovery() {
    if (!HaveChanged()) return;
    LeaveClosed();
    const AtRest atRest;
    own.Changes = HistoryChanges();
    own.Documents.resize(static_cast<std::size_t>(Documents.UpperBound()) + 1);
    for (int i = 1; i <= Documents.UpperBound(); ++i) {
        auto& taken = own.Documents[static_cast<std::size_t>(i)];
        taken.HasWindow = HasWindow(i);
        if (!taken.HasWindow) continue;
        taken.Stored = DocumentStates[i].Stored;
        taken.Caption = Documents[i]->Caption;
        TakeText(i);
    }
}

bool RecoveryIsDue() {
    return !own.Problem.empty() || std::any_of(own.Copies.begin(), own.Copies.end(),
                                               [](const Copy& copy) { return copy.Due; });
}

bool WriteRecovery() {
    if (!RecoveryIsDue()) return true;
    own.Problem.clear();
    if (own.Copies.empty()) return true;
    try {
        own.Problem = MakeFolder();
        if (!own.Problem.empty()) return false;
    } catch (const std::exception& error) {
        own.Problem = error.what();
        return false;
    }
    for (auto& copy : own.Copies) {
        // One that doesn't fit is no reason to lose the next one.
        try {
            if (copy.Due) Write(copy);
        } catch (const std::exception& error) {
            own.Problem = error.what();
        }
    }
    return own.Problem.empty();
}

bool HasRecoveryFile(int document) {
    return std::any_of(own.Copies.begin(), own.Copies.end(),
                       [&](const Copy& copy) { return copy.Document == document && !copy.Due; });
}

std::string RecoveryRoot() {
    const auto state = desktop->StateFolder();
    return state.empty() ? "" : JoinPath(state, "recovery");
}

std::string RecoveryProblem() {
    return own.Problem.empty() ? "" : "recovery files can't be written: " + own.Problem;
}

std::string SaveProblem() {
    std::string names;
    ForEachOpenDocument([&](const Worksheet& window, int number) {
        if (!DocumentStates[number].SaveFailed) return;
        names += (names.empty() ? "" : ", ") + std::string(FileNameOf(window.Caption));
    });
    return names.empty() ? "" : "not saved: " + names;
}

void EndRecovery() {
    WriteRecovery();
    if (own.Copies.empty()) own.Lock.Remove();
    ResetRecovery();
}

void ResetRecovery() { own = {}; }

}  // namespace quorvane
