// SPDX-License-Identifier: MIT
#include "toolbox/toolbox_config.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string>

#include "catalogue/box_commands.h"
#include "catalogue/icon_table.h"
#include "commands/worksheet_events.h"
#include "platform/desktop.h"
#include "platform/file_table.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace quorvane {

ConfigToolboxForm frmConfigToolbox;

namespace {

// clang-format off
constexpr std::string_view pageOrder[] = {
    "Arrow", "Dummy Input", "Keyboard Input", "Matrix Input", "Matrix Make Input", "Vector Make Input",
    "Constant Input", "Ascii File Input", "Screen Output", "Plot Output", "Ascii File Output", "Trash",
    "Comment", "Basic Arithmatic", "Compute Function", "Natural Logarithm", "Square Root", "Matrix Manipulation",
    "Subroutine", "For", "While", "Next", "Break", "If",
    "End If", "Split Matrix", "Matrix Length", "Matrix Size", "Matlab Command", "Pickup",
    "Logic Operators", "Complex Operators", "Round", "Bessel Function", "Sin", "Cos",
    "Tan", "Cot", "ASin", "ACos", "ATan", "ACot",
    "FFTFFT", "FFTFFT2", "FFTIFFT", "FFTShift", "Numerical", "Polynomial",
    "Differences", "Correlation", "Vecops", "User", "MatAnalysis", "Sound",
    "Special Matrix", "Eigen", "Beta Function", "Error Function", "Integer Function", "String Make",
    "String Compare", "String Convert", "Check",
};
// clang-format on

/// The keys of the commands in the order of the pages; those that have no place there follow.
std::vector<std::string_view> MakeCatalogue() {
    std::vector<std::string_view> keys(std::begin(pageOrder), std::end(pageOrder));
    for (const auto& command : boxCommands) {
        for (const auto key : command.ToolboxKeys) {
            const bool isNew = std::find(keys.begin(), keys.end(), key) == keys.end();
            if (!key.empty() && isNew) keys.push_back(key);
        }
    }
    return keys;
}

}  // namespace

const std::vector<std::string_view> toolboxCatalogue = MakeCatalogue();

