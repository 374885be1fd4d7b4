// SPDX-License-Identifier: MIT
#include "diagram/box_info.h"

#include "diagram/comment_form.h"
#include "diagram/editor_fixture.h"
#include "diagram/preferences.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

class BoxInfo : public EditorTest {
protected:
    /// Opens the dialog; the user does something and presses OK.
    void Change(int number, const std::function<void()>& user) {
        screen.Forms["frmInfo"] = [user] {
            user();
            frmInfo_cmdOK_Click();
        };
        OpenBoxInfo(Sheet(), number);
    }
    void Cancel(int number, const std::function<void()>& user) {
        screen.Forms["frmInfo"] = [user] {
            user();
            frmInfo_cmdCancel_Click();
        };
        OpenBoxInfo(Sheet(), number);
    }
};

TEST_F(BoxInfo, PressesOpenOrTurnDragging) {
    struct Row {
        int Button, Shift;
        const char* Form;  ///< "" for none
        bool Drags;
    };
    const Row rows[] = {
        {LeftButton, 0, "", false},
        {LeftButton, ShiftKey, "", false},
        {RightButton, 0, "", true},
        {RightButton, ShiftKey, "frmInfo", false},
        {RightButton, CtrlKey, "frmInfo", false},
        {RightButton, AltKey, "frmInfo", false},
        {MiddleButton, 0, "frmInfo", false},
        {MiddleButton, CtrlKey, "frmInfo", false},
    };
    Place("Sin", 0, 0);
    Place("Comment", 0, 0);
    for (const auto& row : rows) {
        screen.FormsShown.clear();
        Sheet().box[1].DragAutomatic = false;
        EditMode = 2;
        box_MouseDown(Sheet(), 1, row.Button, row.Shift);
        EXPECT_EQ(screen.FormsShown,
                  *row.Form ? std::vector<std::string>{row.Form} : std::vector<std::string>())
            << row.Button << " " << row.Shift;
        EXPECT_EQ(Sheet().box[1].DragAutomatic, row.Drags);
        EXPECT_EQ(EditMode, 2);
    }
    box_MouseDown(Sheet(), 1, RightButton, 0);
    box_MouseDown(Sheet(), 1, RightButton, 0);
    EXPECT_FALSE(Sheet().box[1].DragAutomatic);
    screen.FormsShown.clear();
    box_MouseDown(Sheet(), 2, MiddleButton, 0);
    EXPECT_EQ(screen.FormsShown, std::vector<std::string>{"frmComment"});
}

TEST_F(BoxInfo, ACommentIsEditedAndCut) {
    Place("Comment", 0, 0);
    std::string umlauts;
    for (int i = 0; i < 100; ++i) umlauts += "\xC3\xA4";
    const std::pair<std::string, std::string> rows[] = {
        {"hello", "hello"},
        {std::string(100, 'a'), std::string(100, 'a')},
        {std::string(101, 'b'), std::string(100, 'b')},
        {umlauts + "x", umlauts},
        {"", ""},
    };
    DocumentStates[1].Modified = 0;
    std::string before;
    for (const auto& [typed, kept] : rows) {
        screen.Forms["frmComment"] = [&, typed = typed] {
            EXPECT_EQ(frmComment.txtComment.Text, before);
            frmComment.txtComment.Text = typed;
            frmComment_txtComment_Change();
            frmComment_cmdOK_Click();
        };
        OpenBoxInfo(Sheet(), 1);
        EXPECT_EQ(Boxes[1].BoxText, kept);
        EXPECT_FALSE(frmComment.Form.Loaded);
        before = kept;
    }
    EXPECT_EQ(DocumentStates[1].Modified, 0);
    Boxes[1].BoxText = std::string(150, 'c');
    screen.Forms["frmComment"] = frmComment_cmdOK_Click;
    OpenBoxInfo(Sheet(), 1);
    EXPECT_EQ(Boxes[1].BoxText.size(), 100U) << "a loaded text is cut when it is put in";
}

