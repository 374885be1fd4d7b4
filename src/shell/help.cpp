// SPDX-License-Identifier: MIT
#include "shell/help.h"

#include <algorithm>

#include "diagram/preferences.h"
#include "platform/desktop.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"
#include "quorvane/version.h"

namespace quorvane {

namespace {

enum HelpCommand { Contents = 3, HowTo = 4, PartialKey = 261 };

const char* const RunningLine =
    "Quorvane " QUORVANE_VERSION " writes MATLAB script from the diagrams that you draw.          ";

const char* const Terms =
    "Quorvane costs nothing. Anybody may use it for any purpose, and may pass it on to others as "
    "long as it stays unchanged.\n\n"
    "It comes as it is, without a warranty of any kind: nobody promises that it serves your "
    "purpose, that it has no faults, or that a script it writes is right. Check your results. "
    "Whoever uses the program bears the risk, and its authors answer for no damage that comes of "
    "its use.";

std::string InProgramDirectory(const std::string& file) {
    return FileNameOf(file) == file ? FindInFolder(ProgramDirectory, file) : file;
}

}  // namespace

const char* const Manual = "QUORVANE.HLP";
std::string HelpFile = Manual;
AboutForm frmAbout;
DisclaimerForm frmDisclaimer;

void mnuHelpContents_Click() { desktop->Help(InProgramDirectory(Manual), Contents); }
void mnuHelpHowTo_Click() { desktop->Help(InProgramDirectory(Manual), HowTo); }
void mnuHelpSearch_Click() { desktop->Help(InProgramDirectory(Manual), PartialKey); }

void mnuHelpSearch_Click(Worksheet&) {
    if (HelpFile.empty()) {
        Tell("Unable to display Help Contents. There is no Help associated with this project.",
             Icon::None);
        return;
    }
    try {
        desktop->Help(InProgramDirectory(HelpFile), PartialKey);
    } catch (const RuntimeError& error) {
        Tell(error.Description, Icon::None);
    }
}

void mnuHelpAbout_Click() {
    frmAbout = {};
    frmAbout.Form.Loaded = true;
    frmAbout.lblName.Caption = RunningLine;
    desktop->ShowModal("frmAbout");
}

void frmAbout_Timer1_Timer() {
    auto& line = frmAbout.lblName.Caption;
    if (!line.empty()) std::rotate(line.begin(), line.begin() + 1, line.end());
}

void frmAbout_cmdOK_Click() { frmAbout = {}; }

Form frmAbout_Table() {
    return {"frmAbout",
            &frmAbout.Form,
            {{"Label1", &frmAbout.Label1},
             {"lblName", &frmAbout.lblName},
             {"cmdOK", &frmAbout.cmdOK, frmAbout_cmdOK_Click}},
            nullptr,
            frmAbout_cmdOK_Click};
}

void mnuHelpDisclaimer_Click() {
    frmDisclaimer = {};
    frmDisclaimer.Form.Loaded = true;
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
