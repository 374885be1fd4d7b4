// SPDX-License-Identifier: MIT
#include "files/document_file.h"

#include <algorithm>
#include <vector>

#include "catalogue/icon_table.h"
#include "diagram/arrows.h"
#include "diagram/box_table.h"
#include "diagram/layout.h"
#include "diagram/worksheet.h"
#include "files/recent_files.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "platform/paths.h"

namespace quorvane {

const char* const DocumentFilter = "Quorvane Files (*.qvm)|*.qvm|All Files (*.*)|*.*";
LoadOutcome lastLoad;

namespace {

/// The loader reads by this number, and a refused file keeps it: until the program ends, a further
/// load then finds it taken.
constexpr int LoadFile = 1;

/// A load in progress. Up to the end of the first box a failing statement is reported and skipped;
/// from then on it is skipped in silence.
struct Load {
    std::int16_t Document = 0;
    bool Reporting = true;
    bool Failed = false;

    template <class Statement>
    void Do(Statement&& statement) {
        try {
            statement();
        } catch (const RuntimeError& error) {
            if (error.Number == 62) lastLoad.ReadPastEnd = true;
            if (!Reporting) return;
            Failed = true;
            Tell("File not found !", Icon::Critical);
        }
    }
};

/// Reads the fields of a line from left to right; after the last one they are empty.
struct Fields {
    std::string_view Rest;

