// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "diagram/worksheet.h"
#include "platform/controls.h"
#include "platform/form.h"

namespace quorvane {

/// The manual's file. A name without a folder lies in the program directory; "" means that the
/// program has no manual.
extern std::string HelpFile;
extern const char* const Manual;

void mnuHelpContents_Click();
void mnuHelpHowTo_Click();
void mnuHelpSearch_Click();
/// The same from a worksheet's menu, where a missing setting or a failing viewer is reported.
void mnuHelpSearch_Click(Worksheet& sheet);

/// The dialog with the program's name and a line of text that runs in a ring.
struct AboutForm {
    FormState Form = {.Caption = "About Quorvane"};
    Label Label1 = {.Caption = "Quorvane"};
    Label lblName;
    Button cmdOK = {.Caption = "OK"};
    int Timer1 = 150;  ///< Milliseconds between two ticks
};
extern AboutForm frmAbout;

void mnuHelpAbout_Click();
/// A tick: the first character of the line goes to its end.
void frmAbout_Timer1_Timer();
void frmAbout_cmdOK_Click();
/// Without the timer, which the screen runs while the dialog shows.
Form frmAbout_Table();

/// The dialog with the terms of use.
struct DisclaimerForm {
    FormState Form = {.Caption = "Disclaimer"};
    Label Label1;
    Button cmdOK = {.Caption = "OK"};
};
extern DisclaimerForm frmDisclaimer;

void mnuHelpDisclaimer_Click();
void frmDisclaimer_cmdOK_Click();
Form frmDisclaimer_Table();

}  // namespace quorvane
