// SPDX-License-Identifier: MIT
#include <sstream>

#include "diagram/selection.h"
#include "files/close_document.h"
#include "files/recent_files.h"
#include "support/step_test.h"

namespace quorvane::testing {

namespace {

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

}  // namespace

/// Plays the table of what a user does with documents. A plain box's three lines are "@" there.
class DocumentSteps : public StepTest {
protected:
    DocumentSteps() {
        Know({
            {"put", Step([](A a) {
                 auto bytes = a.Text;
                 const auto name = TakeWord(bytes);
                 WriteAll(name, Whole(bytes));
             })},
            {"fill", Step([](A a) {
                 WriteAll(a.Text, Show(a[0]) + "\r\n" +
                                      Whole(std::string(static_cast<std::size_t>(a[0]), '@')));
             })},
            {"get", Seen([](A a) { return Short(ReadAll(a.Text)); })},
            {"load", Step([](A a) { LoadDocument(a.Text); })},
            {"save", Step([](A a) { SaveDocument(ToInt16(a[0]), ToInt16(a[1])); })},
            {"close", Seen([](A a) { return CloseDocument(a[0]); })},
            {"click", Step([](A a) {
                 Worksheet templateSheet;
                 mnuFileClose_Click(a[0] == 0 ? templateSheet : Sheet(a[0]));
             })},
            {"pick", Step([this](A a) { screen.Paths = {a.Text}; })},
            {"wander", Step([this](A a) {
                 screen.Paths = {folder / a.Text};
                 screen.Wanders = true;
             })},
            {"asked", Seen([this](A) { return Asked(); })},
            {"select", Step([](A a) { SelectedBoxes.Append(ToInt16(a[0])); })},
            {"selected", Seen([](A) { return SelectedBoxes.UpperBound(); })},
            {"busy", Step([](A) { SetPointerAll(PointerHourglass); })},
            {"show",
             Seen([this](A a) { return Replaced(Shown(a[0]), folder.Path.string(), "$"); })},
            {"loaded", Seen([this](A a) { return Loaded(Whole(a.Text.substr(1))); })},
            {"named", Seen([this](A a) { return Named(a[0], Split(a.Text, '>')); })},
            {"broken", Seen([this](A a) { return Broken(a.Text.substr(1)); })},
            {"shift", Step([](A a) { ShiftRecentFiles(a.Text); })},
            {"store", Step([this](A a) {
                 auto name = a.Text;
                 const auto key = TakeWord(name);
                 screen.Store["Recent Files"][key] = name;
             })},
            {"refresh", Step([](A) { RefreshRecentFileMenus(); })},
            {"recent", Seen([this](A) { return Recent(); })},
            {"offer", Step([](A a) {
                 frmMDI.mnuFileArray[a[0]] = {a.Text, false, a[1] != 0};
             })},
            {"entries", Seen([](A a) { return Entries(Sheet(a[0]).mnuFileArray); })},
            {"known", Seen([](A a) { return IsRecentFile(a.Text); })},
        });
    }

private:
    static inline const std::string Plain = "Sin~\r\n-1~-1~-1~0~0~0~0~0~0~0~0~0~0\r\n100~200~\r\n";
    static std::string Whole(const std::string& text) { return Replaced(text, "@", Plain); }
    static std::string Short(const std::string& text) { return Replaced(text, Plain, "@"); }

    /// The file dialogs since the last time, with "*" for their filter.
    std::string Asked() {
        return Replaced(Taken(screen.FileDialogs),
                        "|Quorvane Files (*.qvm)|*.qvm|All Files (*.*)|*.*|", "|*|");
    }

    /// Loads these bytes: the caption, what was told, and the file once it is saved again.
    std::string Loaded(const std::string& bytes) {
        Restart();
        WriteAll("loaded.qvm", bytes);
        LoadDocument("loaded.qvm");
        const auto caption = Documents[2]->Caption;
        return caption + "|" + Taken(screen.Messages) + "|" + Short(Saved("saved.qvm", 2));
    }

    /// Saves and loads a text: what the file holds, and what the box then says.
    std::string Broken(const std::string& text) {
        Restart();
        Draw({{"Comment", text}});
        const auto bytes = Saved("saved.qvm");
        EXPECT_EQ(Boxes[1].BoxText, text) << "saving changed the box";
        LoadDocument("saved.qvm");
        return bytes.substr(11, bytes.find("\r\n-1~") - 11) + "|" + Boxes[2].BoxText;
    }

    /// Saves a changed document: the dialogs, its caption and mark, the newest recent file, and the
    /// files that are there.
    std::string Named(int mode, const std::vector<std::string>& captionAndChosen) {
        Restart();
        Documents[1]->Caption = captionAndChosen[0];
        DocumentStates[1].Modified = -1;
        if (!captionAndChosen[1].empty()) screen.Paths = {captionAndChosen[1]};
        SaveDocument(1, ToInt16(mode));
        EXPECT_TRUE(screen.Messages.empty());
        return Asked() + "|" + Documents[1]->Caption +
               (DocumentStates[1].Modified ? "|changed|" : "|kept|") +
               screen.ReadStore("Recent Files", "RecentFile1") + "|" + Show(NamesIn("."));
    }

    /// The stored names, newest first, and the menus of the frame and the documents.
    std::string Recent() {
        std::string names;
        for (const auto& row : screen.ReadStoreSection("Recent Files")) names += row.second + " ";
        names += "/ " + Entries(frmMDI.mnuFileArray);
        ForEachOpenDocument(
            [&](auto& window, int) { names += " / " + Entries(window.mnuFileArray); });
        return names;
    }
};

TEST_F(DocumentSteps, Table) { PlayTable("files/documents.tsv"); }

}  // namespace quorvane::testing
