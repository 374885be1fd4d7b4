// SPDX-License-Identifier: MIT
#include "shell/start_up.h"

#include <cstdlib>

#include "diagram/preferences.h"
#include "files/settings.h"
#include "matlab_link/directory_dialog.h"
#include "platform/desktop.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"
#include "quorvane/version.h"
#include "shell/application.h"
#include "toolbox/toolbox.h"

namespace quorvane {

SplashForm frmSplash;

namespace {

constexpr int SplashSeconds = 3;

/// The state of the search for the settings file; Found is the value of a file's attributes.
enum SearchFlag : int { NotAsked = 0, Asked = 1, GivenUp = 2, Found = 32 };

/// The seconds go back to 0 at the full minute, which ends a wait early.
void WaitForSplash() {
    const int start = desktop->ClockSeconds();
    while (std::abs(desktop->ClockSeconds() - start) < SplashSeconds) {
    }
}

void AskForProgramDirectory() {
    frmDirectory_Load();
    desktop->ShowModal("frmDirectory");
    ProgramDirectory = frmDirectory.director.Text;
    frmDirectory = {};
    Attempt([] { ChangeDirectory(ProgramDirectory); });
}

/// Runs one statement of the start. The first failure of the search makes the user choose a folder,
/// any other one ends the search; the statement after the failed one runs next.
template <class Statement>
void Run(int& flag, Statement&& statement) {
    try {
        statement();
    } catch (const RuntimeError&) {
        if (flag == NotAsked) {
            AskForProgramDirectory();
            flag = Asked;
        } else {
            flag = GivenUp;
        }
    }
}

void FindSettings(int& flag) {
    while (flag != Found && flag != GivenUp) {
        Run(flag, [&] { flag = FileAttributes(JoinPath(CurrentDirectory(), "quorvane.ini")); });
        Run(flag, [] { ProgramDirectory = CurrentDirectory(); });
    }
}

}  // namespace

void GoToSettings() {
    const auto hasSettings = [](const std::string& folder) {
        return Attempt([&] { FileAttributes(JoinPath(folder, "quorvane.ini")); });
    };
    Attempt([&] {
        const auto folder = desktop->DataFolder();
        if (!hasSettings(CurrentDirectory()) && hasSettings(folder)) ChangeDirectory(folder);
    });
}

void frmSplash_Load() {
    frmSplash.Form.Loaded = true;
    frmSplash.lblProductName.Caption = "Quorvane";
    frmSplash.lblVersion.Caption = "Version " QUORVANE_VERSION;
}

void frmSplash_Frame1_Click() { frmSplash = {}; }
void frmSplash_KeyPress() { frmSplash = {}; }

Form frmSplash_Table() {
    return {"frmSplash",
            &frmSplash.Form,
            {{"lblProductName", &frmSplash.lblProductName}, {"lblVersion", &frmSplash.lblVersion}}};
}

void StartProgram() {
    frmSplash_Load();
    frmSplash.Form.Visible = true;
    desktop->PaintNow();
    WaitForSplash();
    frmSplash = {};
    desktop->PaintNow();
    ResetApplication();
    int flag = NotAsked;
    FindSettings(flag);
    if (flag == Found) {
        frmPrefs.Form.Loaded = true;
        Run(flag, [] { ReadSettings(); });
    }
    Run(flag, [] { LoadToolbox(); });
    if (frmPrefs.chkShowToolbox.Value == 1) Run(flag, [] { ShowToolbox(); });
    frmPictures.ReloadMarker = 0;
}

}  // namespace quorvane
