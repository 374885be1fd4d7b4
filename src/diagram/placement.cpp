// SPDX-License-Identifier: MIT
#include "diagram/placement.h"

#include "catalogue/icon_table.h"
#include "diagram/box_table.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

/// Element 0 belongs to the window and can't be unloaded.
void UnloadElement(Worksheet& window, int number) {
    if (number != 0) window.box.Unload(number);
}

/// Drops record NextBox, as if a pending arrow had created one. The last box in use is then the
/// one that is written next.
void DropNextBox(Worksheet& sheet) {
    Attempt([&] { UnloadElement(sheet, NextBox); });
    Attempt([&] {
        Box& box = Boxes[NextBox];
        box.BoxText.clear();
        box.BoxIn.Fill(0);
        box.BoxOut.Fill(0);
        box.BoxLineColor.Fill(sheet.pnlArrow.BackColor);
    });
    --NextBox;
}

/// The record keeps its place, which the placing click writes.
void ClearRecord(Box& box, std::int32_t lineColor) {
    box.BoxOut.Fill(0);
    box.BoxLineColor.Fill(lineColor);
    box.BoxIn.Fill(0);
    box.BoxType.clear();
    box.BoxMark.clear();
    box.BoxText.clear();
}

void CountNewBox() {
    ++NextBox;
    if (NextBox <= MaxBoxes + 1) return;
    Tell("The maximum number of boxes (350) has been exceeded.", Icon::Information,
         "Quorvane,vbCritical");
    NextBox = MaxBoxes;
}

/// Moves a box here from the document in which it was armed.
void BringHere(Worksheet& sheet, int number) {
    const auto document = DocumentNumber(sheet);
    Box& box = Boxes[number];
    if (box.BoxDocument == document) return;
    Attempt([&] { UnloadElement(DocumentWindow(box.BoxDocument), number); });
    box.BoxDocument = document;
    Attempt([&] { sheet.box.Load(number); });
    // The key is the text and not BoxIconKey: most boxes get the fallback picture here.
    Attempt([&] {
        GiveIcon(sheet.box[number], box.BoxText.starts_with("Diag") ? "Diag" : box.BoxText);
    });
}

}  // namespace

void GiveIcon(BoxControl& control, std::string_view key) { control.Picture = IconCell(key); }

void AddBox(Worksheet& sheet) {
    if (EditMode == 2) return;
    if (EditMode == 3 || EditMode == 4) DropNextBox(sheet);
    const auto document =
        AttemptValue<std::int16_t>(ErrorPolicy::Ignore, 0, [&] { return DocumentNumber(sheet); });
    Attempt([&] { DocumentWindow(document).box.Load(NextBox); });
    Attempt([&] { Boxes[NextBox].BoxDocument = document; });
    Attempt([&] { DocumentWindow(document).box[NextBox].Visible = false; });
    Attempt([&] { ClearRecord(Boxes[NextBox], sheet.pnlArrow.BackColor); });
    SetPointerAll(PointerCross);
    if (EditMode == 1 || EditMode == 6 || EditMode == 7) CountNewBox();
    EditMode = 2;
    UpdateBoxGauge(BoxTableFill());
}

void PlaceArmedBox(Worksheet& sheet, double X, double Y) {
    const int number = NextBox - 1;
    Attempt([&] { BringHere(sheet, number); });
    EditMode = 1;
    Attempt([&] {
        auto& control = sheet.box[number];
        control.Left = X;
        control.Top = Y;
    });
    Attempt([&] {
        Boxes[number].BoxLeft = ToInt32(sheet.scrH.Value + X);
        Boxes[number].BoxTop = ToInt32(sheet.scrV.Value + Y);
    });
    SetPointerAll(PointerDefault);
    Attempt([&] { sheet.box[number].Visible = true; });
    MarkModified(sheet);
}

}  // namespace quorvane
