// SPDX-License-Identifier: MIT
#include "toolbox/toolbox.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "catalogue/icon_table.h"
#include "diagram/box_table.h"
#include "diagram/connections.h"
#include "diagram/preferences.h"
#include "platform/desktop.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace quorvane {

PicturesForm frmPictures;
const std::string ToolboxFilter = "Quorvane Toolbox Files (*.tlb)|*.tlb|All Files (*.*)|*.*";

namespace {

/// The number under which the toolbox file stays open: not the diagram loader's.
constexpr int ToolboxFile = 2;
constexpr std::string_view NamePrefix = "Current Toolbox: ";
constexpr std::string_view BuiltInName = "Current Toolbox: default.tlb";
constexpr std::array<std::string_view, 8> BuiltInKeys = {
    "Arrow",      "Keyboard Input", "Vector Make Input", "Numerical",
    "Polynomial", "Comment",        "Screen Output",     "Plot Output"};

/// Distances of the buttons, down and across.
struct Pitch {
    double Row;
    double Column;
};
constexpr Pitch FilePitch = {510, 510};
constexpr Pitch BuiltInPitch = {400, 480};
constexpr Pitch ResizedPitch = {500, 500};

std::int16_t ColumnsOfSize(const std::string& size) {
    const bool digit = !size.empty() && size[0] >= '0' && size[0] <= '9';
    return static_cast<std::int16_t>(digit ? size[0] - '0' : 3);
}

std::string ToolboxName() {
    if (Documents.UpperBound() < 1) return frmMDI.mnuOptionsCurrentToolbox.Caption;
    return std::string(NamePrefix) + frmPrefs.txtToolbox.Text;
}

/// Runs a step of making button `i`. One that fails leaves the button with the face of cell 104.
template <class Statement>
void MakeButton(int i, Statement&& statement) {
    if (Attempt(std::forward<Statement>(statement))) return;
    icons = {.ClipX = 416, .ClipY = 192};
    Attempt([&] { frmPictures.cmd[i].Picture = Clip(); });
}

/// Row and column of button `i`, from 0 and 1; error 11 without columns.
int RowOf(int i) {
    if (frmPictures.Columns == 0) throw RuntimeError(11);
    return (i - 1) / frmPictures.Columns;
}

/// Rows that are closer than a button is high show it lower, so that no button hides another.
void PlaceButton(IconButton& button, int row, int column, const Pitch& pitch) {
    const auto& origin = frmPictures.cmd[0].Place;
    button.Place.Top = origin.Top + row * pitch.Row;
    button.Place.Left = origin.Left + (column - 1) * pitch.Column;
    button.Place.Width = origin.Width;
    button.Place.Height = std::min(origin.Height, pitch.Row);
}

void LoadButton(int i, const Pitch& pitch) {
    int row = 0;
    MakeButton(i, [&] { row = RowOf(i); });
    const int column = i - frmPictures.Columns * row;
    MakeButton(i, [&] { frmPictures.cmd.Load(i); });
    MakeButton(i, [&] { PlaceButton(frmPictures.cmd[i], row, column, pitch); });
    MakeButton(i, [&] { frmPictures.cmd[i].Picture = Clip(); });
    MakeButton(i, [&] { frmPictures.cmd[i].Visible = true; });
}

void TakeKey(int i, std::string_view key, const Pitch& pitch) {
    if (i > frmPictures.Keys.UpperBound()) frmPictures.Keys.Append({});
    frmPictures.Keys[i] = key;
    SelectBoxIcon(key);
    if (i <= MostToolboxButtons) LoadButton(i, pitch);
}

/// Opens the file, when its number or its name is still open with all files closed first.
void OpenToolboxFile(const std::string& path) {
    try {
        OpenForInput(ToolboxFile, path);
    } catch (const RuntimeError& error) {
        if (error.Number != 55) throw;
        CloseAllFiles();
        OpenForInput(ToolboxFile, path);
    }
}

/// Reads the keys of the open file, up to its end or to a line that can't be read.
void ReadKeys() {
    Attempt([] {
        for (int i = 1; !EndOfFile(ToolboxFile);) {
            const std::string key(LineInput(ToolboxFile));
            if (!key.empty()) TakeKey(i++, key, FilePitch);
        }
    });
}

void LoadFileButtons(const std::string& name) {
    const auto path = FindInFolder(ProgramDirectory, name);
    if (Attempt([&] { OpenToolboxFile(path); })) {
        ReadKeys();
    } else {
        Tell("Toolbox file not found.", Icon::Exclamation);
    }
    const int count = frmPictures.Keys.UpperBound();
    const int columns = frmPictures.Columns;
    if (columns != 0) {
        const int rows = count / columns + 1;
        frmPictures.Height = rows * FilePitch.Row + 360;
    }
    frmPictures.Width = columns * FilePitch.Column + 70;
}

void LoadBuiltInButtons() {
    frmPictures.Columns = 2;
    for (int i = 1; i <= static_cast<int>(BuiltInKeys.size()); ++i) {
        TakeKey(i, BuiltInKeys[static_cast<std::size_t>(i) - 1], BuiltInPitch);
    }
}

/// The file name without its folder, in lower case; "" when the user cancelled.
std::string AskForToolbox() {
    std::string path;
    Attempt([&] { path = desktop->SaveFileDialog(ToolboxFilter, ""); });
    return LowerCase(FileNameOf(path));
}

/// Takes another toolbox file and shows it where the giver of the command shows its toolbox.
void TakeToolbox(const std::string& title, bool shown) {
    const auto caption = std::string(NamePrefix) + title;
    frmMDI.mnuOptionsCurrentToolbox.Caption = caption;
    ForEachOpenDocument(
        [&](Worksheet& window, int) { window.mnuOptionsCurrentToolbox.Caption = caption; });
    frmPrefs.txtToolbox.Text = title;
    ReloadToolbox();
    if (shown) ShowToolbox();
}

}  // namespace

