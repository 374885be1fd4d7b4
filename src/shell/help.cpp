// SPDX-License-Identifier: MIT
#include "shell/help.h"

#include "diagram/preferences.h"
#include "platform/desktop.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace quorvane {

namespace {

enum HelpCommand { Contents = 3, HowTo = 4, PartialKey = 261 };

std::string InProgramDirectory(const std::string& file) {
    return FileNameOf(file) == file ? FindInFolder(ProgramDirectory, file) : file;
}

}  // namespace

const char* const Manual = "QUORVANE.HLP";
std::string HelpFile = Manual;

std::string ManualFile() { return InProgramDirectory(HelpFile); }

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

}  // namespace quorvane
