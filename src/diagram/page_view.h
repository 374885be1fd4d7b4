// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "diagram/worksheet.h"
#include "platform/checked_array.h"
#include "platform/controls.h"

namespace quorvane {

/// The dialog that shows the whole sheet at small scale, with the boxes of all documents on top of
/// each other. Its places are screen units in the dialog.
struct PageViewForm {
    FormState Form = {.Caption = "Quorvane Page View"};
    double Width = 9600;  ///< The dialog never changes its size
    double Height = 7800;
    Area pnl = {0, 0, 0, 600};         ///< The bar at the bottom
    Area cmdOK = {0, 112, 1068, 375};  ///< On pnl
    ControlArray<BoxControl> box;      ///< At the box's own number
    std::vector<DrawnShape> Surface;
    Area Page;  ///< The extent of the sheet
    Area Seen;  ///< The part of it that its worksheet shows, at its plain scale
};
extern PageViewForm frmPageView;

void mnuPageView_Click(Worksheet& sheet);
void frmPageView_cmdOK_Click();

}  // namespace quorvane
