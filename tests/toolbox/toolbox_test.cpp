// SPDX-License-Identifier: MIT
#include "toolbox/toolbox.h"

#include "commands/worksheet_events.h"
#include "diagram/box_table.h"
#include "diagram/preferences.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "support/step_test.h"
#include "toolbox/toolbox_config.h"

namespace quorvane::testing {

/// Left, top and face of each visible icon from 1, "left,top,face" separated by blanks.
static std::string Show(const ControlArray<IconButton>& icons) {
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

/// Plays the tables of the toolbox and of the dialog that builds one. The program directory is the
/// folder in which the program stands.
class ToolboxTest : public StepTest, public ::testing::WithParamInterface<const char*> {
protected:
    ToolboxTest() {
        Know(ToolboxWords());
        Know(DialogWords());
    }
    void SetUp() override {
        StepTest::SetUp();
        ProgramDirectory = folder.Path.string();
        frmPrefs.txtToolbox.Text = "t.tlb";
    }

private:
    static Words ToolboxWords() {
        return {
            {"LoadToolbox", Step([](A) { LoadToolbox(); })},
            {"UnloadToolbox", Step([](A) { UnloadToolbox(); })},
            {"ReloadToolbox", Step([](A) { ReloadToolbox(); })},
            {"HideToolbox", Step([](A) { HideToolbox(); })},
            {"ResetApplication", Step([](A) {
                 const auto kept = ProgramDirectory;
                 ResetApplication();
                 ProgramDirectory = kept;
             })},
            {"tool", Step([](A a) { frmPictures_cmd_Click(a[0]); })},
            {"resize", Step([](A a) { frmPictures_Resize(a.X(0), a.X(1)); })},
            {"hover", Step([](A) { main_MouseMove(Sheet(), 0, 0, 0, 0); })},
            {"activate", Step([](A a) { main_Activate(Sheet(a[0])); })},
            {"tools", Seen([](A) { return Show(frmPictures.cmd); })},
            {"lasttool", Seen([](A) {
                 const auto shown = Show(frmPictures.cmd);
                 return shown.substr(shown.rfind(' ') + 1);
             })},
            {"buttons", Seen([](A) { return frmPictures.cmd.Size() - 1; })},
            {"count", Seen([](A) { return frmPictures.Keys.UpperBound(); })},
            {"Width", Global(frmPictures.Width)},
            {"Height", Global(frmPictures.Height)},
            {"ButtonHeight", Seen([](A a) { return frmPictures.cmd[a[0]].Place.Height; })},
            {"Tag", OfSheet(&Worksheet::Tag)},
        };
    }

    Words DialogWords() {
        auto& dialog = frmConfigToolbox;
        return {
            {"configure", Step([](A a) {
                 WriteAll("my_box.tlb", a.Text);
                 frmConfigToolbox_Load();
                 frmConfigToolbox.Form.Visible = true;
             })},
            {"drop", Step([](A a) {
                 for (int i = 0; i < a[1]; ++i) {
                     frmConfigToolbox_cmdPict_MouseMove(a[0]);
                     frmConfigToolbox_pnlToolbox_DragDrop(a[0]);
                 }
             })},
            {"over", Step([](A a) { frmConfigToolbox_cmdPict_MouseMove(a[0]); })},
            {"face", Seen([](A a) { return frmConfigToolbox.cmdPict[a[0]].Picture; })},
            {"press", Step([](A a) { frmConfigToolbox_cmdButton_MouseDown(a[0], a[1]); })},
            {"page", Step([](A a) {
                 frmConfigToolbox.scroll.Value = ToInt16(a[0]);
                 frmConfigToolbox_scroll_Change();
             })},
            {"text", Global(dialog.lbltoolbox.Caption)},
            {"panel", Seen([&dialog](A) { return Show(dialog.cmdButton); })},
            {"Count", Global(dialog.Count)},
        };
    }
};

TEST_P(ToolboxTest, Table) { PlayTable(std::string("toolbox/") + GetParam() + ".tsv"); }

INSTANTIATE_TEST_SUITE_P(Tables, ToolboxTest, ::testing::Values("toolbox", "toolbox_config"),
                         [](const auto& table) { return std::string(table.param); });

TEST_F(ToolboxTest, LongFilesLoadAsFarAsTheCountsGo) {
    std::string many;
    for (int i = 1; i <= 100000; ++i) many += "For\r\n";
    WriteAll("t.tlb", many);
    ReloadToolbox();
    EXPECT_EQ(frmPictures.Keys.UpperBound(), 100000);
    EXPECT_EQ(frmPictures.cmd.Size(), 25);
    WriteAll("my_box.tlb", many);
    frmConfigToolbox_Load();
    frmConfigToolbox_pnlToolbox_DragDrop(1);
    EXPECT_EQ(frmConfigToolbox.Count, 32766);
    const std::string line(3000000, 'x');
    WriteAll("t.tlb", "a" + line);
    ReloadToolbox();
    EXPECT_EQ(frmPictures.cmd.Size(), 1);
    WriteAll("my_box.tlb", "For\r\n" + line + "\r\n\r\n");
    frmConfigToolbox_Load();
    EXPECT_EQ(frmConfigToolbox.lbltoolbox.Caption, "For\r\n");
}

}  // namespace quorvane::testing
