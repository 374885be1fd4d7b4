// SPDX-License-Identifier: MIT
#include <functional>
#include <map>
#include <sstream>

#include "diagram/selection.h"
#include "files/close_document.h"
#include "files/document_fixture.h"
#include "files/recent_files.h"
#include "platform/file_table.h"
#include "platform/raised_error.h"
#include "support/table_file.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

/// The three lines of a box without links.
const std::string Plain = "Sin~\r\n-1~-1~-1~0~0~0~0~0~0~0~0~0~0\r\n100~200~\r\n";

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
    for (std::size_t at; (at = text.find(what)) < text.size();) text.replace(at, what.size(), by);
    return text;
}

std::string WithPlainBoxes(const std::string& text) { return Replaced(text, "@", Plain); }

/// A file of plain boxes.
std::string PlainFile(int count) {
    return WithPlainBoxes(std::to_string(count) + "\r\n" + std::string(count, '@'));
}

/// A box record; "free" for one that is not in use, wherever it was.
std::string Record(int number) {
    const Box& box = Boxes[number];
    auto free = box;
    FreeRecord(free);
    if (box == free) return "free";
    std::ostringstream record;
    record << box.BoxType << "~" << box.BoxText << " in " << box.BoxDocument << " at "
           << box.BoxLeft << "," << box.BoxTop << " from";
    for (const auto entry : box.BoxIn) record << " " << entry;
    record << " to";
    for (int j = 1; j <= 5; ++j) record << " " << box.BoxOut[j] << ":" << box.BoxLineColor[j];
    return record.str();
}

/// A document and its window.
std::string Shown(int number) {
    if (!Documents[number]) return "gone";
    const auto& window = *Documents[number];
    std::ostringstream shown;
    shown << window.Caption << " tag " << window.Tag << " gauge " << window.pnlResource.Value;
    if (DocumentStates[number].Modified) shown << " changed";
    if (DocumentStates[number].Closed) shown << " closed";
    if (window.Shown) shown << " shown";
    if (window.shpCopy.Visible) shown << " selection";
    if (window.MousePointer == PointerHourglass) shown << " busy";
    for (int i = 1; i <= MaxBoxes; ++i) {
        if (!window.box.Has(i)) continue;
        const auto& box = window.box[i];
        shown << "|" << i << (box.Visible ? ": " : ": hidden ") << box.Picture << " at " << box.Left
              << "," << box.Top;
    }
    for (const auto& shape : window.Surface) shown << "|" << shape.Color;
    return shown.str();
}

/// Entries 0 to 4 of a menu: "|" for the separator, "." for what is hidden.
std::string Entries(const CheckedArray<MenuItem, 0, 4>& menu) {
    std::string entries = menu[0].Visible ? "|" : ".";
    for (int i = 1; i <= 4; ++i) entries += " " + (menu[i].Visible ? menu[i].Caption : ".");
    return entries;
}

/// The files that are there, separated by blanks.
std::string Names() {
    std::string names;
    for (const auto& name : NamesIn(".")) names += (names.empty() ? "" : " ") + name;
    return names;
}

/// A file dialog that moves to the folder of the file, as some do.
struct WanderingDesktop : ScriptedDesktop {
    std::string OpenFileDialog(const std::string& filter, const std::string& name) override {
        const auto path = ScriptedDesktop::OpenFileDialog(filter, name);
        ChangeDirectory(std::string(FolderOf(path)));
        return path;
    }
};

class DocumentSteps : public DocumentTest {
protected:
    /// What the user was shown since the last time, equal things with their count. "*" stands for
    /// the dialogs' filter.
    std::string Told() {
        const char* const icons[] = {"none", "information", "question", "exclamation", "critical"};
        const char* const choices[] = {"ok", "yesno", "yesnocancel", "abortretryignore"};
        const std::string filter = "|Quorvane Files (*.qvm)|*.qvm|All Files (*.*)|*.*|";
        std::map<std::string, int> counts;
        for (const auto& message : user.Messages) {
            ++counts[std::string(icons[static_cast<int>(message.Picture)]) + " " +
                     choices[static_cast<int>(message.Choice)] + " " + message.Text];
        }
        for (const auto& dialog : user.FileDialogs) ++counts[Replaced(dialog, filter, "|*|")];
        std::string told;
        for (const auto& [text, count] : counts) {
            told += (told.empty() ? "" : ", ") + std::to_string(count) + " " + text;
        }
        user.Messages.clear();
        user.FileDialogs.clear();
        return told;
    }

    void Begin() {
        ResetApplication();
        user = {};
        desktop = &user;
        for (const auto& name : NamesIn(".")) std::filesystem::remove_all(name);
        NewDocument();
    }

    /// Loads these bytes: the caption, what was told, and the file once it is saved again.
    std::string Loaded(const std::string& bytes) {
        Begin();
        WriteAll("loaded.qvm", bytes);
        LoadDocument("loaded.qvm");
        const auto caption = Documents[2]->Caption;
        return caption + "|" + Told() + "|" + Saved("saved.qvm", 2);
    }

    /// Saves and loads a text: what the file holds, and what the box then says.
    std::string Broken(const std::string& text) {
        Begin();
        Draw({{"Comment", text}});
        const auto bytes = Saved("saved.qvm");
        EXPECT_EQ(Boxes[1].BoxText, text) << "saving changed the box";
        LoadDocument("saved.qvm");
        return bytes.substr(11, bytes.find("\r\n-1~") - 11) + "|" + Boxes[2].BoxText;
    }

