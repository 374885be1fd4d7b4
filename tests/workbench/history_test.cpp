// SPDX-License-Identifier: MIT
#include "workbench/history.h"

#include <cstdlib>
#include <sstream>

#include "commands/run_command.h"
#include "commands/worksheet_events.h"
#include "diagram/box_info.h"
#include "diagram/connections.h"
#include "diagram/layout.h"
#include "diagram/selection.h"
#include "files/close_document.h"
#include "files/document_fixture.h"
#include "support/random_user.h"
#include "workbench/after_event.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

/// All that a step changes, as text: the saved files, the controls and what is painted, at their
/// places on the sheet.
std::string State() {
    std::ostringstream state;
    state << NextBox << '\n';
    for (int i = 1; i <= Documents.UpperBound(); ++i) {
        if (!Documents[i]) continue;
        const auto& window = *Documents[i];
        state << i << ' ' << window.pnlArrow.BackColor << '\n'
              << DocumentText(static_cast<std::int16_t>(i));
        for (int k = 1; k < window.box.Size(); ++k) {
            if (!window.box.Has(k)) continue;
            const auto& control = window.box[k];
            state << k << ':' << control.Left + window.scrH.Value << ','
                  << control.Top + window.scrV.Value << ',' << control.Picture << control.Visible;
        }
        for (const auto& shape : window.Surface) {
            state << '/' << shape.X1 + window.scrH.Value << ',' << shape.Y1 + window.scrV.Value
                  << ',' << shape.Color << ',' << shape.Width;
        }
        state << '\n';
    }
    return state.str();
}

/// What the worksheets hold when nothing is armed.
std::string RestState() {
    GiveUp();
    return State();
}

class HistoryTest : public DocumentTest {};

/// Edits at random, and remembers the state after each step. Then it goes back to the first step
/// that is kept, on to the last, and to and fro.
TEST_F(HistoryTest, EveryStateComesBackWholeAfterRandomEditing) {
    const auto* wanted = std::getenv("QUORVANE_OPERATIONS");
    const int operations = wanted ? std::atoi(wanted) : 3000;
    for (const unsigned seed : {1U, 2U}) {
        ResetApplication();
        RandomUser user(seed);
        desktop = &user;
        std::vector<std::string> states = {State()};
        for (int i = 0; i < operations; ++i) {
            const int steps = HistoryChanges();
            const auto operation = user.Operate();
            AfterEvent();
            if (HistoryChanges() != steps) states.emplace_back();
            // An armed box is no part of the state, which is known again when the box is placed.
            if (EditMode != 2) {
                states.back() = State();
            } else if (!operation.starts_with("command")) {
                states.back().clear();
            }
        }
        states.back() = RestState();
        ASSERT_GT(states.size(), static_cast<std::size_t>(operations) / 10);
        auto at = states.size() - 1;
        int compared = 0;
        const auto step = [&](bool back) {
            if (back ? UndoName().empty() : RedoName().empty()) return false;
            back ? Undo() : Redo();
            AfterEvent();
            at += back ? -1 : 1;
            if (states[at].empty()) return true;
            EXPECT_EQ(State(), states[at]) << "seed " << seed << ", state " << at;
            ++compared;
            return !HasFailure();
        };
        while (step(true)) {
        }
        ASSERT_EQ(at, 0U);
        while (step(false)) {
        }
        ASSERT_EQ(at, states.size() - 1);
        EXPECT_GT(compared, operations / 10);
        for (int i = 0; i < 500 && !HasFailure(); ++i)
            step(user.Any(states.size() - at > 20 ? 2 : 3) == 0);
    }
}

/// Runs one event and returns what an undo would take back then.
template <class Event>
std::string After(Event&& event) {
    event();
    AfterEvent();
    return UndoName();
}

void Click(double x, double y) { main_MouseDown(*Documents[1], LeftButton, 0, x, y); }

