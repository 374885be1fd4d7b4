// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace quorvane {

/// The dialog with the program's name and a line of text that scrolls round and round.
struct AboutForm {
    FormState Form = {.Caption = "About Quorvane"};
    Label Label1 = {.Caption = "Quorvane"};
    Label lblName;
    Button cmdOK = {.Caption = "OK"};
};
extern AboutForm frmAbout;

/// Shows the dialog and returns when it is closed.
void mnuHelpAbout_Click();
/// A tick of the timer: moves the first character of the line to its end.
void frmAbout_Timer1_Timer();
void frmAbout_cmdOK_Click();
Form frmAbout_Table();

/// The dialog with the terms of use.
struct DisclaimerForm {
    FormState Form = {.Caption = "Disclaimer"};
    Label Label1;
    Button cmdOK = {.Caption = "OK"};
};
extern DisclaimerForm frmDisclaimer;

/// Shows the dialog and returns when it is closed.
void mnuHelpDisclaimer_Click();
void frmDisclaimer_cmdOK_Click();
Form frmDisclaimer_Table();

}  // namespace quorvane