    /// Saves a changed document of this caption: what was told, its caption and mark, the newest
    /// recent file, and the files that are there.
    std::string Named(const std::string& caption, std::int16_t mode, const std::string& chosen) {
        Begin();
        Documents[1]->Caption = caption;
        DocumentStates[1].Modified = -1;
        if (!chosen.empty()) user.Paths = {chosen};
        SaveDocument(1, mode);
        return Told() + "|" + Documents[1]->Caption +
               (DocumentStates[1].Modified ? "|changed|" : "|kept|") +
               user.ReadStore("Recent Files", "RecentFile1") + "|" + Names();
    }

    /// The stored names, newest first, and the menus of the frame and the documents.
    std::string Recent() {
        std::string names;
        for (const auto& row : user.ReadStoreSection("Recent Files")) names += row.second + " ";
        names += "/ " + Entries(frmMDI.mnuFileArray);
        ForEachOpenDocument(
            [&](auto& window, int) { names += " / " + Entries(window.mnuFileArray); });
        return names;
    }

    std::string Done(const std::string& step, int number, const std::string& name,
                     const std::string& text);

    WanderingDesktop user;
};

/// Does a step of the table and tells what it gives.
std::string DocumentSteps::Done(const std::string& step, int number, const std::string& name,
                                const std::string& text) {
    std::string gives;
    const auto document = static_cast<std::int16_t>(number);
    Worksheet templateSheet;
    const std::map<std::string, Answer> answers = {
        {"yes", Answer::Yes}, {"no", Answer::No}, {"cancel", Answer::Cancel}};
    const std::map<std::string, std::function<void()>> steps = {
        {"begin", [&] { Begin(); }},
        {"put", [&] { WriteAll(name, WithPlainBoxes(text)); }},
        {"fill", [&] { WriteAll(name, PlainFile(number)); }},
        {"get", [&] { gives = ReadAll(name); }},
        {"names", [&] { gives = Names(); }},
        {"folder", [&] { std::filesystem::create_directory(name); }},
        {"free", [&] { gives = std::to_string(FreeFile()); }},
        {"new", [&] { gives = std::to_string(NewDocument()); }},
        {"load", [&] { LoadDocument(name); }},
        {"save", [&] { SaveDocument(document, static_cast<std::int16_t>(std::stoi(text))); }},
        {"close", [&] { gives = CloseDocument(number) ? "closed" : "open"; }},
        {"click", [&] { mnuFileClose_Click(number == 0 ? templateSheet : *Documents[number]); }},
        {"choose", [&] { user.Paths = {name}; }},
        {"wander", [&] { user.Paths = {folder / name}; }},
        {"answer", [&] { user.MessageAnswers = {answers.at(text)}; }},
        {"caption", [&] { Documents[number]->Caption = text; }},
        {"change", [&] { DocumentStates[number].Modified = -1; }},
        {"leave", [&] { DocumentStates[number].Closed = -1; }},
        {"scroll", [&] { Documents[number]->scrH.Value = 50, Documents[number]->scrV.Value = 30; }},
        {"mark", [&] { Documents[number]->shpCopy.Visible = true; }},
        {"select", [&] { SelectedBoxes.Append(document); }},
        {"selected", [&] { gives = std::to_string(SelectedBoxes.UpperBound()); }},
        {"edit", [&] { EditMode = document; }},
        {"mode", [&] { gives = std::to_string(EditMode); }},
        {"busy", [&] { SetPointerAll(PointerHourglass); }},
        {"next", [&] { gives = std::to_string(NextBox); }},
        {"record", [&] { gives = Record(number); }},
        {"show", [&] { gives = Shown(number); }},
        {"told", [&] { gives = Told(); }},
        {"loaded", [&] { gives = Loaded(WithPlainBoxes(text)); }},
        {"named", [&] { gives = Named(text, document, name); }},
        {"broken", [&] { gives = Broken(text); }},
        {"shift", [&] { ShiftRecentFiles(name); }},
        {"store", [&] { user.Store["Recent Files"][text] = name; }},
        {"refresh", [&] { RefreshRecentFileMenus(); }},
        {"recent", [&] { gives = Recent(); }},
        {"known", [&] { gives = IsRecentFile(name) ? "yes" : "no"; }},
        {"where", [&] { gives = CurrentDirectory(); }},
    };
    const int error = RaisedError(steps.at(step));
    return error != 0 ? "error " + std::to_string(error)
                      : Replaced(gives, folder.Path.string(), "$");
}

TEST_F(DocumentSteps, StepByStep) {
    for (const auto& row : ReadTable("files/documents.tsv")) {
        EXPECT_EQ(Done(row[0], std::atoi(row[1].c_str()), row[2], row[3]), WithPlainBoxes(row[4]))
            << row.back() << ": " << row[0] << " " << row[1] << " " << row[2];
    }
}

TEST_F(DocumentSteps, ANewDocumentCopiesTheFramesMenus) {
    frmMDI.mnuOptionsToolbox.Checked = true;
    frmMDI.mnuOptionsCurrentToolbox.Caption = "Current Toolbox: my.tlb";
    frmMDI.mnuFileArray[2] = {"two.qvm", false, true};
    frmMDI.mnuFileArray[3].Caption = "hidden.qvm";
    NewDocument();
    const auto& window = *Documents[2];
    EXPECT_TRUE(window.mnuOptionsToolbox.Checked);
    EXPECT_EQ(window.mnuOptionsCurrentToolbox.Caption, "Current Toolbox: my.tlb");
    EXPECT_EQ(Entries(window.mnuFileArray), ". . two.qvm . .");
    EXPECT_EQ(window.mnuFileArray[3].Caption, "");
}

}  // namespace
