// SPDX-License-Identifier: MIT
#include "toolbox/toolbox.h"

#include "diagram/box_table.h"
#include "diagram/worksheet_events.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/raised_error.h"
#include "toolbox/toolbox_fixture.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

constexpr const char* NotFound = "3|Quorvane|Toolbox file not found.";
const std::string FiveKeys = "Arrow\r\nFor\r\nFor\r\nFor\r\nIf\r\n";

TEST_F(ToolboxTest, TheDefaultToolboxIsBuiltInAndNeverRead) {
    WriteAll(folder / "default.tlb", FiveKeys);
    frmPrefs.txtToolbox.Text = "default.tlb";
    frmPrefs.lbltoolboxsize.Caption = "4X2";
    LoadToolbox();
    EXPECT_EQ(Shown(frmPictures.cmd),
              "0,0,4 480,0,72 0,400,142 480,400,89 0,800,97 480,800,20 0,1200,119 480,1200,62");
    EXPECT_EQ(frmPictures.Keys.UpperBound(), 8);
    EXPECT_EQ(frmPictures.Columns, 2);
    EXPECT_EQ(frmPictures.Width, PicturesForm().Width);
    EXPECT_EQ(frmPictures.Height, PicturesForm().Height);
    EXPECT_LE(frmPictures.cmd[1].Place.Height, 400) << "the rows hide each other";
    EXPECT_EQ(RaisedError([] { EndOfFile(2); }), 52) << "a file is open";
    EXPECT_FALSE(frmPictures.Form.Visible);
}

TEST_F(ToolboxTest, AFileGivesTheButtonsAndTheSize) {
    for (const auto& row : ReadTable("toolbox/toolbox.tsv")) {
        SCOPED_TRACE(row.back());
        WriteAll(folder / "T.Tlb", row[0]);
        frmPrefs.lbltoolboxsize.Caption = row[1];
        ReloadToolbox();
        EXPECT_EQ(NumberText(frmPictures.Keys.UpperBound()), row[2]);
        EXPECT_EQ(NumberText(frmPictures.Columns), row[3]);
        EXPECT_EQ(frmPictures.Width, TextToNumber(row[4]));
        EXPECT_EQ(frmPictures.Height, TextToNumber(row[5]));
        EXPECT_EQ(Shown(frmPictures.cmd), row[6]);
    }
    EXPECT_EQ(TakeTold(), "");
}

TEST_F(ToolboxTest, LongAndBrokenFilesLoad) {
    std::string many;
    for (int i = 1; i <= 100000; ++i) many += "For\r\n";
    const std::tuple<std::string, int, int> rows[] = {{many.substr(0, 150), 30, 24},
                                                      {many, 100000, 24},
                                                      {"a" + std::string(3000000, 'x'), 1, 0},
                                                      {std::string("a\0b\r\n\xFF\xFE", 7), 2, 2}};
    for (const auto& [bytes, count, buttons] : rows) {
        WriteAll(folder / "t.tlb", bytes);
        ReloadToolbox();
        EXPECT_EQ(frmPictures.Keys.UpperBound(), count);
        EXPECT_TRUE(frmPictures.cmd.Has(buttons) && !frmPictures.cmd.Has(buttons + 1)) << count;
    }
}

TEST_F(ToolboxTest, ALaterLoadClosesAllFilesWhereTheLastOneIsStillOpen) {
    for (const char* name : {"t.tlb", "other"}) WriteAll(folder / name, FiveKeys);
    LoadToolbox();
    OpenForInput(9, folder / "other");
    ReloadToolbox();
    EXPECT_TRUE(frmPictures.cmd.Has(5));
    EXPECT_EQ(RaisedError([] { EndOfFile(2); }), 0) << "it stays open";
    EXPECT_EQ(RaisedError([] { EndOfFile(9); }), 52);
    EXPECT_EQ(TakeTold(), "");
    for (const char* name : {"none.tlb", ""}) {
        frmPrefs.txtToolbox.Text = name;
        ReloadToolbox();
        EXPECT_EQ(TakeTold(), NotFound);
        EXPECT_EQ(frmPictures.Keys.UpperBound(), 1);
        EXPECT_EQ(frmPictures.Height, 870);
    }
    ResetApplication();
    ProgramDirectory = folder.Path.string();
    frmMDI.mnuOptionsCurrentToolbox.Caption = "Current Toolbox: t.tlb";
    LoadToolbox();
    EXPECT_TRUE(frmPictures.cmd.Has(5)) << "before the first document the frame's menu counts";
}

TEST_F(ToolboxTest, AClickLeavesItsKeyForTheWorksheetUnderTheMouse) {
    frmPrefs.txtToolbox.Text = "default.tlb";
    LoadToolbox();
    for (const std::int16_t mode : {0, 1, 2, 3, 4, 5, 6, 7}) {
        EditMode = mode;
        frmPictures_cmd_Click(7);
        EXPECT_EQ(EditMode, mode == 3 || mode == 4 ? 1 : mode);
    }
    EXPECT_EQ(frmMDI.txtEvent, "Screen Output");
    EditMode = 1;
    main_MouseMove(Sheet(), 0, 0, 0, 0);
    EXPECT_EQ(Boxes[NextBox - 1].BoxType, "Screen Output");
    EXPECT_EQ(frmMDI.txtEvent, "");
    frmPictures_cmd_Click(1);
    EXPECT_EQ(EditMode, 3) << "the arrow tool waits for no worksheet";
    EXPECT_EQ(frmMDI.txtEvent, "");
}