    std::string_view Next() {
        const auto* const end = std::find(Rest.begin(), Rest.end(), '~');
        const std::string_view field(Rest.begin(), end);
        Rest.remove_prefix(std::min(field.size() + 1, Rest.size()));
        return field;
    }
    /// Passes over the next field and takes its value if it is a whole number of at most so many
    /// digits.
    bool TakeWholeNumber(std::size_t mostDigits, std::int32_t& value) {
        std::int32_t number = 0;
        const auto read = ReadWholeNumber(Rest, mostDigits, number);
        if (read == 0 || (read < Rest.size() && Rest[read] != '~')) return false;
        value = number;
        Rest.remove_prefix(std::min(read + 1, Rest.size()));
        return true;
    }
};

/// The next line of the file, empty when it can't be read.
Fields NextLine(Load& load) {
    Fields fields;
    load.Do([&] {
        // Through a variable of its own: gcc 12 forgets the empty line when the call that assigns
        // to it throws.
        const auto line = LineInput(LoadFile);
        fields.Rest = line;
    });
    return fields;
}

std::int16_t ReadBoxCount(Load& load) {
    std::int16_t count = 0;
    load.Do([&] {
        const auto number = TextToInt16(LineInput(LoadFile));
        if (number < 0) throw RuntimeError(5);
        count = number;
        lastLoad.HasCount = true;
    });
    return count;
}

/// Nearly all fields are short whole numbers, with which nothing can fail.
void ReadNumber(Load& load, Fields& fields, std::int32_t& number) {
    if (fields.TakeWholeNumber(9, number)) return;
    const auto field = fields.Next();
    load.Do([&] { number = TextToInt32(field); });
}

/// A number of a box in the file as its number in the table.
std::int16_t Shifted(int number, int base) {
    return ToInt16(number > 0 ? number + base - 1 : number);
}

void ReadSlot(Load& load, Fields& fields, std::int16_t& slot, std::int16_t base) {
    std::int32_t number = 0;
    if (fields.TakeWholeNumber(4, number)) {
        slot = Shifted(number, base);
        return;
    }
    const auto field = fields.Next();
    load.Do([&] { slot = Shifted(TextToInt16(field), base); });
}

void ReadTypeAndText(Load& load, Box& box) {
    auto fields = NextLine(load);
    box.BoxType = fields.Next();
    // A text that held line breaks reads with ";;" in their place: they are not put back.
    box.BoxText = fields.Next();
}

void ReadSlots(Load& load, Box& box, std::int16_t base) {
    auto fields = NextLine(load);
    for (auto& entry : box.BoxIn) ReadSlot(load, fields, entry, base);
    for (int j = 1; j <= 5; ++j) {
        ReadSlot(load, fields, box.BoxOut[j], base);
        ReadNumber(load, fields, box.BoxLineColor[j]);
    }
}

void PlaceBox(Load& load, Box& box, std::int16_t number) {
    auto fields = NextLine(load);
    load.Do([&] { DocumentWindow(load.Document).box.Load(number); });
    box.BoxDocument = load.Document;
    ReadNumber(load, fields, box.BoxTop);
    ReadNumber(load, fields, box.BoxLeft);
    load.Do([&] {
        auto& window = DocumentWindow(load.Document);
        auto& control = window.box[number];
        control.Top = static_cast<double>(box.BoxTop) - window.scrV.Value;
        control.Left = static_cast<double>(box.BoxLeft) - window.scrH.Value;
    });
}

void ShowBox(Load& load, std::int16_t number) {
    load.Do([&] {
        auto& control = DocumentWindow(load.Document).box[number];
        control.Picture = IconCell(BoxIconKey(number));
        control.Visible = true;
    });
}

/// False when the file ends before its last box.
bool ReadBoxes(Load& load, std::int16_t base, std::int16_t count) {
    for (int i = base; i < base + count; ++i) {
        bool ended = false;
        load.Do([&] { ended = EndOfFile(LoadFile); });
        if (ended) {
            lastLoad.EndsEarly = true;
            Tell("Abnormal termination of file", Icon::Exclamation);
            CloseFile(LoadFile);
            return false;
        }
        Box& box = Boxes[i];
        FreeRecord(box);
        const auto number = static_cast<std::int16_t>(i);
        ReadTypeAndText(load, box);
        ReadSlots(load, box, base);
        PlaceBox(load, box, number);
        load.Reporting = false;
        ShowBox(load, number);
    }
    return true;
}

/// The diagram being saved: the table indices in the order of their numbers in the file, and by
/// table index that number, 0 for none yet.
std::vector<std::int16_t> numberedBoxes;
std::vector<std::int16_t> fileNumbers;

/// Overwrites each CR and the character after it with ";;", so that the text fits on a line.
std::string WithoutLineBreaks(std::string text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r') continue;
        text[i] = ';';
        if (i + 1 < text.size()) text[i + 1] = ';';
    }
    return text;
}

/// Appends the three lines of one box.
void AppendBox(std::string& record, std::int16_t number) {
    const Box& box = Boxes[number];
    record += box.BoxType;
    record += '~';
    MapBoxNumber(number);
    record += WithoutLineBreaks(box.BoxText);
    record += "\r\n";
    for (const auto entry : box.BoxIn) {
        AppendNumber(record, MapBoxNumber(entry));
        record += '~';
    }
    for (int j = 1; j <= 5; ++j) {
        AppendNumber(record, MapBoxNumber(box.BoxOut[j]));
        record += '~';
        AppendNumber(record, box.BoxLineColor[j]);
        record += '~';
    }
    record.pop_back();
    record += "\r\n";
    AppendNumber(record, box.BoxTop);
    record += '~';
    AppendNumber(record, box.BoxLeft);
    record += "~\r\n";
}

bool HasBoxes(std::int16_t document) {
    for (int i = 1; i < NextBox; ++i) {
        if (BoxOrFree(i).BoxDocument == document) return true;
    }
    return false;
}

bool IsUntitled(const std::string& caption) { return caption.starts_with("Untitled"); }

/// The name to save under; false when the user cancelled.
bool AskForName(const std::string& caption, std::string& name) {
    const std::string preset = IsUntitled(caption) ? "" : caption;
    if (!Attempt([&] { name = desktop->SaveFileDialog(DocumentFilter, preset); })) return false;
    return FileNameOf(name) != "*.qvm";
}

}  // namespace

std::size_t FindFieldEnd(std::string_view text) {
    const auto at = text.find('~');
    return (at == std::string_view::npos ? text.size() : at) + 1;
}

std::int16_t MapBoxNumber(std::int16_t tableIndex) {
    if (tableIndex <= 0) return tableIndex;
    const auto index = static_cast<std::size_t>(tableIndex);
    if (index >= fileNumbers.size()) fileNumbers.resize(index + 1);
    if (fileNumbers[index] == 0) {
        numberedBoxes.push_back(tableIndex);
        fileNumbers[index] = static_cast<std::int16_t>(numberedBoxes.size());
    }
    return fileNumbers[index];
}

