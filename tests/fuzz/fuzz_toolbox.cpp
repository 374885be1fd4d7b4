// SPDX-License-Identifier: MIT
// Loads the input as a toolbox file, into the toolbox window and into the dialog that builds one,
// uses both and saves. Nothing may fail or leave a wrong count behind, and what was saved must come
// back.

#include <algorithm>
#include <sstream>

#include "catalogue/icon_table.h"
#include "commands/worksheet_events.h"
#include "diagram/box_table.h"
#include "diagram/preferences.h"
#include "files/document_file.h"
#include "fuzz/fuzz_support.h"
#include "toolbox/toolbox.h"
#include "toolbox/toolbox_config.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

void CheckFaces(const ControlArray<IconButton>& icons) {
    for (int i = 1; i < icons.Size(); ++i) {
        if (!icons.Has(i)) continue;
        Check(icons[i].Picture >= 1 && icons[i].Picture <= IconCells, "an icon without a face");
    }
}

void UseToolbox(std::uint32_t hash) {
    const int count = frmPictures.Keys.UpperBound();
    Check(count >= 1, "a toolbox counts no keys");
    Check(frmPictures.cmd.Size() <= MostToolboxButtons + 1, "a toolbox has too many buttons");
    CheckFaces(frmPictures.cmd);
    for (int i = 1; frmPictures.cmd.Has(i); ++i) {
        Check(i <= count && !frmPictures.Keys[i].empty(), "a button has no key");
        EditMode = static_cast<std::int16_t>((hash + static_cast<unsigned>(i)) % 8);
        frmPictures_cmd_Click(i);
    }
    frmPictures_Resize(hash % 9000, hash / 9000 % 9000);
    Check(frmPictures.Columns >= 1, "a resized toolbox has no columns");
}

void UseDialog(std::uint32_t hash) {
    for (unsigned i = 0; i < hash % 40; ++i) {
        const auto choice = (hash >> (i % 24)) % 30 + i % 3;
        frmConfigToolbox.scroll.Value = static_cast<std::int16_t>(choice % 9);
        frmConfigToolbox_scroll_Change();
        const int element = static_cast<int>(choice % 18) + 1;
        frmConfigToolbox_cmdPict_MouseMove(element);
        if (choice % 3 != 0) frmConfigToolbox_pnlToolbox_DragDrop(element);
        const int icon = static_cast<int>(choice) % (frmConfigToolbox.Count + 1);
        if (choice % 3 == 0 && icon > 0 && frmConfigToolbox.cmdButton.Has(icon)) {
            frmConfigToolbox_cmdButton_MouseDown(icon, RightButton);
        }
    }
    CheckFaces(frmConfigToolbox.cmdButton);
    Check(frmConfigToolbox.Count >= 0, "the dialog counts below nothing");
}

/// Loads the file into the dialog as its user does.
void LoadDialog(ScriptedDesktop& screen, const std::string& path) {
    frmConfigToolbox_Load();
    screen.Paths = {path};
    frmConfigToolbox.chkReload.Value = 1;
    frmConfigToolbox_chkReload_Click();
    Check(screen.Messages.empty(), "loading tells something");
}

/// Saves the panel under the toolbox's own name and looks at what both read from there.
void SaveAndLoadAgain(ScriptedDesktop& screen, const std::string& path) {
    const auto text = frmConfigToolbox.lbltoolbox.Caption;
    frmConfigToolbox.Form.Visible = true;
    frmConfigToolbox_cmdOK_Click();
    Check(!frmConfigToolbox.Form.Visible, "the panel can't be saved");
    screen.Messages.clear();
    LoadDialog(screen, path);
    Check(frmConfigToolbox.lbltoolbox.Caption == text,
          "the panel reads other keys than were saved");
    // The toolbox passes over the empty ones.
    int place = 0;
    std::istringstream keys(text);
    for (std::string key; std::getline(keys, key);) {
        if (key != "\r") Check(frmPictures.Keys[++place] + "\r" == key, "a key reads otherwise");
    }
    Check(std::max(place, 1) == frmPictures.Keys.UpperBound(), "the toolbox has more keys");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return RunInput("t.tlb", data, size, [](const std::string& bytes, const std::string& path) {
        ScriptedDesktop screen;
        desktop = &screen;
        const auto hash = DigestOf(bytes);
        ProgramDirectory = FuzzFolder().Path.string();
        NewDocument();
        frmPrefs.txtToolbox.Text = "t.tlb";
        frmPrefs.lbltoolboxsize.Caption = std::to_string(hash % 14) + "X3";
        LoadToolbox();
        UseToolbox(hash);
        LoadDialog(screen, path);
        UseDialog(hash);
        SaveAndLoadAgain(screen, path);
    });
}
