// SPDX-License-Identifier: MIT
#include "matlab_link/start_matlab.h"

#include <string>
#include <vector>

#include "diagram/preferences.h"
#include "matlab_link/directory_dialog.h"
#include "matlab_link/link.h"
#include "platform/desktop.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace quorvane {

namespace {

// Programs in "bin"; the first one that exists is started.
#ifdef _WIN32
const std::vector<std::string> programs = {"matlab.exe"};
#else
const std::vector<std::string> programs = {"matlab", "octave-cli", "octave"};
#endif

/// Error 53 when none of the programs is there.
std::string FindProgram(const std::string& folder) {
    for (const auto& name : programs) {
        auto path = FindInFolder(folder, name);
        if (Attempt([&] { FileAttributes(path); })) return path;
    }
    throw RuntimeError(53);
}

template <class Statement>
void ReportFailure(Statement&& statement) {
    if (!Attempt(statement)) Tell("Sorry, Matlab excutable still not found.", Icon::None);
}

}  // namespace

void mnuFileStartMatlab_Click() {
    frmDirectory_Load();
    frmDirectory.lblTop.Caption = "Please locate the Matlab directory";
    desktop->ShowModal("frmDirectory");
    const auto folder = frmDirectory.director.Text;
    frmDirectory = {};
    if (folder.empty()) {
        Tell("Sorry, cannot continue without the Matlab path.", Icon::Critical);
        return;
    }
    const auto bin = JoinPath(folder, "bin");
    auto program = JoinPath(bin, programs.front());
    ReportFailure([&] { program = FindProgram(bin); });
    ReportFailure([&] { StartLink(program); });
    Attempt([] { ChangeDirectory(ProgramDirectory); });
}

}  // namespace quorvane
