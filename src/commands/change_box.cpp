// SPDX-License-Identifier: MIT
#include "commands/change_box.h"

#include <algorithm>

#include "catalogue/box_commands.h"
#include "catalogue/option_lists.h"
#include "commands/run_command.h"
#include "diagram/arrows.h"
#include "diagram/box_table.h"
#include "diagram/placement.h"

namespace quorvane {

namespace {

bool Offers(std::string_view dialog, const Box& box) {
    const auto* list = FindOptionList(dialog);
    return list && std::any_of(list->Options.begin(), list->Options.end(), [&](const auto& option) {
               return !option.BoxType.empty() && option.BoxType == box.BoxType;
           });
}

/// The command that makes boxes of this kind, nullptr for a box that none makes.
const BoxCommand* CommandOf(const Box& box) {
    for (const auto& row : boxCommands) {
        if (!MakesBox(row)) continue;
        if (row.BoxType.empty() ? Offers(row.Dialog, box) : row.BoxType == box.BoxType) return &row;
    }
    if (box.BoxText != "Subroutine") return nullptr;
    const bool inserted = box.BoxType.starts_with("Insert Subroutine");
    return FindBoxCommand(inserted ? "mnuSpecSubInsert" : "mnuSpecSubStart");
}

/// A text as it reads when it was saved and loaded.
std::string AsLoaded(std::string text) {
    for (auto at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at)) {
        text.replace(at, 2, ";;");
    }
    return text;
}

bool IsSame(const Box& a, const Box& b) {
    return a.BoxType == b.BoxType && AsLoaded(a.BoxText) == AsLoaded(b.BoxText);
}

/// A prompt that is cancelled, or left empty, gives a box no text or no name.
bool IsCancelled(const BoxCommand& command, const Box& box) {
    return command.Dialog == "input box" && (box.BoxText.empty() || box.BoxType == " Subroutine");
}

/// Takes an arrow to box `number` off these slots; of several, the last.
template <class Slots>
void TakeOff(Slots& slots, int number) {
    for (int i = Slots::UpperBound; i >= 1; --i) {
        if (slots[i] != number) continue;
        slots[i] = 0;
        return;
    }
}

/// Joins the open slots again as they were; calls `drop` with the far end of each arrow that has
/// lost its slot.
template <class Slots, class Drop>
void KeepArrows(Slots& slots, const Slots& former, Drop&& drop) {
    for (int i = 1; i <= Slots::UpperBound; ++i) {
        if (former[i] <= 0) continue;
        if (slots[i] == LockedSlot) {
            drop(former[i]);
        } else {
            slots[i] = former[i];
        }
    }
}

}  // namespace

bool ChangeBox(Worksheet& sheet, int number) {
    Box& box = Boxes[number];
    const auto* command = CommandOf(box);
    if (!command || command->Dialog.empty()) return false;
    const Box former = box;
    box.BoxText.clear();
    box.BoxIn.Fill(0);
    box.BoxOut.Fill(0);
    const auto type = TypeForBox(*command, &former);
    const auto key = CompleteBox(sheet, *command, number, type, &former);
    if (key.empty() || IsCancelled(*command, box) || IsSame(box, former)) {
        box = former;
        return true;
    }
    KeepArrows(box.BoxIn, former.BoxIn,
               [&](int peer) { Attempt([&] { TakeOff(Boxes[peer].BoxOut, number); }); });
    KeepArrows(box.BoxOut, former.BoxOut,
               [&](int peer) { Attempt([&] { TakeOff(Boxes[peer].BoxIn, number); }); });
    Attempt([&] { GiveIcon(sheet.box[number], key); });
    MarkModified(sheet);
    RedrawDocument(sheet.Tag);
    return true;
}

}  // namespace quorvane