TEST_F(BoxInfo, TheDialogTellsTheFarEnds) {
    Place("Constant Input", 0, 0);
    Place("Compute Function", 1000, 0);
    Place("Screen Output", 2000, 0);
    Join(1, 2);
    Join(2, 3);
    Boxes[2].BoxText = "output=Input1;";
    Boxes[2].BoxIn[3] = LockedSlot;
    Cancel(2, [] {
        EXPECT_EQ(frmInfo.Form.Caption, "Box Information");
        EXPECT_EQ(frmInfo.lblBoxName.Caption, "This box's name is: box2 (Compute Function)");
        EXPECT_EQ(frmInfo.lblfunc.Caption, "Function: output=Input1;");
        EXPECT_TRUE(frmInfo.lblfunc.Visible);
        EXPECT_EQ(frmInfo.lblFrom[1].Caption, "box1 (Constant Input)");
        EXPECT_EQ(frmInfo.lblTo[1].Caption, "box3 (Screen Output)");
        for (const int i : {1, 2, 3}) {
            EXPECT_EQ(frmInfo.lblFrom[i].Visible, i == 1) << i;
            EXPECT_EQ(frmInfo.chkFrom[i].Visible, i == 1) << i;
            EXPECT_EQ(frmInfo.chkTo[i].Visible, i == 1) << i;
        }
        EXPECT_TRUE(frmInfo.chkLockedInputs.Visible);
        EXPECT_FALSE(frmInfo.chkLockedOutputs.Visible);
        EXPECT_EQ(frmInfo.txtnum.Text, "2");
    });
    Cancel(3, [] {
        EXPECT_FALSE(frmInfo.lblfunc.Visible);
        EXPECT_EQ(frmInfo.lblfunc.Caption, "");
        EXPECT_EQ(frmInfo.lblTo[1].Caption, "");
        EXPECT_FALSE(frmInfo.lblTo[1].Visible);
    });
}

TEST_F(BoxInfo, EmptySlotsAreCounted) {
    struct Row {
        int Entries, Exits;  ///< Empty ones; the others are locked
        const char* Text;
    };
    const Row rows[] = {
        {0, 0, "There are no empty inputs, and  no empty outputs."},
        {1, 1, "There is one empty input, and  one empty output."},
        {3, 5, "There are 3 empty inputs, and 5 empty outputs."},
        {0, 5, "There are no empty inputs, and 5 empty outputs."},
        {2, 0, "There are 2 empty inputs, and  no empty outputs."},
    };
    Place("Sin", 0, 0);
    for (const auto& row : rows) {
        Boxes[1].BoxIn.Fill(LockedSlot);
        Boxes[1].BoxOut.Fill(LockedSlot);
        for (int i = 1; i <= row.Entries; ++i) Boxes[1].BoxIn[i] = 0;
        for (int i = 1; i <= row.Exits; ++i) Boxes[1].BoxOut[i] = 0;
        Cancel(1, [&] {
            EXPECT_EQ(frmInfo.lblEmpty.Caption, row.Text);
            EXPECT_EQ(frmInfo.chkLockedInputs.Visible, row.Entries < 3);
            EXPECT_EQ(frmInfo.chkLockedOutputs.Visible, row.Exits < 5);
        });
    }
}

TEST_F(BoxInfo, TickedArrowsAreBrokenAtBothEnds) {
    for (int i = 0; i < 3; ++i) Place("Sin", 1000.0 * i, 0);
    Join(1, 2);
    Join(1, 3);
    Join(2, 3);
    Join(2, 1);
    DocumentStates[1].Modified = 0;
    Change(2, [] {
        EXPECT_EQ(frmInfo.chkTo[2].Value, 0);
        frmInfo.chkFrom[1].Value = 1;
        frmInfo.chkTo[1].Value = 1;
    });
    EXPECT_EQ(Entries(2), (Numbers{0, 0, 0}));
    EXPECT_EQ(Exits(2), (Numbers{0, 1, 0, 0, 0}));
    EXPECT_EQ(Exits(1), (Numbers{0, 3, 0, 0, 0}));
    EXPECT_EQ(Entries(3), (Numbers{1, 0, 0}));
    EXPECT_EQ(Sheet().Surface.size(), 6U) << "two arrows are left and painted anew";
    EXPECT_EQ(DocumentStates[1].Modified, 0);
    EXPECT_FALSE(frmInfo.Form.Loaded);
    Boxes[1].BoxIn[2] = LockedSlot;
    Boxes[1].BoxOut[5] = LockedSlot;
    Change(1, [] { frmInfo.chkLockedInputs.Value = 1; });
    EXPECT_EQ(Entries(1), (Numbers{2, 0, 0}));
    EXPECT_EQ(Boxes[1].BoxOut[5], LockedSlot);
    Change(1, [] { frmInfo.chkLockedOutputs.Value = 1; });
    EXPECT_EQ(Boxes[1].BoxOut[5], 0);
}

