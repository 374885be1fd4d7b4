// SPDX-License-Identifier: MIT
#include "workbench/history.h"

#include <algorithm>
#include <deque>
#include <utility>

#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "workbench/snapshot.h"
#include "workbench/step_name.h"

namespace quorvane {

namespace {

/// A state and what led to it. The first one is where the history begins.
struct Step {
    std::string Name;
    Snapshot After;
};

struct History {
    std::deque<Step> Steps{1};
    std::size_t Present = 0;  ///< The step at which the program stands
    int Changes = 0;
};
History history;

Snapshot& Present() { return history.Steps[history.Present].After; }

/// The number that the next box would have if none were armed, -1 where arming has already changed
/// what was there: with a pending arrow, with a full table or before the first worksheet. Each
/// command that is run with a pending arrow lowers NextBox, also below 1; there are no boxes then.
int NextBoxAtRest() {
    if (EditMode != 2) return std::max<int>(NextBox, 1);
    return NextBox == Present().NextBox + 1 ? NextBox - 1 : -1;
}

void Append(int nextBox) {
    auto& steps = history.Steps;
    steps.resize(history.Present + 1);
    steps.push_back({"", steps.back().After});
    ++history.Present;
    UpdateSnapshot(Present(), nextBox);
    Present().Documents.shrink_to_fit();
    steps.back().Name = StepName(steps[history.Present - 1].After, Present());
    ++history.Changes;
    while (SnapshotBytes() > HistoryBytes && history.Present > 1) {
        steps.pop_front();
        --history.Present;
    }
}

void GoTo(std::size_t step) {
    const auto& present = Present();
    history.Present = step;
    RestoreSnapshot(Present(), present);
    ++history.Changes;
}

}  // namespace

void NoteStep() {
    UpdateStoredTexts(Present());
    const int nextBox = NextBoxAtRest();
    if (nextBox < 0) return;
    if (!IsDiagramOf(Present(), nextBox)) {
        Append(nextBox);
    } else if (EditMode != 2) {
        UpdateSnapshot(Present(), nextBox);
    }
}

std::string UndoName() {
    if (!frmMDI.txtEvent.empty()) return "give up the box";
    switch (EditMode) {
        case 2: return "give up the box";
        case 3:
        case 4: return "give up the arrow";
        case 5: return "give up the move";
        case 6: return "give up the copy";
        default: return history.Present > 0 ? history.Steps[history.Present].Name : "";
    }
}

std::string RedoName() {
    const auto next = history.Present + 1;
    return next < history.Steps.size() ? history.Steps[next].Name : "";
}

void Undo() {
    if (!GiveUp() && history.Present > 0) GoTo(history.Present - 1);
}

void Redo() {
    GiveUp();
    if (history.Present + 1 < history.Steps.size()) GoTo(history.Present + 1);
}

bool GiveUp() {
    const bool hasTool = !std::exchange(frmMDI.txtEvent, "").empty();
    if (EditMode < 2 || EditMode > 6) return hasTool;
    if (EditMode == 2) {
        RestoreSnapshot(Present(), Present());
    } else {
        EditMode = 1;
        SetPointerAll(PointerDefault);
    }
    return true;
}

int HistoryChanges() { return history.Changes; }

const Snapshot& PresentSnapshot() { return Present(); }

void BeginHistory() {
    UpdateSnapshot(Present(), std::max<int>(NextBox, 1));
    history.Steps = {{"", Present()}};
    history.Present = 0;
    ++history.Changes;
}

void ResetHistory() { history = {}; }

}  // namespace quorvane
