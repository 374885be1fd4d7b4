// SPDX-License-Identifier: MIT
#include "shell/about.h"

#include <algorithm>

#include "platform/desktop.h"
#include "quorvane/version.h"

namespace quorvane {

namespace {

const char* const RunningLine =
    "Quorvane " QUORVANE_VERSION " writes MATLAB script from the diagrams that you draw.          ";

const char* const Terms =
    "Quorvane costs nothing. Anybody may use it for any purpose, and may pass it on to others as "
    "long as it stays unchanged.\n\n"
    "It comes as it is, without a warranty of any kind: nobody promises that it serves your "
    "purpose, that it has no faults, or that a script it writes is right. Check your results. "
    "Whoever uses the program bears the risk, and its authors answer for no damage that comes of "
    "its use.";

}  // namespace

AboutForm frmAbout;
DisclaimerForm frmDisclaimer;

void mnuHelpAbout_Click() {
    LoadForm(frmAbout);
    frmAbout.lblName.Caption = RunningLine;
    desktop->ShowModal("frmAbout");
}

void frmAbout_Timer1_Timer() {
    auto& line = frmAbout.lblName.Caption;
    if (!line.empty()) std::rotate(line.begin(), line.begin() + 1, line.end());
}

void frmAbout_cmdOK_Click() { frmAbout = {}; }

Form frmAbout_Table() {
    return {.Name = "frmAbout",
            .State = &frmAbout.Form,
            .Controls = {{"Label1", &frmAbout.Label1},
                         {"lblName", &frmAbout.lblName},
                         {"cmdOK", &frmAbout.cmdOK, frmAbout_cmdOK_Click}},
            .Closed = frmAbout_cmdOK_Click,
            .Timer = {.Interval = 150, .Tick = frmAbout_Timer1_Timer}};
}

void mnuHelpDisclaimer_Click() {
    LoadForm(frmDisclaimer);
    frmDisclaimer.Label1.Caption = Terms;
    desktop->ShowModal("frmDisclaimer");
}

void frmDisclaimer_cmdOK_Click() { frmDisclaimer = {}; }

Form frmDisclaimer_Table() {
    return {"frmDisclaimer",
            &frmDisclaimer.Form,
            {{"Label1", &frmDisclaimer.Label1},
             {"cmdOK", &frmDisclaimer.cmdOK, frmDisclaimer_cmdOK_Click}},
            nullptr,
            frmDisclaimer_cmdOK_Click};
}

}  // namespace quorvane
