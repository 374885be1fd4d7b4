// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/checked_array.h"
#include "platform/controls.h"
#include "platform/drawing.h"

namespace quorvane {

/// The picture of one box on a worksheet. All measures are screen units in the window's client
/// area: the sheet position less the scroll bars' values.
struct BoxControl {
    double Left = 0;
    double Top = 0;
    double Width = 495;
    double Height = 495;
    bool Visible = false;
    int Picture = 0;  ///< Cell of the icon strip, 1 to 146; 0 no picture
    int MousePointer = PointerDefault;
    bool DragAutomatic = false;  ///< The left button drags it; else it is clicked

    friend bool operator==(const BoxControl&, const BoxControl&) = default;
};

/// The selection rectangle, in client coordinates.
struct RectangleShape {
    double Left = 0, Top = 0, Width = 0, Height = 0;
    bool Visible = false;
};

/// The gauge of used boxes.
struct GaugePanel {
    Area Place;
    double Value = 0;  ///< Per cent
};

/// The button that shows the line colour, and whether multiple arrows are on.
struct ArrowPanel {
    Area Place;
    std::int32_t BackColor = 0xE0E0E0;  ///< The current line colour, red in the low byte
    bool HoldsArrow = false;            ///< Its picture is that of pctArrow: multiple arrows are on
};

/// A scroll bar at an edge of the sheet; its value is the sheet's place at that edge, in screen
/// units.
struct SheetScrollBar : ScrollBar {
    Area Place;
};

/// The label that names the box under the mouse.
struct Bubble {
    std::string Caption;
    double Left = 0, Top = 0;
    bool Visible = false;
};

/// The panel of the guided tour; a click on it shows the next step.
struct TourPanel {
    std::string Caption;
    bool Visible = false;
};

/// A document's window: its controls and what is painted on it. The window is called "main".
struct Worksheet {
    Worksheet();

    std::string Tag;      ///< Document number as decimal digits; "" marks the template
    std::string Caption;  ///< Also the file name: "Untitled:" and the number until the first save
    bool Shown = false;
    bool Minimized = false;
    double ScaleWidth = 9600;  ///< Inner size of the window, in screen units; the screen writes it
    double ScaleHeight = 7200;
    int MousePointer = PointerDefault;
    int DrawWidth = 1;  ///< Pen width of what is painted from now on, in pixels
    GaugePanel pnlResource;
    ArrowPanel pnlArrow;
    Area pctblank;
    SheetScrollBar scrH;
    SheetScrollBar scrV;
    ControlArray<BoxControl> box;  ///< At the box's own number; element 0 is there by design
    std::vector<DrawnShape> Surface;
    RectangleShape shpCopy;
    Bubble txtboxname;
    TourPanel pnlTour;
    std::string cmdEventFire;  ///< The key that the toolbox fired at this worksheet
    MenuItem mnuMultipleArrows;
    MenuItem mnuOptionsBubbleShow;
    MenuItem mnuOptionsToolbox;
    MenuItem mnuOptionsCurrentToolbox;
    MenuItem mnuHelpTour;
    CheckedArray<MenuItem, 0, 4> mnuFileArray;  ///< Recent files; element 0 is the separator
};

/// The records of the frame window that documents copy from.
struct FrameWindow {
    FrameWindow();

    std::string txtEvent;  ///< The key that the toolbox leaves for the worksheet under the mouse
    MenuItem mnuOptionsToolbox;
    MenuItem mnuOptionsCurrentToolbox;
    CheckedArray<MenuItem, 0, 4> mnuFileArray;
};

/// What is known of a document apart from its window, by the same number.
struct DocumentState {
    std::int16_t Modified = 0;  ///< -1 with changes that are not saved
    std::int16_t Closed = 0;    ///< -1 when the document was closed and its number is free
    /// Grows when the boxes are those of a new worksheet, or of the file on disk; 0 when they are
    /// those of no file.
    int Stored = 0;
    bool SaveFailed =
        false;  ///< The system refused the last save, which passes over that in silence
};

/// The open documents by number; element 0 holds none. A closed document may have no window.
extern GrowableArray<std::unique_ptr<Worksheet>> Documents;
extern GrowableArray<DocumentState> DocumentStates;
/// The document that is being created or laid out.
extern std::int16_t CurrentDocument;
extern FrameWindow frmMDI;

/// The window of a document; error 9 for a number beyond the table, 91 when it has no window.
inline Worksheet& DocumentWindow(int document) {
    auto& window = Documents[document];
    if (!window) Raise(91);
    return *window;
}

/// The number of a worksheet's document; error 13 for the template.
std::int16_t DocumentNumber(const Worksheet& sheet);

/// Notes that the worksheet's document has changes that are not saved.
void MarkModified(const Worksheet& sheet);

/// Runs an action with the window and number of each document that is not closed.
template <class Action>
void ForEachOpenDocument(Action&& action) {
    for (int i = 1; i <= DocumentStates.UpperBound(); ++i) {
        if (!DocumentStates[i].Closed && Documents[i]) action(*Documents[i], i);
    }
}

/// Gives out a document number: the first closed one, or a new one. Modified of a reused number
/// stays as it stood.
std::int16_t AllocateDocument();

/// Sets the pointer shape of every open worksheet.
void SetPointerAll(int pointer);
/// Sets the gauge of every open worksheet, in per cent.
void UpdateBoxGauge(double percent);
/// The share of the box table in use, in per cent: what the gauge shows at rest.
double BoxTableFill();

/// Hides the selection rectangle of the document with this number and makes it empty; "" does
/// nothing.
void ClearSelectionRect(const std::string& document);

void ResetDocuments();

}  // namespace quorvane
