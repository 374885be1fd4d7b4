// SPDX-License-Identifier: MIT
#include "generator/compile_document.h"

#include <algorithm>

#include "diagram/worksheet.h"
#include "files/settings.h"
#include "generator/control_flow.h"
#include "generator/emission_chain.h"
#include "generator/front.h"
#include "generator/run.h"
#include "generator/send_to_matlab.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace quorvane {

RunEnd lastRunEnd = RunEnd::None;

namespace {

using namespace std::string_view_literals;

/// Most scripts then need no second allocation.
constexpr std::size_t UsualBytesOfBox = 32;

constexpr std::string_view IndentStep = "   ";

bool AllEntriesAre(const Box& box, std::int16_t value) {
    return std::all_of(box.BoxIn.begin(), box.BoxIn.end(),
                       [value](auto entry) { return entry == value; });
}

bool IsSource(const Box& box) {
    return box.BoxType.ends_with("Input") && AllEntriesAre(box, LockedSlot);
}

bool IsUnwired(const Box& box) { return AllEntriesAre(box, 0); }
bool UnwiredStart() { return frmPrefs.chkInput.Value == 1; }

/// The sources come first.
void AddStartBoxes(const Run& run) {
    const auto add = [&run](auto starts) {
        for (std::int16_t i = 1; i < NextBox; ++i) {
            if (Boxes[i].BoxDocument == run.Document && starts(Boxes[i])) AddToFront(i);
        }
    };
    add(IsSource);
    if (UnwiredStart()) add(IsUnwired);
}

/// Only slots 1 to 5 decide whether there is anything to start with.
bool HasStartBox() {
    for (int slot = 1; slot <= 5; ++slot) {
        if (Front[slot] != 0) return true;
    }
    return false;
}

/// The first line of a box is indented one step for each open block. Blanks that a box left
/// behind without writing are used by the next one.
void Indent(Run& run) {
    if (run.scriptText.ends_with(IndentStep)) return;
    for (int depth = 0; depth < nestingDepth; ++depth) run.scriptText += IndentStep;
}

/// The boxes that `box` feeds enter the front. An "If" has opened its arms itself and continues at
/// its further exits.
void AddSuccessors(const Box& box) {
    for (int j = ArmCount(box) + 1; j <= 5; ++j) {
        if (box.BoxOut[j] != 0) AddToFront(box.BoxOut[j]);
    }
}

/// Asks what to do about the suspect. False when the run is to be aborted.
bool AskAboutStall(Run& run, int slot) {
    const auto answer = desktop->MsgBox(
        {"There seems to be an infinite loop here, whereby " + BoxName(run.stallBox) + " (" +
             ReadBox(run, run.stallBox).BoxType + ") cannot be processed.\r\n" +
             "Do you want to retry, abort or ignore this box ?",
         Icon::Critical, Buttons::AbortRetryIgnore});
    if (answer == Answer::Abort) return false;
    if (answer == Answer::Ignore) Front[slot] = 0;
    run.stallBox = 0;
    return true;
}

/// A box did not finish. The first failure after a success makes it the suspect, two more count,
/// and the next asks.
bool Stall(Run& run, int slot) {
    const int visited = Front[slot];
    if (visited <= 0) return true;
    if (run.stallBox <= 0) {
        run.stallBox = visited;
        return true;
    }
    if (run.stallCount > 1) return AskAboutStall(run, slot);
    ++run.stallCount;
    return true;
}

bool Succeed(Run& run, int slot, const Box& box) {
    run.stallBox = 0;
    run.stallCount = 0;
    AddSuccessors(box);
    if (run.Mode == 0 && !SendToMatlab(run, box.BoxType)) return false;
    RemoveFromFront(slot);
    ++run.boxesDone;
    UpdateBoxGauge(ToInt16(run.boxesDone * 100.0 / (NextBox - 1)));
    return true;
}

/// Notes which box wrote the new lines of the script. The last one may still lack its line end.
void NoteLines(Run& run, int box) {
    const auto& text = run.scriptText;
    if (run.boxOfLine.empty()) {
        run.linesEnded = 0;
        run.bytesCounted = 0;
    }
    // A box that isn't ready has written nothing, or blanks alone.
    if (text.size() == run.bytesCounted) return;
    const auto* fresh = text.data() + run.bytesCounted;
    run.linesEnded += std::count(fresh, text.data() + text.size(), '\n');
    run.bytesCounted = text.size();
    const bool isOpen = !text.ends_with('\n') && !text.ends_with(IndentStep);
    run.boxOfLine.resize(static_cast<std::size_t>(run.linesEnded + (isOpen ? 1 : 0)), ToInt16(box));
}

/// Visits one slot. The box in it is read again where it matters, since a box that opens or closes
/// a block replaces the whole front. False when the run is to be aborted.
bool VisitSlot(Run& run, int slot) {
    const int found = Front[slot];
    if (found == 0) return true;
    const Box& box = ReadBox(run, found);
    if (IsDone(box)) {
        RemoveFromFront(slot);
        return true;
    }
    if (box.BoxText != "Deleted"sv) {
        Indent(run);
        EmitBox(run, found, slot);
        if (run.Mode == 0 || run.notesLines) NoteLines(run, found);
    }
    const Box& now = ReadBox(run, Front[slot]);
    return IsDone(now) ? Succeed(run, slot, now) : Stall(run, slot);
}

/// A front that holds only numbers below 0, which are no boxes, would be walked for ever: error 9.
void RefuseLostFront() {
    const auto* slots = Front.Data();
    const auto* end = slots + frontWidth + 1;
    if (std::any_of(slots + 1, end, [](auto box) { return box > 0; })) return;
    if (std::any_of(slots + 1, end, [](auto box) { return box < 0; })) throw RuntimeError(9);
}

/// Walks the front until it is empty. False when the run was aborted.
bool WalkFront(Run& run) {
    while (!IsFrontEmpty()) {
        const int bound = frontWidth;
        for (int slot = 1; slot <= bound; ++slot) {
            if (!VisitSlot(run, slot)) return false;
        }
        RefuseLostFront();
    }
    return true;
}

/// Tells how the walk has ended and puts back what it has changed.
RunEnd Finish(RunEnd end) {
    ClearMarks();
    if (end == RunEnd::Refused) Tell("There are no inputs !", Icon::Exclamation);
    if (end == RunEnd::Done) {
        Tell("Done !", Icon::Information);
        UpdateBoxGauge(BoxTableFill());
    }
    SetPointerAll(PointerDefault);
    return end;
}

}  // namespace

bool StartsRun(const Box& box) { return IsSource(box) || (UnwiredStart() && IsUnwired(box)); }

RunEnd WalkDocument(Run& run) {
    ClearFront();
    AddStartBoxes(run);
    if (!HasStartBox()) return RunEnd::Refused;
    return WalkFront(run) ? RunEnd::Done : RunEnd::Aborted;
}

std::string CompileDocument(std::int16_t mode, const std::string& documentTag) {
    Run run;
    run.Mode = mode;
    run.Document = TextToInt16(documentTag);
    run.scriptText.reserve(static_cast<std::size_t>(std::max<int>(NextBox, 0)) * UsualBytesOfBox);
    lastRunEnd = RunEnd::None;
    SetPointerAll(PointerHourglass);
    try {
        lastRunEnd = Finish(WalkDocument(run));
    } catch (...) {
        ClearMarks();
        SetPointerAll(PointerDefault);
        throw;
    }
    const bool comesBack = lastRunEnd == RunEnd::Done && mode != 0;
    return comesBack ? std::move(run.scriptText) : std::string();
}

}  // namespace quorvane
