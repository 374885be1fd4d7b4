// SPDX-License-Identifier: MIT
// Reads the input as the settings file, saves the preferences into it and reads them again. A line
// width that is no digit ends the reading; nothing else may. What was saved must come back, and
// every other line must stay.
#include <cstdint>
#include <iostream>
#include <sstream>

#include "files/settings.h"
#include "files/work_folder.h"
#include "platform/runtime_error.h"
#include "shell/application.h"
#include "support/scripted_desktop.h"

using namespace quorvane;

namespace {

void Check(bool holds, const std::string& what) {
    if (holds) return;
    std::cerr << "FINDING: " << what << std::endl;
    std::abort();
}

/// Reads the settings into the preferences as they are at the start.
void Read(const std::string& folder) {
    ResetApplication();
    ProgramDirectory = folder;
    try {
        ReadSettings();
    } catch (const RuntimeError& error) {
        Check(error.Number == 13, "reading raises error " + std::to_string(error.Number));
    }
    const int width = frmPrefs.sclWidth.Value;
    Check(width >= 1 && width <= 4, "a line width beyond the scroll bar");
    Check(frmPrefs.DrawWidth == width, "the sample line has another width");
    Check(frmPrefs.txtToolbox.Text.size() <= 254, "a value is too long");
    Check(frmPrefs.lbltoolboxsize.Caption.size() <= 9, "a toolbox size is too long");
}

/// All values that a file gives. What is cut may end in blanks, which are lost on the way back.
std::string Values() {
    std::ostringstream values;
    for (auto text : {frmPrefs.txtLineWidth.Text, frmPrefs.txtToolbox.Text,
                      frmPrefs.lbltoolboxsize.Caption, frmPrefs.txtDrives.Text}) {
        text.erase(text.find_last_not_of(" \t") + 1);
        values << text << '\n';
    }
    values << frmPrefs.chkShowBubbles.Value << frmPrefs.chkShowToolbox.Value;
    return values.str();
}

/// The lines of a file that are no value: they have no "=".
std::string OtherLines(const std::string& bytes) {
    std::istringstream text(bytes);
    std::string others;
    for (std::string line; std::getline(text, line);) {
        std::istringstream parts(line);
        for (std::string part; std::getline(parts, part, '\r');) {
            if (!part.empty() && part.find('=') == std::string::npos) others += part + "\n";
        }
    }
    return others;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const quorvane::testing::WorkFolder folder;
    const std::string bytes(data, data + size);
    quorvane::testing::WriteAll(folder / "quorvane.ini", bytes);
    quorvane::testing::ScriptedDesktop screen;
    desktop = &screen;
    Read(folder.Path.string());
    const auto values = Values();
    frmPrefs_cmdSave_Click();
    const auto saved = quorvane::testing::ReadAll(folder / "quorvane.ini");
    const auto kept = OtherLines(bytes);
    Check(OtherLines(saved).substr(0, kept.size()) == kept, "a save lost a line");
    Read(folder.Path.string());
    Check(Values() == values, "what was saved came back changed");
    frmPrefs_cmdSave_Click();
    Check(quorvane::testing::ReadAll(folder / "quorvane.ini") == saved, "a second save differs");
    ResetApplication();
    desktop = nullptr;
    return 0;
}
