// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "diagram/preferences.h"
#include "files/document_fixture.h"
#include "platform/numbers.h"
#include "support/table_file.h"
#include "toolbox/toolbox.h"
#include "toolbox/toolbox_config.h"

namespace quorvane::testing {

/// A program with one document, whose program directory is the folder it stands in.
class ToolboxTest : public DocumentTest {
protected:
    void SetUp() override {
        DocumentTest::SetUp();
        ProgramDirectory = folder.Path.string();
        frmPrefs.txtToolbox.Text = "t.tlb";
    }

    static Worksheet& Sheet(int document = 1) { return *Documents[document]; }

    /// Messages so far, "icon number, title, text" each, which are then forgotten.
    std::string TakeTold() {
        std::string told;
        for (const auto& message : screen.Messages) {
            told += NumberText(static_cast<int>(message.Picture)) + "|" + message.Title + "|" +
                    message.Text;
        }
        screen.Messages.clear();
        return told;
    }

    /// Left, top and face of each visible icon from 1, "left,top,face" parted by blanks.
    static std::string Shown(const ControlArray<IconButton>& icons) {
        std::string shown;
        for (int i = 1; i < icons.Size(); ++i) {
            if (!icons.Has(i) || !icons[i].Visible) continue;
            const auto &place = icons[i].Place, &origin = icons[0].Place;
            shown += shown.empty() ? "" : " ";
            shown += NumberText(ToInt32(place.Left - origin.Left)) + ",";
            shown += NumberText(ToInt32(place.Top - origin.Top)) + ",";
            shown += NumberText(icons[i].Picture);
        }
        return shown;
    }
};

}  // namespace quorvane::testing
