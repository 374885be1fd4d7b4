// SPDX-License-Identifier: MIT
#include "matlab_link/command_browser.h"

#include <algorithm>
#include <functional>
#include <string>
#include <unordered_set>

#include "commands/function_dialogs.h"
#include "matlab_link/mfile_index.h"
#include "platform/desktop.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace quorvane {

MatlabForm frmMatlab;

namespace {

constexpr const char* AllFiles = "zzz All M files zzz";

/// A file that is read by fields and closed however the reading ends.
struct FieldFile {
    explicit FieldFile(const std::string& path) { OpenForInput(Number, path); }
    ~FieldFile() { CloseFile(Number); }
    FieldFile(const FieldFile&) = delete;
    FieldFile& operator=(const FieldFile&) = delete;
    bool AtEnd() const { return EndOfFile(Number); }
    std::string Next() const { return std::string(InputField(Number)); }
    /// As Next, but without the blanks after a comma.
    std::string NextOfLine() const {
        const bool goesOn = LineGoesOn(Number);
        auto item = Next();
        if (goesOn) item.erase(0, item.find_first_not_of(' '));
        return item;
    }

    int Number = FreeFile();
};

/// Reads up to "[Files]", and into the category table what looks like a category on the way.
void ReadCategories(const FieldFile& index, GrowableArray<CategoryRecord>& categories) {
    index.Next();
    for (auto item = index.Next(); item != "[Files]"; item = index.Next()) {
        const auto semicolon = item.find(';');
        if (semicolon == std::string::npos) continue;
        categories.Append({item.substr(0, semicolon), item.substr(semicolon + 1)});
    }
}

/// The end is tested before an item is taken, so that the last one is left out.
void ReadFiles(const FieldFile& index) {
    FileList = GrowableArray<std::string>(1);
    if (index.AtEnd()) return;
    for (auto item = index.Next(); !index.AtEnd(); item = index.Next()) {
        FileList.Append(std::move(item));
    }
}

void ReadIndex() {
    const FieldFile index(MFileIndex);
    ReadCategories(index, CategoryTable);
    ReadFiles(index);
}

/// The category table is then that of the scan, the file list is read from what it wrote.
void Rescan() {
    frmMatlab.lstFunc = {};
    frmMatlab.lblHelp.Caption.clear();
    DirectoryList = GrowableArray<FoundDirectory>(1);
    frmScanning = {};
    frmScanning.Form.Loaded = true;
    desktop->ShowModal("frmScanning");
    Attempt([] {
        const FieldFile index(MFileIndex);
        GrowableArray<CategoryRecord> passedOver;
        ReadCategories(index, passedOver);
        ReadFiles(index);
    });
}

/// Answers whether a path occurs in the file list, which is asked for each category. Nearly all are
/// the path of a folder, which is a quick lookup; any other text is searched for.
class PathsInFiles {
public:
    PathsInFiles() {
        for (int i = 2; i <= FileList.UpperBound(); ++i) {
            const auto& path = FileList[i];
            all_ += path + '\n';
            auto folder = FolderOf(path);
            while (!folder.empty() && folders_.insert(folder).second) folder = FolderOf(folder);
        }
    }
    bool Hold(const std::string& path) const {
        if (folders_.contains(path)) return true;
        const std::boyer_moore_horspool_searcher searcher(path.begin(), path.end());
        return std::search(all_.begin(), all_.end(), searcher) != all_.end();
    }

private:
    std::unordered_set<std::string_view> folders_;
    std::string all_;
};

void FillCategories() {
    const PathsInFiles files;
    auto& list = frmMatlab.cmbCategory.List;
    list.clear();
    for (int i = 1; i <= CategoryTable.UpperBound(); ++i) {
        const auto& [name, path] = CategoryTable[i];
        if (path.empty() || !files.Hold(path)) continue;
        list.push_back(UpperCase(name.substr(0, 1)) +
                       LowerCase(name.empty() ? name : name.substr(1)));
    }
    list.emplace_back(AllFiles);
}

/// The first comment of a file. A comma ends a field in the middle of a line; what follows it and
/// its blanks begins a field of its own, without "%".
std::string ReadHelp(const std::string& path) {
    const FieldFile file(path);
    std::string item;
    while (!file.AtEnd() && !item.starts_with('%')) item = file.Next();
    std::string help;
    while (!file.AtEnd() && !item.empty() && item[0] != ' ') {
        if (item[0] == '%') {
            const auto text = item.find_first_not_of(' ', 1);
            if (text != std::string::npos) help += item.substr(text);
        } else {
            help.resize(help.size() - 2);
            help += ' ' + item;
        }
        help += "\r\n";
        item = file.NextOfLine();
    }
    return help;
}

/// The path of the selected function, "" when none is selected.
std::string SelectedPath() {
    const auto& list = frmMatlab.lstFunc;
    const bool selected =
        list.ListIndex >= 0 && list.ListIndex < static_cast<int>(list.List.size());
    return selected ? list.List[static_cast<std::size_t>(list.ListIndex)] : "";
}

}  // namespace