std::string DocumentText(std::int16_t document) {
    numberedBoxes.clear();
    fileNumbers.clear();
    struct Place {
        std::size_t At = 0, Size = 0;
    };
    std::string records;
    std::vector<Place> places(static_cast<std::size_t>(std::max<int>(NextBox, 1)));
    int count = 0;
    for (std::int16_t i = 1; i < NextBox; ++i) {
        if (Boxes[i].BoxDocument != document) continue;
        const auto at = records.size();
        AppendBox(records, i);
        places[static_cast<std::size_t>(i)] = {at, records.size() - at};
        ++count;
    }
    std::string text = NumberText(count) + "\r\n";
    text.reserve(text.size() + records.size());
    for (const auto numbered : numberedBoxes) {
        // A link to a box outside this document adds nothing.
        if (numbered >= NextBox) continue;
        const auto& place = places[static_cast<std::size_t>(numbered)];
        text.append(records, place.At, place.Size);
    }
    return text;
}

void ResetDocumentFile() {
    lastLoad = {};
    numberedBoxes.clear();
    fileNumbers.clear();
}

std::int16_t NewDocument() {
    const auto number = AllocateDocument();
    OpenWindow(number);
    Documents[number]->Caption = "Untitled:" + Documents[number]->Tag;
    EditMode = 1;
    // A worksheet that is reused after a closing that was cancelled has boxes that no file has.
    if (!HasBoxes(number)) {
        ++DocumentStates[number].Stored;
        DocumentStates[number].SaveFailed = false;
    }
    return number;
}

void OpenWindow(std::int16_t document) {
    auto& window = Documents[document];
    if (!window) {
        window = std::make_unique<Worksheet>();
        main_Load(*window);
    }
    window->Tag = NumberText(document);
    window->mnuOptionsToolbox.Checked = frmMDI.mnuOptionsToolbox.Checked;
    window->mnuOptionsCurrentToolbox.Caption = frmMDI.mnuOptionsCurrentToolbox.Caption;
    for (int k = 1; k <= 4; ++k) {
        if (frmMDI.mnuFileArray[k].Visible) window->mnuFileArray[k] = frmMDI.mnuFileArray[k];
    }
    if (frmMDI.mnuFileArray[0].Visible) window->mnuFileArray[0].Visible = true;
    window->Shown = true;
}

void LoadDocument(const std::string& name) {
    const auto remembered = CurrentDirectory();
    std::string path(FileNameOf(name));
    if (name.empty() && !Attempt([&] { path = desktop->OpenFileDialog(DocumentFilter, ""); })) {
        return;
    }
    LoadDocumentFile(path);
    if (lastLoad.Finished) Attempt([&] { ChangeDirectory(remembered); });
}

void LoadDocumentFile(const std::string& path, const OpenForLoad& open) {
    lastLoad = {};
    Load load;
    load.Document = NewDocument();
    lastLoad.Document = load.Document;
    const bool wasEmpty = !HasBoxes(load.Document);
    load.Do([&] { open(LoadFile, path); });
    if (load.Failed) return;
    lastLoad.Opened = true;
    const auto count = ReadBoxCount(load);
    if (count + NextBox > MaxBoxes + 1) {
        Tell(
            "Loading this file will result in more than the maximum number of boxes allowed, so it "
            "will not load ...",
            Icon::None);
        return;
    }
    if (NextBox == 0) NextBox = 1;
    if (!ReadBoxes(load, NextBox, count)) return;
    NextBox = static_cast<std::int16_t>(NextBox + count);
    auto& window = DocumentWindow(load.Document);
    load.Do([&] { RedrawDocument(window.Tag); });
    CloseFile(LoadFile);
    lastLoad.Finished = true;
    UpdateBoxGauge(BoxTableFill());
    window.Caption = path;
    if (wasEmpty) ++DocumentStates[load.Document].Stored;
    ClearSelectionRect(window.Tag);
}

void SaveDocument(std::int16_t document, std::int16_t mode) {
    auto& window = DocumentWindow(document);
    std::string name = window.Caption;
    if (mode == 2 || IsUntitled(window.Caption)) {
        if (!AskForName(window.Caption, name)) return;
    }
    // A failure is ignored silently; the old file is then still there.
    auto& state = DocumentStates[document];
    state.SaveFailed = !Attempt([&] { ReplaceFile(name, DocumentText(document) + "\r\n"); });
    if (!state.SaveFailed) ++state.Stored;
    AddRecentFile(name);
    window.Caption = name;
    state.Modified = 0;
}

}  // namespace quorvane
