// SPDX-License-Identifier: MIT
#include <functional>

#include "catalogue/box_commands.h"
#include "catalogue/command_browser_door.h"
#include "catalogue/flow_dialogs.h"
#include "catalogue/function_dialogs.h"
#include "catalogue/matrix_dialogs.h"
#include "diagram/comment_form.h"
#include "support/diagram_fixture.h"

namespace quorvane::testing {

namespace {

/// What the user does in a dialog, and the text of the box that comes of it.
struct DialogCase {
    std::string Control, Dialog;
    std::function<void()> User;
    std::string BoxText;
};

const std::vector<DialogCase> dialogCases = {
    {"mnuLoopFor", "frmForLoop",
     [] {
         frmForLoop.txtFrom.Text = "2";
         frmForLoop.txtUntil.Text = "n";
         frmForLoop.txtInc.Text = "3";
         frmForLoop_cmd_Click();
     },
     "2:3:n,"},
    {"mnuCondIf", "frmIf", [] { frmIf.txtCondition.Text = "a>0"; }, "a>0"},
    {"mnuCondIf", "frmIf", [] { frmIf.chkelse.Value = 1; }, "else"},
    {"mnuCondIf", "frmIf",
     [] {
         frmIf.txtCondition.Text = "a>0";
         frmIf.chkelse.Value = 1;
     },
     "elsea>0"},
    {"mnuMatMakeVec", "frmMakeVector",
     [] {
         frmMakeVector.txtMin.Text = "0";
         frmMakeVector.txtStep.Text = "0.5";
         frmMakeVector.txtMax.Text = "5";
     },
     "[0:0.5:5];"},
    {"mnuMatMake", "frmMakeMat",
     [] {
         frmMakeMat_opn_Click(1);
         frmMakeMat.txtRows.Text = "2";
         frmMakeMat.txtCols.Text = "3";
     },
     "zeros(2,3)"},
    {"mnuMatMake", "frmMakeMat", [] { frmMakeMat_opn_Click(2); }, "eye(1,1)"},
    {"mnuMatMake", "frmMakeMat",
     [] {
         frmMakeMat_opn_Click(3);
         frmMakeMat.opn[3].Value = false;
         frmMakeMat.Option1.Value = true;
     },
     "rand(1,1)"},
    {"mnuMatSplit", "frmSplit",
     [] {
         frmSplit.row.Value = true;
         frmSplit.txtFrom.Text = "2";
         frmSplit.txtTo.Text = "5";
         frmSplit_txtTo_Change();
     },
     "Col2:5"},
    {"mnuMatSplit", "frmSplit",
     [] {
         frmSplit.txtTo.Text = "_4__";
         frmSplit_txtTo_Change();
         EXPECT_EQ(frmSplit.txtFrom.Text, "1");
     },
     "Col1:4"},
    {"mnuMatSplit", "frmSplit",
     [] {
         frmSplit.txtFrom.Text = "3_";
         frmSplit.txtTo.Text = "____";
     },
     "Col3:1"},
    {"mnuInputPause", "frmPause", [] { frmPause.chkNoNumber.Value = 1; }, ""},
    {"mnuInputPause", "frmPause", [] { frmPause.lblSecs.Text = "2.5"; }, "2.5"},
    {"mnuInputUser", "frmUserInput", [] { frmUserInput.txtPrompt.Text = "How many ?"; },
     "How many ?"},
    {"mnuSpecComment", "frmComment", [] { frmComment.txtComment.Text = "a note"; }, "a note"},
};

}  // namespace

struct ParameterDialogs : DiagramTest {
    const Box& Run(const std::string& control) {
        EditMode = 1;
        RunBoxCommand(*Documents[1], control);
        return Boxes[NextBox - 1];
    }
};

TEST_F(ParameterDialogs, FieldsArePackedIntoTheText) {
    for (const auto& row : dialogCases) {
        screen.Forms[row.Dialog] = row.User;
        EXPECT_EQ(Run(row.Control).BoxText, row.BoxText) << row.Control;
    }
}

TEST_F(ParameterDialogs, PromptsAreStoredAsAnswered) {
    screen.Texts = {"a>0", "box4", "a"};
    EXPECT_EQ(Run("mnuLoopWhile").BoxText, "a>0");
    EXPECT_EQ(Run("mnuSpecPickup").BoxText, "box4");
    EXPECT_EQ(Run("mnuSpecSubStart").BoxType, "a Subroutine");
    EXPECT_EQ(screen.Prompts,
              (std::vector<std::string>{"Quorvane|Enter the condition in Matlab Script|",
                                        "Quorvane|Please enter the variable to pick up|box2",
                                        "Quorvane|What is the subroutine's name ?|"}));
}

TEST_F(ParameterDialogs, SubroutinesAreListedAndInsertedByName) {
    for (const char* type :
         {"a Subroutine", "End Subroutine", "Sin", " Subroutine", "Insert Subroutine a"}) {
        Draw({{type, ""}});
    }
    std::vector<std::string> listed;
    std::string chosen;
    screen.Forms["frmSubs"] = [&] {
        listed = frmSubs.available_subs.List;
        frmSubs.available_subs.Text = chosen;
    };
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"a Subroutine", "Insert Subroutine a"},
        {" Subroutine", "Insert Subroutine "},
        {"typed", "Insert Subroutine typed"},
        {"Subroutine", "Insert Subroutine "},
    };
    for (const auto& row : cases) {
        chosen = row.first;
        const Box& box = Run("mnuSpecSubInsert");
        EXPECT_EQ(box.BoxType, row.second);
        EXPECT_EQ(box.BoxText, "Subroutine");
        EXPECT_EQ(listed, (std::vector<std::string>{"a Subroutine", " Subroutine"}));
    }
}

