// SPDX-License-Identifier: MIT
#include "diagram/connections.h"

#include "diagram/arrows.h"
#include "diagram/box_table.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

/// The lowest empty slot, 1 when there is none.
template <class Slots>
int EmptySlot(const Slots& slots) {
    for (int i = 1; i <= Slots::UpperBound; ++i) {
        if (slots[i] == 0) return i;
    }
    return 1;
}

}  // namespace

void BeginArrow() {
    EditMode = 3;
    for (int i = 1; i < NextBox; ++i) {
        Attempt([&] { DocumentWindow(Boxes[i].BoxDocument).box[i].MousePointer = PointerArrow; });
    }
    SetPointerAll(PointerNoDrop);
}

void MakeConnection(Worksheet& sheet, int destination) {
    EditMode = 1;
    SetPointerAll(PointerDefault);
    const int source = ArrowSource;
    Box& from = Boxes[source];
    Box& to = Boxes[destination];
    if (from.BoxDocument != to.BoxDocument) {
        Tell("Boxes are not in the same document", Icon::Exclamation);
        return;
    }
    const int entry = EmptySlot(to.BoxIn);
    const int exit = EmptySlot(from.BoxOut);
    if (to.BoxIn[entry] != 0) {
        Tell("No more entries for box" + NumberText(destination) + " !", Icon::Exclamation);
        return;
    }
    if (from.BoxOut[exit] != 0) {
        Tell("No more exits for box" + NumberText(source) + " !", Icon::Exclamation);
        return;
    }
    to.BoxIn[entry] = ToInt16(source);
    from.BoxOut[exit] = ToInt16(destination);
    DrawArrow(source, destination, entry, "b", DocumentNumber(sheet));
}

void mnuArrow_Click(Worksheet& /*sheet*/) { BeginArrow(); }

void mnuMultipleArrows_Click(Worksheet& sheet) {
    sheet.mnuMultipleArrows.Checked = !sheet.mnuMultipleArrows.Checked;
    sheet.pnlArrow.HoldsArrow = sheet.mnuMultipleArrows.Checked;
}

void pnlArrow_Click(Worksheet& sheet) { mnuMultipleArrows_Click(sheet); }

void mnuEditLineColor_Click(Worksheet& sheet) {
    auto& color = sheet.pnlArrow.BackColor;
    Attempt([&] { color = desktop->ColorDialog(color); });
}

}  // namespace quorvane