TEST_F(BoxInfo, TicksOutliveACancelAndWorkWhileHidden) {
    for (int i = 0; i < 3; ++i) Place("Sin", 1000.0 * i, 0);
    Join(1, 2);
    Boxes[3].BoxIn[1] = LockedSlot;
    Boxes[3].BoxOut[2] = 1;
    const auto boxes = Boxes;
    Cancel(2, [] {
        frmInfo.chkFrom[1].Value = 1;
        frmInfo.chkTo[2].Value = 1;
    });
    EXPECT_TRUE(Boxes == boxes);
    EXPECT_TRUE(frmInfo.Form.Loaded);
    Change(3, [] {
        EXPECT_FALSE(frmInfo.chkFrom[1].Visible);
        EXPECT_EQ(frmInfo.chkFrom[1].Value, 1);
        EXPECT_EQ(frmInfo.chkTo[2].Value, 1);
    });
    EXPECT_EQ(Entries(3), (Numbers{0, 0, 0})) << "a hidden tick opens a locked entry";
    EXPECT_EQ(Exits(3), Numbers(5, 0));
    EXPECT_EQ(Entries(2), (Numbers{1, 0, 0}));
    Change(2, [] { EXPECT_EQ(frmInfo.chkFrom[1].Value, 0) << "OK unloads the dialog"; });
}

TEST_F(BoxInfo, AColourIsGivenAtOnce) {
    Place("Sin", 0, 0);
    Place("Cos", 0, 0);
    screen.Colors = {0xFF0000};
    Cancel(2, [] { frmInfo_cmdColor_Click(); });
    Cancel(2, [] { EXPECT_NO_THROW(frmInfo_cmdColor_Click()); });
    for (const auto color : Boxes[2].BoxLineColor) EXPECT_EQ(color, 0xFF0000);
    EXPECT_EQ(Boxes[1].BoxLineColor[1], 0xE0E0E0);
    EXPECT_EQ(screen.ColorStarts, (std::vector<std::int32_t>{0xE0E0E0, 0xFF0000}));
}

TEST_F(BoxInfo, TheBubbleHangsAtTheLowerRightCorner) {
    Place("Sin", 1000, 2000);
    Place("Comment", 0, 0);
    auto& bubble = Sheet().txtboxname;
    box_MouseMove(Sheet(), 1);
    EXPECT_EQ(bubble.Caption, "Sin");
    EXPECT_EQ(bubble.Left, 1495);
    EXPECT_EQ(bubble.Top, 2495);
    EXPECT_TRUE(bubble.Visible);
    Sheet().box[1].Left = 0;
    box_MouseMove(Sheet(), 1);
    EXPECT_EQ(bubble.Left, 1495) << "once for each box";
    main_MouseMove(Sheet(), 0, 0, 0, 0);
    EXPECT_FALSE(bubble.Visible);
    EXPECT_EQ(bubble.Caption, "");
    for (const char* text : {"first", "second"}) {
        Boxes[2].BoxText = text;
        box_MouseMove(Sheet(), 2);
        EXPECT_EQ(bubble.Caption, std::string("Comment: ") + text);
    }
    EXPECT_EQ(frmPrefs.chkShowBubbles.Value, 1);
    mnuOptionsBubbleShow_Click(Sheet());
    EXPECT_EQ(frmPrefs.chkShowBubbles.Value, 0);
    main_MouseMove(Sheet(), 0, 0, 0, 0);
    box_MouseMove(Sheet(), 1);
    EXPECT_EQ(bubble.Caption, "") << "bubbles are off";
    mnuOptionsBubbleShow_Click(Sheet());
    EXPECT_EQ(frmPrefs.chkShowBubbles.Value, 1);
}

}  // namespace
