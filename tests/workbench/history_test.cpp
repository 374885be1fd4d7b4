// SPDX-License-Identifier: MIT
#include "workbench/history.h"

#include <cstdlib>
#include <sstream>

#include "commands/run_command.h"
#include "diagram/placement.h"
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

TEST_F(HistoryTest, AClosingThatTakesANumberTooManyLeavesNoStepBehind) {
    const auto place = [] {
        RunBoxCommand(*Documents[1], "mnuTrigSin");
        PlaceArmedBox(*Documents[1], 0, 0);
        AfterEvent();
    };
    NewDocument();
    AfterEvent();
    place();
    EditMode = 3;
    RunBoxCommand(*Documents[1], "mnuTrigCos");
    DocumentStates[1].Modified = 0;
    CloseDocument(1);
    AfterEvent();
    EXPECT_EQ(NextBox, 0);
    NewDocument();
    AfterEvent();
    place();
    EXPECT_EQ(UndoName(), "new worksheet");
    place();
    EXPECT_EQ(UndoName(), "place Sin");
    Undo();
    EXPECT_EQ(NextBox, 1);
}

}  // namespace