PicturesForm::PicturesForm() { cmd.Load(0).Place = {0, 0, IconButtonSize, IconButtonSize}; }

void LoadToolbox() {
    if (frmPictures.Form.Loaded) return;
    frmPictures.Columns = ColumnsOfSize(frmPrefs.lbltoolboxsize.Caption);
    frmPictures.Form.Loaded = true;
    frmPictures.Keys.Resize(1);
    const auto name = ToolboxName();
    if (name == BuiltInName) {
        LoadBuiltInButtons();
    } else {
        LoadFileButtons(name.substr(std::min(NamePrefix.size(), name.size())));
    }
}

void UnloadToolbox() {
    if (!frmPictures.Form.Loaded) return;
    frmMDI.mnuOptionsToolbox.Checked = false;
    const auto marker = frmPictures.ReloadMarker;
    frmPictures = {};
    frmPictures.ReloadMarker = marker;
}

void ReloadToolbox() {
    UnloadToolbox();
    frmPictures.ReloadMarker = -1;
    LoadToolbox();
    frmPictures.ReloadMarker = 0;
}

void ShowToolbox() {
    LoadToolbox();
    frmPictures.Form.Visible = true;
}

void HideToolbox() { frmPictures.Form.Visible = false; }

void frmPictures_cmd_Click(int Index) {
    if (EditMode == 3 || EditMode == 4) EditMode = 1;
    frmMDI.txtEvent = frmPictures.Keys[Index];
    txtEvent_Change();
}

void frmPictures_Resize(double width, double height) {
    if (frmPictures.ReloadMarker != 0 || !frmPictures.Form.Loaded) return;
    const int mostColumns = 32767;
    int columns = 0;
    while (columns < mostColumns && (columns + 1) * ResizedPitch.Column - 20 <= width) ++columns;
    // A window narrower than a button still has its one column.
    frmPictures.Columns = ToInt16(std::max(columns, 1));
    int rows = 0;
    for (int i = 1; frmPictures.cmd.Has(i); ++i) {
        const int row = RowOf(i);
        PlaceButton(frmPictures.cmd[i], row, i - frmPictures.Columns * row, ResizedPitch);
        rows = row + 1;
    }
    frmPictures.Width = width;
    frmPictures.Height = height;
    const double buttons = rows * ResizedPitch.Row;
    if (height < buttons + 300) frmPictures.Height = buttons + 360;
    frmPrefs.lbltoolboxsize.Caption = NumberText(frmPictures.Columns) + "X" + NumberText(rows);
}

void txtEvent_Change() {
    if (frmMDI.txtEvent != "Arrow") return;
    BeginArrow();
    frmMDI.txtEvent.clear();
}

void mnuOptionsToolbox_Click() {
    const bool shown = !frmMDI.mnuOptionsToolbox.Checked;
    frmMDI.mnuOptionsToolbox.Checked = shown;
    ForEachOpenDocument([&](Worksheet& window, int) { window.mnuOptionsToolbox.Checked = shown; });
    if (shown) {
        ShowToolbox();
    } else {
        HideToolbox();
    }
}

void mnuOptionsToolbox_Click(Worksheet& /*sheet*/) { mnuOptionsToolbox_Click(); }

void mnuOptionsCurrentToolbox_Click() {
    const auto title = AskForToolbox();
    // The check mark from before the reload, which clears it.
    if (!title.empty()) TakeToolbox(title, frmMDI.mnuOptionsToolbox.Checked);
}

void mnuOptionsCurrentToolbox_Click(Worksheet& sheet) {
    const auto title = AskForToolbox();
    if (!title.empty()) TakeToolbox(title, sheet.mnuOptionsToolbox.Checked);
}

void main_Activate(Worksheet& sheet) {
    if (sheet.Tag.empty()) return;
    sheet.mnuOptionsToolbox.Checked = frmMDI.mnuOptionsToolbox.Checked;
    sheet.mnuOptionsCurrentToolbox.Caption = frmMDI.mnuOptionsCurrentToolbox.Caption;
}

}  // namespace quorvane