TEST_F(ParameterDialogs, SecondsStayNumbersFromZeroUp) {
    const std::vector<std::pair<std::string, std::string>> typed = {
        {"2.5", "2.5"}, {"", "0"}, {"abc", "0"}, {"-1", "0"}, {"1e400", "0"}, {"007", "007"}};
    for (const auto& row : typed) {
        frmPause_Load();
        frmPause.lblSecs.Text = row.first;
        frmPause_lblSecs_Change();
        EXPECT_EQ(frmPause.lblSecs.Text, row.second);
    }
    struct Press {
        std::string From;
        std::int16_t End;
        std::string To;
    };
    for (const auto& row : std::vector<Press>{
             {"1", -1, "2"}, {"0.5", -1, "1.5"}, {"1", 1, "0"}, {"0.5", 1, "0"}, {"9", 0, "9"}}) {
        frmPause.lblSecs.Text = row.From;
        frmPause.spn.Value = row.End;
        frmPause_spn_Change();
        EXPECT_EQ(frmPause.lblSecs.Text, row.To) << row.From;
        EXPECT_EQ(frmPause.spn.Value, 0);
    }
    for (const int ticked : {1, 0}) {
        frmPause.chkNoNumber.Value = ticked;
        frmPause_chkNoNumber_Click();
        EXPECT_EQ(frmPause.spn.Enabled, ticked == 0);
        EXPECT_EQ(frmPause.lblSecs.Enabled, ticked == 0);
    }
}

TEST_F(ParameterDialogs, ACommandHasTheSlotsThatAreTicked) {
    screen.Forms["frmMatlabFunction"] = [] {
        frmMatlabFunction.txtFunc.Text = "Interp1(Input1,3)";
        frmMatlabFunction.chkInputs[2].Value = 1;
        frmMatlabFunction.chkOutputs[1].Value = 1;
        frmMatlabFunction.chkOutputs[5].Value = 1;
    };
    const Box& box = Run("mnuSpecMatlab");
    EXPECT_EQ(box.BoxText, "Output=interp1(input1,3)");
    const std::vector<int> slots = {-1, 0, -1, 0, -1, -1, -1, 0};
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(i < 3 ? box.BoxIn[i + 1] : box.BoxOut[i - 2], slots[static_cast<std::size_t>(i)]);
    }
}

