// SPDX-License-Identifier: MIT
#include "workbench/bar.h"

#include <algorithm>

#include "commands/change_box.h"
#include "commands/worksheet_events.h"
#include "diagram/box_table.h"
#include "diagram/connections.h"
#include "diagram/selection.h"
#include "generator/send_to_matlab.h"
#include "matlab_link/run_report.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "workbench/history.h"
#include "workbench/live_script.h"
#include "workbench/recovery.h"
#include "workbench/run_report.h"

namespace quorvane {

namespace {

constexpr std::int64_t NoticeMilliseconds = 8000;

/// What was said, and when: the clock, the step and the mode.
struct Notice {
    std::string Text;
    std::int64_t Said = 0;
    int Changes = 0;
    int Mode = 0;
};
Notice notice;

bool Stands(const Notice& said) {
    return !said.Text.empty() && said.Changes == HistoryChanges() && said.Mode == EditMode &&
           desktop->Milliseconds() - said.Said < NoticeMilliseconds;
}

/// How far a run is, and what the link waits for.
std::string Waiting() {
    const auto& state = frmTextResults.lblState.Caption;
    if (linkReport.Box == 0) return state;
    return RunInWords() + (state.empty() ? "" : ". " + state);
}

std::string Selected() {
    const int count = SelectedBoxes.UpperBound();
    if (count == 0) return RunInWords();
    return NumberText(count) + (count == 1 ? " box selected" : " boxes selected");
}

std::string Found(int document) {
    const auto count = std::ssize(ScriptOf(document).Findings);
    if (count == 0) return "";
    return NumberText(count) + (count == 1 ? " finding" : " findings");
}

/// What a click does in "Multiple Arrows", and what somebody who has never drawn a diagram looks
/// for on a sheet without boxes, or without arrows.
std::string NextStep(int document) {
    if (document == 0) return "";
    if (DocumentWindow(document).pnlArrow.HoldsArrow) return "arrows: click a box, then its target";
    int boxes = 0;
    for (int number = 1; number < NextBox; ++number) {
        const Box& box = Boxes[number];
        if (box.BoxDocument != document) continue;
        ++boxes;
        const auto isWired = [](auto slot) { return slot > 0; };
        if (std::any_of(box.BoxIn.begin(), box.BoxIn.end(), isWired)) return "";
    }
    if (boxes == 0) return "empty sheet: press / to find a box";
    return boxes == 1 ? "" : "press A on a box, then click its target";
}

}  // namespace

void Say(const std::string& text) {
    notice = {text, desktop->Milliseconds(), HistoryChanges(), EditMode};
}

std::string BarState(int document, bool withFindings) {
    if (auto waiting = Waiting(); !waiting.empty()) return waiting;
    if (Stands(notice)) return notice.Text;
    if (!frmMDI.txtEvent.empty()) return frmMDI.txtEvent + ": move to a worksheet to place it";
    switch (EditMode) {
        case 2: return "box " + NumberText(NextBox - 1) + " armed: click to place it";
        case 3: return "arrow: click the box that it comes from";
        case 4: return "arrow from " + BoxName(ArrowSource) + ": click its target";
        case 5: return "move: click where the selection goes";
        case 6: return "copy: click a box, or where the selection goes";
        default: break;
    }
    for (const auto& text : {SaveProblem(), RecoveryProblem(), Selected(),
                             withFindings ? Found(document) : "", NextStep(document)}) {
        if (!text.empty()) return text;
    }
    return "";
}

void ChangeBox_Key(Worksheet& sheet, int number) {
    GiveUp();
    if (!sheet.box.Has(number)) return;
    if (!ChangeBox(sheet, number)) Say(BoxName(number) + " has no dialog");
}

void ArrowFrom_Key(Worksheet& sheet, int number) {
    GiveUp();
    mnuArrow_Click(sheet);
    box_Click(sheet, number);
}

void ResetBar() { notice = {}; }

}  // namespace quorvane
