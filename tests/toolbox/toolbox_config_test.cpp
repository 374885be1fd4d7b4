// SPDX-License-Identifier: MIT
#include "toolbox/toolbox_config.h"

#include "catalogue/box_commands.h"
#include "diagram/worksheet_events.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "toolbox/toolbox_fixture.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

ConfigToolboxForm& dialog = frmConfigToolbox;

class ToolboxConfig : public ToolboxTest {
protected:
    void Open(const std::string& bytes) {
        WriteAll(folder / "my_box.tlb", bytes);
        frmConfigToolbox_Load();
        dialog.Form.Visible = true;
    }

    static void Drop(int element) {
        frmConfigToolbox_cmdPict_MouseMove(element);
        frmConfigToolbox_pnlToolbox_DragDrop(element);
    }

    void Reload(const std::string& name) {
        const auto path = name.empty() ? dialog.opnFileName.Caption : folder / name;
        if (!name.empty()) screen.Paths = {path};
        dialog.chkReload.Value = 1;
        frmConfigToolbox_chkReload_Click();
        EXPECT_EQ(dialog.chkReload.Value, 0);
        EXPECT_EQ(dialog.opnFileName.Caption, path);
    }

    /// What the user does, "verb:operand". Returns the face and the function of the icon under the
    /// pointer after moving there.
    std::string Do(const std::string& step) {
        const auto parts = Split(step, ':');
        const auto& verb = parts[0];
        const int number = parts.size() > 1 && IsNumeric(parts[1]) ? TextToInt16(parts[1]) : 0;
        if (verb == "drop") Drop(number);
        if (verb == "left") frmConfigToolbox_cmdButton_MouseDown(number, LeftButton);
        if (verb == "both") frmConfigToolbox_cmdButton_MouseDown(number, LeftButton | RightButton);
        if (verb == "right") frmConfigToolbox_cmdButton_MouseDown(number, RightButton);
        if (verb == "reload") Reload(parts[1]);
        if (verb == "unticked") frmConfigToolbox_chkReload_Click();
        if (verb == "clear") {
            dialog.chkClear.Value = 1;
            frmConfigToolbox_chkClear_Click();
            EXPECT_EQ(dialog.chkClear.Value, 0);
        }
        if (verb == "page") {
            dialog.scroll.Value = TextToInt16(parts[1]);
            frmConfigToolbox_scroll_Change();
        }
        if (verb != "over") return "";
        frmConfigToolbox_cmdPict_MouseMove(number);
        return NumberText(dialog.cmdPict[number].Picture) + " " + dialog.lblFunction.Caption;
    }

    /// The keys in the panel's text, each followed by "/".
    static std::string Text() {
        std::string text;
        for (const char c : dialog.lbltoolbox.Caption)
            text += c == '\n' ? "" : c == '\r' ? "/" : std::string(1, c);
        return text;
    }
};

TEST_F(ToolboxConfig, ThePanelFollowsTheUser) {
    WriteAll(folder / "other.tlb", "Arrow\r\n\r\n");
    for (const auto& row : ReadTable("toolbox/toolbox_config.tsv")) {
        SCOPED_TRACE(row.back());
        Open(row[0]);
        std::string hovered;
        for (const auto& step : Split(row[1], ' ')) {
            const auto shown = Do(step);
            if (!shown.empty()) hovered = shown;
        }
        EXPECT_EQ(Text(), row[2]);
        EXPECT_EQ(Shown(dialog.cmdButton), row[3]);
        EXPECT_EQ(NumberText(dialog.Count), row[4]);
        EXPECT_EQ(TakeTold(), row[5]);
        EXPECT_EQ(hovered, row[6]);
        EXPECT_EQ(FreeFile(), 1);
    }
    EXPECT_EQ(screen.FileDialogs.at(0),
              "open|Quorvane Toolbox Files (*.tlb)|*.tlb|All Files (*.*)|*.*|");
}