void frmMatlab_Load() {
    frmMatlab = {};
    frmMatlab.Form.Loaded = true;
    if (CategoryTable.UpperBound() <= 1 && !Attempt(ReadIndex)) frmMatlab_cmdRescn_Click();
    FillCategories();
}

void frmMatlab_cmbCategory_Click() {
    const auto& text = frmMatlab.cmbCategory.Text;
    auto& list = frmMatlab.lstFunc;
    list = {};
    std::string path;
    if (text != AllFiles) {
        const auto chosen = UpperCase(text);
        int found = 2;
        while (found <= CategoryTable.UpperBound() &&
               UpperCase(CategoryTable[found].name) != chosen) {
            ++found;
        }
        if (found > CategoryTable.UpperBound()) return;
        path = CategoryTable[found].path;
    }
    for (int i = 2; i <= FileList.UpperBound(); ++i) {
        if (FileList[i].find(path) != std::string::npos) list.List.push_back(FileList[i]);
    }
}

void frmMatlab_lstFunc_Click() {
    if (frmMatlab.lstFunc.ListIndex < 0) return;
    const auto path = SelectedPath();
    if (Attempt([&] { frmMatlab.lblHelp.Caption = ReadHelp(path); })) return;
    const auto answer =
        desktop->MsgBox({.Text = "File not found. Maybe the drives should be Rescan ?",
                         .Picture = Icon::Exclamation,
                         .Choice = Buttons::YesNo});
    if (answer == Answer::Yes) frmMatlab_cmdRescn_Click();
}

void frmMatlab_cmdRescn_Click() {
    Rescan();
    if (!frmMatlab.cmbCategory.Text.empty()) frmMatlab_cmbCategory_Click();
}

void frmMatlab_cmdOK_Click() {
    auto name = std::string(FileNameOf(SelectedPath()));
    name.resize(name.size() < 2 ? 0 : name.size() - 2);
    if (frmMatlab.lblcaller.Caption == "func") {
        frmFunc.txtFunc.Text += LowerCase(name);
    } else {
        frmMatlabFunction.txtFunc.Text = name;
    }
    frmMatlab = {};
}

void frmMatlab_Close() { frmMatlab = {}; }

Form frmMatlab_Table() {
    auto& record = frmMatlab;
    return {.Name = "frmMatlab",
            .State = &record.Form,
            .Controls = {{"cmbCategory", &record.cmbCategory, frmMatlab_cmbCategory_Click},
                         {"lstFunc", &record.lstFunc, frmMatlab_lstFunc_Click},
                         {"lblHelp", &record.lblHelp},
                         {"cmdRescn", &record.cmdRescn, frmMatlab_cmdRescn_Click},
                         {"cmdOK", &record.cmdOK, frmMatlab_cmdOK_Click},
                         {"lblcaller", &record.lblcaller}},
            .Closed = frmMatlab_Close};
}

void ShowCommandBrowser(std::string_view caller) {
    auto& form = caller == "func" ? frmFunc.Form : frmMatlabFunction.Form;
    form.MousePointer = PointerHourglass;
    desktop->PaintNow();
    frmMatlab_Load();
    form.MousePointer = PointerDefault;
    frmMatlab.lblcaller.Caption = caller;
    desktop->ShowModal("frmMatlab");
}

}  // namespace quorvane
