// SPDX-License-Identifier: MIT
#pragma once

#include "diagram/worksheet.h"
#include "platform/checked_array.h"
#include "platform/controls.h"
#include "platform/form.h"

namespace quorvane {

/// The dialog that tells what a box is connected to. OK carries out what is ticked; a new colour
/// takes effect at once. After Cancel it stays loaded, so that the next opening shows the ticks
/// again, and those of check boxes that are hidden by then take effect too.
struct InfoForm {
    FormState Form = {.Caption = "Box Information"};
    Label lblBoxName;
    Label lblfunc = {.Visible = false};  ///< The function of a "Compute Function" box
    Label Label1 = {.Caption = "It get's it's data from:"};
    Label Label2 = {.Caption = "It gives it's data to:"};
    Label Label3 = {.Caption = "Disconnect"};
    CheckedArray<Label, 1, 3> lblFrom;  ///< The box at the far end of each entry
    CheckedArray<CheckBox, 1, 3> chkFrom;
    CheckedArray<Label, 1, 5> lblTo;
    CheckedArray<CheckBox, 1, 5> chkTo;
    Label lblEmpty;            ///< The count of empty slots; in the end "OK" or "Cancel"
    CheckBox chkLockedInputs;  ///< Open the locked entries
    CheckBox chkLockedOutputs;
    TextBox txtnum = {.Visible = false};  ///< The box number
    Button cmdColor = {.Caption = "Change color"};
    Button cmdOK = {.Caption = "OK"};
    Button cmdCancel = {.Caption = "Cancel"};
};
extern InfoForm frmInfo;

/// Opens the dialog of a box: its text for a comment, what it is connected to for any other.
void OpenBoxInfo(Worksheet& sheet, int number);

/// Hide the dialog and leave "OK" or "Cancel" in lblEmpty for OpenBoxInfo, which does the rest.
void frmInfo_cmdOK_Click();
void frmInfo_cmdCancel_Click();
/// Gives all arrows that leave the box another colour, also when the dialog is cancelled
/// afterwards.
void frmInfo_cmdColor_Click();
Form frmInfo_Table();

/// Names a box in the bubble at its lower right corner, when bubbles are on.
void ShowBubble(Worksheet& sheet, int number);
void HideBubble(Worksheet& sheet);
/// Switches bubbles on or off, in the preferences and in this worksheet's menu.
void mnuOptionsBubbleShow_Click(Worksheet& sheet);

}  // namespace quorvane