namespace {

constexpr int PageColumns = 6;
constexpr int PanelColumns = 3;
constexpr double PanelPitch = 495;
/// A drop that would raise the count to this is ignored.
constexpr int FullCount = 26;
constexpr int HighestCount = std::numeric_limits<std::int16_t>::max();
constexpr std::string_view LineEnd = "\r\n";

/// Number of the catalogue's key that element `Index` of the page shows, from 1.
int CatalogueIndex(int Index) { return frmConfigToolbox.scroll.Value * PageColumns + Index; }

/// The key of that number; "" after the end of the list.
std::string_view CatalogueKey(int number) {
    if (number < 1 || number > static_cast<int>(toolboxCatalogue.size())) return {};
    return toolboxCatalogue[static_cast<std::size_t>(number) - 1];
}

void ShowCataloguePage() {
    for (int i = 1; i <= frmConfigToolbox.cmdPict.UpperBound; ++i) {
        const auto key = CatalogueKey(CatalogueIndex(i));
        frmConfigToolbox.cmdPict[i].Picture = key.empty() ? 0 : IconCell(key);
    }
}

/// Makes the icon with this index and puts it at a place of the panel's grid, counted from 1; place
/// 0 is the last one of the row above the panel.
void LoadPanelIcon(int index, int place, std::string_view key) {
    const int row = place < 1 ? -1 : (place - 1) / PanelColumns;
    const int column = place - PanelColumns * row;
    auto& icon = frmConfigToolbox.cmdButton.Load(index);
    icon.Place = frmConfigToolbox.cmdButton[0].Place;
    icon.Place.Top += row * PanelPitch;
    icon.Place.Left += (column - 1) * PanelPitch;
    icon.Picture = IconCell(key);
    icon.Visible = true;
}

void AppendKey(std::string_view key) {
    frmConfigToolbox.lbltoolbox.Caption += key;
    frmConfigToolbox.lbltoolbox.Caption += LineEnd;
}

bool NextField(int number, std::string& field) {
    return Attempt([&] { field = InputField(number); });
}

bool Ended(int number) {
    return AttemptValue(ErrorPolicy::Ignore, true, [&] { return EndOfFile(number); });
}

/// Puts the keys of an open file into the panel. The last field of a file is no key, and a file
/// without a byte leaves the count at 1.
void ReadPanel(int number) {
    int& count = frmConfigToolbox.Count;
    std::string key;
    if (!NextField(number, key)) return;
    while (count < HighestCount && !Ended(number)) {
        LoadPanelIcon(count, count, key);
        AppendKey(key);
        ++count;
        if (!NextField(number, key)) break;
    }
    --count;
}

/// Puts the file that opnFileName names into the emptied panel. One that can't be opened is
/// ignored.
void LoadPanel() {
    frmConfigToolbox.Count = 1;
    int number = 0;
    const bool opened = Attempt([&] {
        number = FreeFile();
        OpenForInput(number, FindFile(frmConfigToolbox.opnFileName.Caption));
    });
    if (!opened) return;
    frmConfigToolbox.lbltoolbox.Caption.clear();
    ReadPanel(number);
    CloseAllFiles();
}

void ClearPanel(int count) {
    auto& icons = frmConfigToolbox.cmdButton;
    for (int i = 1; i < icons.Size(); ++i) {
        if (icons.Has(i)) icons.Unload(i);
    }
    frmConfigToolbox.lbltoolbox.Caption.clear();
    frmConfigToolbox.Count = count;
}

/// Asks for a toolbox file and makes it the one to save to; false when the user cancelled.
bool AskForFile() {
    return Attempt(
        [] { frmConfigToolbox.opnFileName.Caption = desktop->OpenFileDialog(ToolboxFilter, ""); });
}

/// The position after the next line end; the text's end when there is none.
std::size_t BehindLine(const std::string& text, std::size_t from) {
    const auto at = text.find(LineEnd, from);
    return at == std::string::npos ? text.size() : at + LineEnd.size();
}

/// Removes a key from the panel's text and moves the faces after it up by one icon. The icon's
/// index counts the keys: in a panel that began empty it is one too high.
void RemoveKey(int index) {
    auto& caption = frmConfigToolbox.lbltoolbox.Caption;
    const std::string kept = caption;
    std::size_t at = 0;
    for (int i = 1; i < index; ++i) at = BehindLine(kept, at);
    caption = kept.substr(0, at);
    at = BehindLine(kept, at);
    for (int icon = index; at < kept.size(); ++icon) {
        const auto next = BehindLine(kept, at);
        const auto key = kept.substr(at, next - at - LineEnd.size());
        AppendKey(key);
        Attempt([&] { frmConfigToolbox.cmdButton[icon].Picture = IconCell(key); });
        at = next;
    }
    Attempt([] { frmConfigToolbox.cmdButton.Unload(frmConfigToolbox.Count); });
    --frmConfigToolbox.Count;
}

void SavePanel() {
    ReplaceFile(frmConfigToolbox.opnFileName.Caption,
                frmConfigToolbox.lbltoolbox.Caption + std::string(LineEnd));
}

/// Saves; when that fails, tries once more with all files closed, since the toolbox may hold the
/// file open. False when that fails too, which the user has then been told.
bool SavePanelOrTell() {
    if (Attempt(SavePanel)) return true;
    CloseAllFiles();
    try {
        SavePanel();
        return true;
    } catch (const RuntimeError& error) {
        CloseAllFiles();
        Tell(error.Description, Icon::Exclamation);
        return false;
    }
}

}  // namespace

