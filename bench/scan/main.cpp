// SPDX-License-Identifier: MIT
// scan ROOT: the scan for M-files over one folder, as the program does it for a drive. The index is
// written to the current folder.
#include <cstdio>

#include "diagram/preferences.h"
#include "matlab_link/mfile_index.h"
#include "support/scripted_desktop.h"

int main(int argc, char** argv) {
    using namespace quorvane;
    if (argc != 2) {
        std::fprintf(stderr, "usage: scan ROOT\n");
        return 2;
    }
    testing::ScriptedDesktop screen;
    desktop = &screen;
    DriveRoots = {{'C', std::string(argv[1]) + "/"}};
    frmPrefs.txtDrives.Text = "c";
    frmScanning_Activate();
    std::printf("%d folders\n", DirectoryList.UpperBound() - 1);
    return 0;
}
