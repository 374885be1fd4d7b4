// SPDX-License-Identifier: MIT
// Reads the input as the settings file, saves the preferences into it and reads them again. A line
// width that is no digit ends the reading; nothing else may. What was saved must come back, and
// every other line must stay.
#include <algorithm>
#include <sstream>

#include "files/settings.h"
#include "fuzz/fuzz_support.h"
#include "platform/runtime_error.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

/// Reads the settings into the preferences as they are at the start.
void Read() {
    ResetApplication();
    ProgramDirectory = FuzzFolder().Path.string();
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
std::string OtherLines(std::string bytes) {
    std::replace(bytes.begin(), bytes.end(), '\r', '\n');
    std::istringstream text(bytes);
    std::string others;
    for (std::string line; std::getline(text, line);) {
        if (!line.empty() && line.find('=') == std::string::npos) others += line + "\n";
    }
    return others;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return RunInput(
        "quorvane.ini", data, size, [](const std::string& bytes, const std::string& path) {
            ScriptedDesktop screen;
            desktop = &screen;
            Read();
            const auto values = Values();
            WriteSettings();
            const auto saved = ReadAll(path);
            const auto kept = OtherLines(bytes);
            Check(OtherLines(saved).substr(0, kept.size()) == kept, "a save lost a line");
            Read();
            Check(Values() == values, "what was saved came back changed");
            WriteSettings();
            Check(ReadAll(path) == saved, "a second save differs");
        });
}
