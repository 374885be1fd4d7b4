// SPDX-License-Identifier: MIT
#include "commands/worksheet_events.h"

#include "commands/run_command.h"
#include "diagram/arrows.h"
#include "diagram/box_info.h"
#include "diagram/box_table.h"
#include "diagram/connections.h"
#include "diagram/placement.h"
#include "diagram/selection.h"
#include "platform/numbers.h"

namespace quorvane {

void main_MouseDown(Worksheet& sheet, int /*Button*/, int /*Shift*/, double X, double Y) {
    switch (EditMode) {
        case 2: PlaceArmedBox(sheet, X, Y); break;
        case 5: MoveSelection(sheet, X, Y); break;
        case 6: CopySelection(sheet, X, Y); break;
        default: break;
    }
    if (sheet.shpCopy.Visible) {
        ClearSelectionRect(sheet.Tag);
        MarkModified(sheet);
    }
    SetPointerAll(PointerDefault);
}

void main_MouseMove(Worksheet& sheet, int Button, int /*Shift*/, double X, double Y) {
    if (!frmMDI.txtEvent.empty()) {
        sheet.cmdEventFire = frmMDI.txtEvent;
        cmdEventFire_Click(sheet);
        frmMDI.txtEvent.clear();
    }
    if ((Button & LeftButton) != 0 && EditMode == 1) StretchSelection(sheet, X, Y);
    HideBubble(sheet);
}

void main_MouseUp(Worksheet& sheet, int /*Button*/, int /*Shift*/, double /*X*/, double /*Y*/) {
    EndSelection(sheet);
}

void main_DragDrop(Worksheet& sheet, int number, double X, double Y) {
    Attempt([&] {
        auto& control = sheet.box[number];
        control.Left = X - control.Width / 2;
        control.Top = Y - control.Height / 2;
        Boxes[number].BoxLeft = ToInt32(sheet.scrH.Value + X);
        Boxes[number].BoxTop = ToInt32(sheet.scrV.Value + Y);
    });
    HideBubble(sheet);
    RedrawDocument(sheet.Tag);
    MarkModified(sheet);
}

void box_Click(Worksheet& sheet, int number) {
    if (sheet.pnlArrow.HoldsArrow && EditMode == 1) EditMode = 3;
    switch (EditMode) {
        case 3:
            EditMode = 4;
            ArrowSource = ToInt16(number);
            break;
        case 4: MakeConnection(sheet, number); break;
        case 6: CopyBox(sheet, number); break;
        default: break;
    }
}

void box_MouseDown(Worksheet& sheet, int number, int Button, int Shift) {
    if (Button == RightButton && Shift == 0) {
        auto& control = sheet.box[number];
        control.DragAutomatic = !control.DragAutomatic;
    } else if (Button == MiddleButton || Button == RightButton) {
        OpenBoxInfo(sheet, number);
    }
}

void box_MouseMove(Worksheet& sheet, int number) { ShowBubble(sheet, number); }

}  // namespace quorvane