TEST_F(ToolboxConfig, TheCatalogueHoldsEachToolOnce) {
    std::set<std::string_view> tools;
    for (const auto& row : toolboxKeys) tools.insert(row.Key);
    EXPECT_EQ(std::set<std::string_view>(toolboxCatalogue.begin(), toolboxCatalogue.end()), tools);
    EXPECT_EQ(toolboxCatalogue.size(), 63U);
}

TEST_F(ToolboxConfig, LongFilesLoadAsFarAsTheCountGoes) {
    Open("For\r\n" + std::string(3000000, 'x') + "\r\n\r\n");
    EXPECT_EQ(Text(), "For/");
    std::string many;
    for (int i = 1; i <= 100000; ++i) many += "For\r\n";
    Open(many);
    EXPECT_EQ(dialog.Count, 32766);
    Drop(1);
    EXPECT_EQ(dialog.Count, 32766);
}

TEST_F(ToolboxConfig, ADropPutsTheDraggedIconBack) {
    Open("");
    const auto before = dialog.cmdPict[3].Place;
    frmConfigToolbox_cmdPict_MouseMove(3);
    dialog.cmdPict[3].Place.Left += 1000;
    frmConfigToolbox_pnlToolbox_DragDrop(3);
    EXPECT_EQ(dialog.cmdPict[3].Place, before);
}

TEST_F(ToolboxConfig, SavingWritesOverAFileThatTheToolboxHoldsOpen) {
    WriteAll(folder / "t.tlb", "Arrow\r\n\r\n");
    LoadToolbox();
    Open("");
    screen.Paths = {folder / "t.tlb"};
    frmConfigToolbox_opnFileName_Click();
    frmConfigToolbox_opnFileName_Click();
    EXPECT_EQ(dialog.opnFileName.Caption, folder / "t.tlb") << "a cancel changes nothing";
    Drop(12);
    Drop(12);
    frmMDI.mnuOptionsToolbox.Checked = true;
    frmConfigToolbox_cmdOK_Click();
    EXPECT_EQ(ReadAll(folder / "t.tlb"), "Trash\r\nTrash\r\n\r\n");
    EXPECT_EQ(Shown(frmPictures.cmd), "0,0,136 510,0,136");
    EXPECT_EQ(frmPictures.ReloadMarker, 0);
    EXPECT_FALSE(dialog.Form.Visible || frmMDI.mnuOptionsToolbox.Checked);
    Open("");
    Drop(1);
    frmConfigToolbox_cmdOK_Click();
    EXPECT_EQ(ReadAll(folder / "my_box.tlb"), "Arrow\r\n\r\n");
    EXPECT_EQ(frmPrefs.txtToolbox.Text, "t.tlb") << "what was saved is not taken";
    EXPECT_EQ(TakeTold(), "");
}

TEST_F(ToolboxConfig, AFaultThatLastsIsToldAndTheDialogStays) {
    for (const auto& path :
         {folder / "none/x.tlb", folder.Path.string(), std::string("/dev/full")}) {
        Open("");
        Drop(1);
        dialog.opnFileName.Caption = path;
        frmConfigToolbox_cmdOK_Click();
        EXPECT_EQ(TakeTold(), path == "/dev/full" ? "3|Quorvane|Disk full"
                                                  : "3|Quorvane|Path/File access error");
        EXPECT_TRUE(dialog.Form.Visible);
        EXPECT_EQ(Text(), "Arrow/");
        EXPECT_EQ(FreeFile(), 1);
    }
}

TEST_F(ToolboxConfig, TheCommandShowsTheToolboxOfAMarkedWorksheet) {
    screen.Forms["frmConfigToolbox"] = [] {
        Drop(1);
        frmConfigToolbox_cmdCancel_Click();
    };
    mnuOptionsConfigureToolbox_Click(Sheet());
    EXPECT_FALSE(frmPictures.Form.Visible || dialog.Form.Loaded);
    Sheet().mnuOptionsToolbox.Checked = true;
    mnuOptionsConfigureToolbox_Click(Sheet());
    EXPECT_TRUE(frmPictures.Form.Visible);
    EXPECT_EQ(NamesIn(folder.Path), std::set<std::string>{}) << "a cancel saves nothing";
}

}  // namespace
