// SPDX-License-Identifier: MIT
#include "matlab_link/start_matlab.h"

#include <string>

#include "diagram/preferences.h"
#include "matlab_link/directory_dialog.h"
#include "matlab_link/find_engines.h"
#include "matlab_link/link.h"
#include "platform/desktop.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace quorvane {

namespace {

/// Error 53 when none of the programs is there.
std::string FindProgram(const std::string& folder) {
    for (const auto& name : enginePrograms) {
        auto path = FindInFolder(folder, name);
        if (Attempt([&] { FileAttributes(path); })) return path;
    }
    throw RuntimeError(53);
}

/// False, with a message, when the statement fails.
template <class Statement>
bool ReportFailure(Statement&& statement) {
    const bool isDone = Attempt(statement);
    if (!isDone) Tell("Sorry, Matlab excutable still not found.", Icon::None);
    return isDone;
}

}  // namespace

void mnuFileStartMatlab_Click() {
    frmDirectory_Load();
    frmDirectory.lblTop.Caption = "Please locate the Matlab directory";
    frmDirectory_OfferEngines();
    desktop->ShowModal("frmDirectory");
    const auto folder = frmDirectory.director.Text;
    const bool isPicked = frmDirectory.IsPicked;
    frmDirectory = {};
    if (folder.empty()) {
        Tell("Sorry, cannot continue without the Matlab path.", Icon::Critical);
        return;
    }
    const auto bin = JoinPath(folder, "bin");
    auto program = JoinPath(bin, enginePrograms.front());
    ReportFailure([&] { program = FindProgram(bin); });
    const bool isStarted = ReportFailure([&] { StartLink(program); });
    if (isStarted && isPicked) RememberEngine(folder);
    Attempt([] { ChangeDirectory(ProgramDirectory); });
}

}  // namespace quorvane
