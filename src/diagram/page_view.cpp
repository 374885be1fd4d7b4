// SPDX-License-Identifier: MIT
#include "diagram/page_view.h"

#include "diagram/arrows.h"
#include "diagram/box_table.h"
#include "diagram/layout.h"
#include "diagram/placement.h"
#include "platform/desktop.h"

namespace quorvane {

PageViewForm frmPageView;

namespace {

void LayOut() {
    auto& form = frmPageView;
    form.pnl.Top = form.Height - form.pnl.Height - 420;
    form.pnl.Width = form.Width - 120;
    form.cmdOK.Left = form.pnl.Width - 1188;
}

void AddBoxes(double scaleX, double scaleY) {
    for (int i = 1; i < NextBox; ++i) {
        auto& control = frmPageView.box.Load(i);
        control.Width *= scaleX;
        control.Height *= scaleY;
        control.Top = Boxes[i].BoxTop * scaleY;
        control.Left = Boxes[i].BoxLeft * scaleX;
        Attempt([&] { GiveIcon(control, BoxIconKey(i)); });
        control.Visible = true;
    }
}

void AddArrows() {
    for (int i = 1; i <= NextBox; ++i) {
        const Box& box = BoxOrFree(i);
        for (const auto peer : box.BoxOut) {
            if (peer <= 0) continue;
            const int entry = FindEntrySlot(i, peer);
            Attempt([&] {
                DrawLegs(frmPageView.Surface, {.Color = box.BoxLineColor[entry]},
                         frmPageView.box[i], frmPageView.box[peer], entry);
            });
        }
    }
}

}  // namespace

void mnuPageView_Click(Worksheet& sheet) {
    frmPageView = {};
    frmPageView.Form.Loaded = true;
    LayOut();
    const double scaleX = (frmPageView.Width - sheet.scrH.Place.Left) / PageRight;
    const double scaleY = (frmPageView.Height - frmPageView.pnl.Height - 1800) / PageBottom;
    AddBoxes(scaleX, scaleY);
    AddArrows();
    frmPageView.Page = {0, 0, PageRight * scaleX, PageBottom * scaleY};
    frmPageView.Seen = {sheet.scrH.Value * scaleX, sheet.scrV.Value * scaleY,
                        sheet.scrV.Place.Left * scaleX, sheet.scrH.Place.Top * scaleY};
    desktop->ShowModal("frmPageView");
    desktop->FocusWorksheet(DocumentNumber(sheet));
}

void frmPageView_cmdOK_Click() { frmPageView = {}; }

}  // namespace quorvane