TEST_F(HistoryTest, AStepIsWhatAPersonWouldCallOne) {
    const auto command = [](const char* control) { RunBoxCommand(*Documents[1], control); };
    EXPECT_EQ(After([] {}), "new worksheet");
    EXPECT_EQ(After([&] { command("mnuTrigSin"); }), "give up the box");
    EXPECT_EQ(After([&] { Click(300, 300); }), "place Sin");
    After([&] { command("mnuTrigCos"); });
    EXPECT_EQ(After([&] { Click(3000, 300); }), "place Cos");
    EXPECT_EQ(After([&] { mnuArrow_Click(*Documents[1]); }), "give up the arrow");
    EXPECT_EQ(After([&] { box_Click(*Documents[1], 1); }), "give up the arrow");
    EXPECT_EQ(After([&] { box_Click(*Documents[1], 2); }), "arrow box1 to box2");
    EXPECT_EQ(After([&] { main_DragDrop(*Documents[1], 2, 600, 900); }), "move box2");
    screen.Forms["frmInfo"] = [] {
        frmInfo.chkTo[1].Value = 1;
        frmInfo_cmdOK_Click();
    };
    EXPECT_EQ(After([&] { box_MouseDown(*Documents[1], 1, MiddleButton, 0); }), "disconnect box1");
    screen.Colors = {255, 77};
    EXPECT_EQ(After([&] { mnuEditLineColor_Click(*Documents[1]); }), "line colour");
    screen.Forms["frmInfo"] = [] { frmInfo_cmdColor_Click(); };
    EXPECT_EQ(After([&] { box_MouseDown(*Documents[1], 1, MiddleButton, 0); }), "colour of box1");
    const auto select = [] {
        main_MouseMove(*Documents[1], LeftButton, 0, 0, 0);
        main_MouseMove(*Documents[1], LeftButton, 0, 9000, 9000);
        main_MouseUp(*Documents[1], LeftButton, 0, 9000, 9000);
    };
    EXPECT_EQ(After(select), "colour of box1") << "a selection is no step";
    EXPECT_EQ(After([] { mnueditcopy_Click(*Documents[1]); }), "give up the copy");
    EXPECT_EQ(After([] { Click(4500, 4500); }), "copy 2 boxes");
    After(select);
    After([] { mnuEditMove_Click(*Documents[1]); });
    EXPECT_EQ(After([] { Click(150, 150); }), "move 4 boxes");
    After(select);
    EXPECT_EQ(After([] { mnuEditClear_Click(*Documents[1]); }), "delete 4 boxes");
    EXPECT_EQ(After([] { EXPECT_EQ(Saved("a.qvm"), "0\r\n\r\n"); }), "delete 4 boxes");
    Undo();
    EXPECT_EQ(RedoName(), "delete 4 boxes");
    EXPECT_EQ(Documents[1]->Caption, "a.qvm") << "what is saved stays saved";
    screen.MessageAnswers = {Answer::No};
    EXPECT_EQ(After([] { CloseDocument(1); }), "close a.qvm");
    EXPECT_EQ(RedoName(), "");
    EXPECT_EQ(After([] { LoadDocumentFile("a.qvm"); }), "open a.qvm");
}

TEST_F(HistoryTest, ClosedWorksheetsComeBackWholeAndModifiedTellsWhatIsOnDisk) {
    const auto place = [](double x) {
        RunBoxCommand(*Documents[1], "mnuTrigSin");
        AfterEvent();
        Click(x, 600);
        AfterEvent();
    };
    AfterEvent();
    place(1200);
    Saved("a.qvm");
    AfterEvent();
    place(2400);
    auto& bar = Documents[1]->scrH;
    bar.Value = 900;
    scrH_Change(*Documents[1]);
    mnuMultipleArrows_Click(*Documents[1]);
    AfterEvent();
    const auto text = DocumentText(1);
    screen.MessageAnswers = {Answer::No};
    CloseDocument(1);
    AfterEvent();
    ASSERT_FALSE(Documents[1]);
    Undo();
    ASSERT_TRUE(Documents[1]);
    EXPECT_EQ(DocumentText(1), text);
    EXPECT_EQ(Documents[1]->Caption, "a.qvm");
    EXPECT_EQ(Documents[1]->scrH.Value, 900);
    EXPECT_EQ(Documents[1]->box[2].Left, 1500) << "2400 on the sheet";
    EXPECT_TRUE(Documents[1]->pnlArrow.HoldsArrow);
    EXPECT_EQ(DocumentStates[1].Closed, 0);
    const auto modified = [] { return DocumentStates[1].Modified; };
    EXPECT_EQ(modified(), -1);
    Undo();
    EXPECT_EQ(modified(), 0) << "as saved";
    Undo();
    EXPECT_EQ(modified(), -1) << "before the saving";
    Redo();
    EXPECT_EQ(modified(), 0);
    Redo();
    EXPECT_EQ(modified(), -1);
    // A save that the system refuses says nothing, but what was stored stays what it was.
    std::filesystem::create_directory("folder");
    Documents[1]->Caption = "folder";
    SaveDocument(1, 1);
    AfterEvent();
    EXPECT_TRUE(DocumentStates[1].SaveFailed);
    Undo();
    Redo();
    EXPECT_EQ(modified(), -1);
}

TEST_F(HistoryTest, WhatIsPendingIsGivenUpFirst) {
    AfterEvent();
    RunBoxCommand(Sheet(), "mnuTrigSin");
    AfterEvent();
    Undo();
    EXPECT_EQ(NextBox, 1);
    EXPECT_EQ(EditMode, 1);
    EXPECT_FALSE(Sheet().box.Has(1));
    EXPECT_EQ(Sheet().MousePointer, PointerDefault);
    // While a box is armed, what happens to the others is a step of its own.
    RunBoxCommand(Sheet(), "mnuTrigSin");
    AfterEvent();
    NewDocument();
    EditMode = 2;
    AfterEvent();
    EXPECT_TRUE(GiveUp());
    EXPECT_EQ(UndoName(), "new worksheet");
    EXPECT_TRUE(Documents[2]);
    EXPECT_EQ(NextBox, 1);
    EXPECT_FALSE(GiveUp());
}

}  // namespace