TEST_F(ParameterDialogs, FunctionsOpenTheInputsThatTheyName) {
    struct FunctionCase {
        std::function<void()> User;
        std::string BoxText;
        std::vector<int> In;
    };
    const std::vector<FunctionCase> cases = {
        {[] {
             frmFunc.txtFunc.Text = "sin(Input2)";
             frmFunc.txtoutput.Text = "y";
         },
         "y(1,1)=sin(Input2);",
         {-1, 0, -1}},
        {[] { frmFunc.txtFunc.Text = "5"; }, "box2=Input1;\r\noutput(1,1)=5;", {0, -1, -1}},
        {[] {
             frmFunc.txtFunc.Text = "input1+Input3*Input12";
             frmFunc.chkcell.Value = 0;
         },
         "output=input1+Input3*Input12;",
         {0, -1, 0}},
        {[] {
             for (const int input : {1, 2, 3}) {
                 frmFunc.opnInput[input].Value = 1;
                 frmFunc_opnInput_Click(input);
                 EXPECT_EQ(frmFunc.opnInput[input].Value, 0);
                 frmFunc_opnInput_Click(input);  // the tick that is taken off again
             }
         },
         "output(1,1)=Input1Input2Input3;",
         {0, 0, 0}},
    };
    for (const auto& row : cases) {
        screen.Forms["frmFunc"] = row.User;
        const Box& box = Run("mnuOperatorsFunc");
        EXPECT_EQ(box.BoxText, row.BoxText);
        for (int i = 1; i <= 3; ++i)
            EXPECT_EQ(box.BoxIn[i], row.In[static_cast<std::size_t>(i) - 1]);
    }
}

TEST_F(ParameterDialogs, ACellWithoutItsColumnIsWarnedOfAndMadeAllTheSame) {
    screen.Forms["frmFunc"] = [] {
        EXPECT_EQ(frmFunc.chkcell.Value, 1);  // by the filling of row and column
        frmFunc.Form.Visible = true;
        frmFunc.chkcell.Value = 0;
        frmFunc.txtCol.Text = "end";
        frmFunc_txtCol_Change();
        frmFunc_cmdOK_Click();
        EXPECT_FALSE(frmFunc.Form.Visible);
    };
    EXPECT_EQ(Run("mnuOperatorsFunc").BoxText, "box1=Input1;\r\noutput(1,)=;");
    ASSERT_EQ(screen.Messages.size(), 1u);
    EXPECT_EQ(screen.Messages[0].Text, "Please enter which cell to change.");
    EXPECT_EQ(screen.Messages[0].Picture, Icon::Exclamation);
}

TEST_F(ParameterDialogs, TheBrowserIsOpenedForTheDialogThatAsks) {
    static std::vector<std::string> callers;
    callers.clear();
    const auto before = OpenCommandBrowser;
    OpenCommandBrowser = [](std::string_view caller) {
        callers.push_back(std::string(caller) + " " + frmMatlabFunction.Form.Caption +
                          frmFunc.Form.Caption);
    };
    frmMatlabFunction_Load();
    frmFunc = {};
    frmMatlabFunction_cmdShowFunc_Click();
    EXPECT_EQ(frmMatlabFunction.Form.Caption, "Matlab Function");
    frmMatlabFunction = {};
    frmFunc_Load();
    frmFunc_cmdMatlab_Click();
    EXPECT_EQ(frmFunc.Form.Caption, "Function Editor");
    EXPECT_EQ(callers,
              (std::vector<std::string>{"mat Loading M-file panel", "func Loading M-file panel"}));
    OpenCommandBrowser = before;
}

}  // namespace quorvane::testing