TEST_F(ToolboxTest, AResizeByHandFlowsTheButtonsAnew) {
    WriteAll(folder / "t.tlb", FiveKeys);
    LoadToolbox();
    for (const auto& row : ReadTable("toolbox/resize.tsv")) {
        SCOPED_TRACE(row.back());
        frmPictures_Resize(TextToNumber(row[0]), TextToNumber(row[1]));
        EXPECT_EQ(frmPrefs.lbltoolboxsize.Caption, row[2]);
        EXPECT_EQ(frmPictures.Width, TextToNumber(row[0]));
        EXPECT_EQ(frmPictures.Height, TextToNumber(row[3]));
        const auto shown = Shown(frmPictures.cmd);
        EXPECT_EQ(shown.substr(shown.rfind(' ') + 1), row[4]);
    }
    const auto columns = frmPictures.Columns;
    frmPictures.ReloadMarker = -1;
    frmPictures_Resize(500, 500);
    EXPECT_EQ(frmPictures.Columns, columns);
    ReloadToolbox();
    EXPECT_EQ(frmPictures.ReloadMarker, 0);
}

TEST_F(ToolboxTest, TheMarkIsTheFramesAndClosingTakesItOff) {
    NewDocument();
    NewDocument();
    DocumentStates[2].Closed = -1;
    Sheet(3).mnuOptionsToolbox.Checked = true;
    const auto marks = [] {
        return std::vector<bool>{
            frmPictures.Form.Loaded, frmPictures.Form.Visible, frmMDI.mnuOptionsToolbox.Checked,
            Sheet(1).mnuOptionsToolbox.Checked, Sheet(2).mnuOptionsToolbox.Checked};
    };
    mnuOptionsToolbox_Click(Sheet(3));
    EXPECT_EQ(marks(), std::vector<bool>({true, true, true, true, false}));
    HideToolbox();
    EXPECT_EQ(marks(), std::vector<bool>({true, false, true, true, false}));
    UnloadToolbox();
    EXPECT_EQ(marks(), std::vector<bool>({false, false, false, true, false}));
    frmMDI.mnuOptionsCurrentToolbox.Caption = "Current Toolbox: b.tlb";
    main_Activate(Sheet(1));
    Sheet(3).Tag.clear();
    main_Activate(Sheet(3));
    EXPECT_EQ(marks(), std::vector<bool>({false, false, false, false, false}));
    EXPECT_EQ(Sheet(1).mnuOptionsCurrentToolbox.Caption, "Current Toolbox: b.tlb");
    EXPECT_TRUE(Sheet(3).mnuOptionsToolbox.Checked) << "the template takes nothing over";
    mnuOptionsToolbox_Click();
    mnuOptionsToolbox_Click();
    EXPECT_EQ(marks(), std::vector<bool>({true, false, false, false, false}));
}

TEST_F(ToolboxTest, AnotherToolboxIsTakenByItsNameAlone) {
    WriteAll(folder / "Mine.TLB", FiveKeys);
    NewDocument();
    LoadToolbox();
    TakeTold();
    mnuOptionsCurrentToolbox_Click(Sheet());
    EXPECT_EQ(frmPrefs.txtToolbox.Text, "t.tlb") << "cancelled";
    EXPECT_EQ(screen.FileDialogs.at(0),
              "save|Quorvane Toolbox Files (*.tlb)|*.tlb|All Files (*.*)|*.*|");

    frmMDI.mnuOptionsToolbox.Checked = true;
    screen.Paths = {"/elsewhere/Mine.TLB", "C:\\Boxes\\DEFAULT.tlb", "mine.tlb"};
    mnuOptionsCurrentToolbox_Click(Sheet());
    EXPECT_EQ(frmPrefs.txtToolbox.Text, "mine.tlb");
    EXPECT_EQ(frmMDI.mnuOptionsCurrentToolbox.Caption, "Current Toolbox: mine.tlb");
    EXPECT_EQ(Sheet(2).mnuOptionsCurrentToolbox.Caption, "Current Toolbox: mine.tlb");
    EXPECT_TRUE(frmPictures.cmd.Has(5) && !frmPictures.cmd.Has(6));
    EXPECT_FALSE(frmPictures.Form.Visible) << "the giving document has no mark";
    EXPECT_FALSE(frmMDI.mnuOptionsToolbox.Checked) << "unloading takes it off";

    Sheet(2).mnuOptionsToolbox.Checked = true;
    mnuOptionsCurrentToolbox_Click(Sheet(2));
    EXPECT_TRUE(frmPictures.cmd.Has(8) && frmPictures.Form.Visible);
    frmMDI.mnuOptionsToolbox.Checked = true;
    mnuOptionsCurrentToolbox_Click();
    EXPECT_TRUE(frmPictures.cmd.Has(5) && frmPictures.Form.Visible);
    EXPECT_EQ(TakeTold(), "");
}

}  // namespace
