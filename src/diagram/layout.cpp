// SPDX-License-Identifier: MIT
#include "diagram/layout.h"

#include "diagram/arrows.h"
#include "diagram/box_table.h"
#include "diagram/preferences.h"
#include "platform/numbers.h"

namespace quorvane {

std::int32_t PageRight = 0;
std::int32_t PageBottom = 0;

namespace {

constexpr int Growth = 1000;

void SetExtent(double& extent, double value) {
    if (value >= 0) extent = value;
}

/// Runs an action with the record and the control of each box of this worksheet.
template <class Action>
void ForEachBoxOf(Worksheet& sheet, Action&& action) {
    const auto document = DocumentNumber(sheet);
    for (int i = 1; i < NextBox; ++i) {
        if (Boxes[i].BoxDocument != document) continue;
        Attempt([&] { action(Boxes[i], sheet.box[i]); });
    }
}

/// Grows a bar that stands at its maximum. The page ends where the bar does, even when it can't
/// grow.
void GrowAtEnd(SheetScrollBar& bar, std::int32_t& page) {
    if (bar.Value != bar.Max) return;
    Attempt([&] { bar.Max = ToInt16(bar.Max + Growth); });
    page = bar.Max;
}

}  // namespace

void main_Load(Worksheet& sheet) {
    sheet.DrawWidth = TextToInt16(frmPrefs.txtLineWidth.Text);
    sheet.mnuOptionsBubbleShow.Checked = frmPrefs.chkShowBubbles.Value != 0;
    sheet.pnlResource.Value = BoxTableFill();
    PageRight = ToInt32(sheet.scrH.Place.Left + sheet.scrH.Place.Width);
    PageBottom = sheet.scrV.Max;
}

void main_Resize(Worksheet& sheet) {
    const auto document =
        AttemptValue<std::int16_t>(ErrorPolicy::Ignore, 0, [&] { return DocumentNumber(sheet); });
    if (document == 0) return;
    CurrentDocument = document;
    if (sheet.Minimized) return;
    const double W = sheet.ScaleWidth;
    const double H = sheet.ScaleHeight;
    auto& gauge = sheet.pnlResource.Place;
    auto& arrow = sheet.pnlArrow.Place;
    auto& corner = sheet.pctblank;
    auto& across = sheet.scrH.Place;
    auto& down = sheet.scrV.Place;
    gauge.Left = 0;
    gauge.Top = H - gauge.Height;
    arrow.Left = gauge.Left + gauge.Width;
    arrow.Top = H - arrow.Height;
    corner.Left = W - corner.Width;
    corner.Top = H - corner.Height;
    across.Left = arrow.Left + arrow.Width;
    SetExtent(across.Width, corner.Left - across.Left);
    across.Top = H - across.Height;
    down.Top = 0;
    SetExtent(down.Height, corner.Top);
    down.Left = W - down.Width;
}

void scrH_Change(Worksheet& sheet) {
    Attempt([&] { ClearSelectionRect(sheet.Tag); });
    GrowAtEnd(sheet.scrH, PageRight);
    Attempt([&] {
        ForEachBoxOf(sheet, [&](const Box& box, BoxControl& control) {
            control.Left = static_cast<double>(box.BoxLeft) - sheet.scrH.Value;
        });
    });
    Attempt([&] { RedrawDocument(sheet.Tag); });
}

void scrV_Change(Worksheet& sheet) {
    Attempt([&] { ClearSelectionRect(sheet.Tag); });
    GrowAtEnd(sheet.scrV, PageBottom);
    Attempt([&] {
        ForEachBoxOf(sheet, [&](const Box& box, BoxControl& control) {
            control.Top = static_cast<double>(box.BoxTop) - sheet.scrV.Value;
        });
    });
    Attempt([&] { RedrawDocument(sheet.Tag); });
}

}  // namespace quorvane