ConfigToolboxForm::ConfigToolboxForm() {
    cmdButton.Load(0).Place = {15, 15, IconButtonSize, IconButtonSize};
    for (int i = 1; i <= cmdPict.UpperBound; ++i) {
        const int row = (i - 1) / PageColumns;
        const int column = (i - 1) % PageColumns;
        cmdPict[i] = {
            .Place = {column * PanelPitch, row * PanelPitch, IconButtonSize, IconButtonSize},
            .Visible = true};
    }
}

void frmConfigToolbox_Load() {
    frmConfigToolbox = {};
    frmConfigToolbox.Form.Loaded = true;
    ShowCataloguePage();
    LoadPanel();
}

void frmConfigToolbox_scroll_Change() { ShowCataloguePage(); }

void frmConfigToolbox_cmdPict_MouseMove(int Index) {
    const auto key = CatalogueKey(CatalogueIndex(Index));
    if (!key.empty()) frmConfigToolbox.lblFunction.Caption = key;
    frmConfigToolbox.Dragged = frmConfigToolbox.cmdPict[Index].Place;
}

void frmConfigToolbox_pnlToolbox_DragDrop(int Index) {
    const auto key = CatalogueKey(CatalogueIndex(Index));
    if (key.empty()) return;
    const int raised = frmConfigToolbox.Count + 1;
    if (raised >= FullCount) {
        Tell("No more room in this toolbox !", Icon::Critical);
        return;
    }
    frmConfigToolbox.Count = raised;
    AppendKey(key);
    auto& dragged = frmConfigToolbox.cmdPict[Index].Place;
    dragged.Top = frmConfigToolbox.Dragged.Top;
    dragged.Left = frmConfigToolbox.Dragged.Left;
    LoadPanelIcon(raised, raised - 1, key);
}

void frmConfigToolbox_cmdButton_MouseDown(int Index, int Button) {
    if (Button == RightButton) RemoveKey(Index);
}

void frmConfigToolbox_chkClear_Click() {
    ClearPanel(1);
    frmConfigToolbox.chkClear.Value = 0;
}

void frmConfigToolbox_chkReload_Click() {
    if (frmConfigToolbox.chkReload.Value == 0) return;
    ClearPanel(0);
    if (AskForFile()) {
        frmConfigToolbox.opnFileName.Value = true;
        LoadPanel();
    } else {
        Tell("Load Failed.", Icon::Exclamation);
    }
    frmConfigToolbox.chkReload.Value = 0;
}

void frmConfigToolbox_opnFileName_Click() {
    // It is the only option: a second click doesn't clear it.
    frmConfigToolbox.opnFileName.Value = true;
    AskForFile();
}

void frmConfigToolbox_cmdOK_Click() {
    if (!SavePanelOrTell()) return;
    ReloadToolbox();
    frmConfigToolbox.Form.Visible = false;
}

void frmConfigToolbox_cmdCancel_Click() { frmConfigToolbox.Form.Visible = false; }

Form frmConfigToolbox_Table() {
    auto& form = frmConfigToolbox;
    return {.Name = "frmConfigToolbox",
            .State = &form.Form,
            .Controls = {{"scroll", &form.scroll, frmConfigToolbox_scroll_Change},
                         {"lblFunction", &form.lblFunction},
                         {"lbltoolbox", &form.lbltoolbox},
                         {"chkClear", &form.chkClear, frmConfigToolbox_chkClear_Click},
                         {"chkReload", &form.chkReload, frmConfigToolbox_chkReload_Click},
                         {"opnFileName", &form.opnFileName, frmConfigToolbox_opnFileName_Click},
                         {"cmdOK", &form.cmdOK, frmConfigToolbox_cmdOK_Click},
                         {"cmdCancel", &form.cmdCancel, frmConfigToolbox_cmdCancel_Click}}};
}

void mnuOptionsConfigureToolbox_Click(Worksheet& sheet) {
    frmConfigToolbox_Load();
    desktop->ShowModal("frmConfigToolbox");
    desktop->FocusWorksheet(DocumentNumber(sheet));
    frmConfigToolbox = {};
    if (sheet.mnuOptionsToolbox.Checked) ShowToolbox();
}

}  // namespace quorvane
