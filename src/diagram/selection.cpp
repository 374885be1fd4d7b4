// SPDX-License-Identifier: MIT
#include "diagram/selection.h"

#include <vector>

#include "diagram/arrows.h"
#include "diagram/box_table.h"
#include "diagram/delete_boxes.h"
#include "diagram/placement.h"
#include "platform/numbers.h"

namespace quorvane {

GrowableArray<std::int16_t> SelectedBoxes;
std::int16_t SelectionLeft = 0;
std::int16_t SelectionTop = 0;

namespace {

/// Moves one pair of edges to the mouse; `start` is the left or upper one.
void Stretch(double& start, double& extent, double mouse) {
    if (mouse > start) {
        extent = mouse - start;
    } else {
        extent = extent + start - mouse;
        start = mouse;
    }
}

bool LiesInside(const Worksheet& sheet, const Box& box) {
    const auto& shape = sheet.shpCopy;
    const double left = sheet.scrH.Value + shape.Left;
    const double top = sheet.scrV.Value + shape.Top;
    return left < box.BoxLeft && box.BoxLeft < left + shape.Width && top < box.BoxTop &&
           box.BoxTop < top + shape.Height;
}

/// Puts control `number` and its record where box `model` comes to lie when the corner of the
/// selection lands at (X, Y). Error 340 for a control that isn't on this worksheet.
void PlaceLike(Worksheet& sheet, int model, int number, double X, double Y) {
    auto& control = sheet.box[number];
    control.Left = X + (static_cast<double>(Boxes[model].BoxLeft) - SelectionLeft);
    control.Top = Y + (static_cast<double>(Boxes[model].BoxTop) - SelectionTop);
    Boxes[number].BoxLeft = ToInt32(sheet.scrH.Value + control.Left);
    Boxes[number].BoxTop = ToInt32(sheet.scrV.Value + control.Top);
}

/// Copies empty and locked slots; connected ones stay as they are in the copy.
template <class Slots>
void CopyOpenSlots(const Slots& from, Slots& to) {
    for (int i = 1; i <= Slots::UpperBound; ++i) {
        if (from[i] == 0 || from[i] == LockedSlot) to[i] = from[i];
    }
}

/// The first pass of a group copy: the box without its arrows. Returns the copy's number.
int CopyWithoutArrows(Worksheet& sheet, int model, double X, double Y) {
    EditMode = 7;
    AddBox(sheet);
    const int number = NextBox - 1;
    Attempt([&] { GiveIcon(sheet.box[number], BoxIconKey(model)); });
    Attempt([&] {
        const Box& from = Boxes[model];
        Box& to = Boxes[number];
        to.BoxType = from.BoxType;
        to.BoxMark = from.BoxMark;
        to.BoxText = from.BoxText;
    });
    Attempt([&] {
        PlaceLike(sheet, model, number, X, Y);
        sheet.box[number].Visible = true;
    });
    Attempt([&] {
        const Box& from = Boxes[model];
        Box& to = Boxes[number];
        CopyOpenSlots(from.BoxIn, to.BoxIn);
        CopyOpenSlots(from.BoxOut, to.BoxOut);
        to.BoxLineColor = from.BoxLineColor;
    });
    return number;
}

/// Where a slot of a selected box holds another selected box, the copy's slot holds that one's
/// copy.
template <class Slots>
void CopyInnerArrows(const Slots& from, Slots& to, const std::vector<int>& copies) {
    for (int j = 1; j <= Slots::UpperBound; ++j) {
        for (int k = 1; k <= SelectedBoxes.UpperBound(); ++k) {
            if (from[j] == SelectedBoxes[k]) to[j] = ToInt16(copies[static_cast<std::size_t>(k)]);
        }
    }
}

}  // namespace

void StretchSelection(Worksheet& sheet, double X, double Y) {
    auto& shape = sheet.shpCopy;
    if (!shape.Visible) {
        shape.Top = Y;
        shape.Left = X;
        shape.Visible = true;
        return;
    }
    Stretch(shape.Left, shape.Width, X);
    Stretch(shape.Top, shape.Height, Y);
}

void EndSelection(Worksheet& sheet) {
    SelectedBoxes.Resize(0);
    if (sheet.shpCopy.Visible) {
        const auto document = DocumentNumber(sheet);
        for (std::int16_t i = 1; i < NextBox; ++i) {
            if (Boxes[i].BoxDocument == document && LiesInside(sheet, Boxes[i])) {
                SelectedBoxes.Append(i);
            }
        }
    }
    // Far out on the sheet the corner doesn't fit into 16 bits; it then stays unchanged.
    Attempt([&] { SelectionLeft = ToInt16(sheet.scrH.Value + sheet.shpCopy.Left); });
    Attempt([&] { SelectionTop = ToInt16(sheet.scrV.Value + sheet.shpCopy.Top); });
}

void MoveSelection(Worksheet& sheet, double X, double Y) {
    const auto document = DocumentNumber(sheet);
    for (int i = 1; i <= SelectedBoxes.UpperBound(); ++i) {
        const int number = SelectedBoxes[i];
        const bool isOwn = BoxOrFree(number).BoxDocument == document;
        Attempt(isOwn ? ErrorPolicy::Ignore : ErrorPolicy::Fatal,
                [&] { PlaceLike(sheet, number, number, X, Y); });
    }
    EditMode = 1;
    MarkModified(sheet);
    RedrawDocument(sheet.Tag);
}

void CopySelection(Worksheet& sheet, double X, double Y) {
    std::vector<int> copies = {0};
    for (int i = 1; i <= SelectedBoxes.UpperBound(); ++i) {
        copies.push_back(CopyWithoutArrows(sheet, SelectedBoxes[i], X, Y));
    }
    for (int i = 1; i <= SelectedBoxes.UpperBound(); ++i) {
        Attempt([&] {
            const Box& from = Boxes[SelectedBoxes[i]];
            Box& to = Boxes[copies[static_cast<std::size_t>(i)]];
            CopyInnerArrows(from.BoxOut, to.BoxOut, copies);
            CopyInnerArrows(from.BoxIn, to.BoxIn, copies);
        });
    }
    EditMode = 1;
    RedrawDocument(sheet.Tag);
}

void CopyBox(Worksheet& sheet, int number) {
    AddBox(sheet);
    const int copy = NextBox - 1;
    Attempt([&] {
        const Box& from = Boxes[number];
        Box& to = Boxes[copy];
        to.BoxType = from.BoxType;
        to.BoxMark = from.BoxMark;
        // The picture is chosen before the text is copied, so a plot or a diagonal doesn't get its
        // own.
        Attempt([&] { GiveIcon(sheet.box[copy], BoxIconKey(copy)); });
        to.BoxText = from.BoxText;
        to.BoxIn = from.BoxIn;
        to.BoxOut = from.BoxOut;
        to.BoxLineColor = from.BoxLineColor;
    });
}

void mnuEditMove_Click(Worksheet& /*sheet*/) { EditMode = 5; }
void mnueditcopy_Click(Worksheet& /*sheet*/) { EditMode = 6; }

void mnuEditClear_Click(Worksheet& /*sheet*/) {
    bool Silent = false;
    DeleteBoxes(Silent);
}

void mnuEditRedraw_Click(Worksheet& sheet) { RedrawDocument(sheet.Tag); }

void ResetSelection() {
    SelectedBoxes.Resize(0);
    SelectionLeft = 0;
    SelectionTop = 0;
}

}  // namespace quorvane
