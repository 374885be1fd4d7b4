// SPDX-License-Identifier: MIT
#include "diagram/delete_boxes.h"

#include <algorithm>
#include <string>

#include "diagram/arrows.h"
#include "diagram/box_table.h"
#include "diagram/placement.h"
#include "diagram/selection.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

/// A box being deleted, and the last box of the table, which takes over its number.
struct Deletion {
    int Number = 0;
    int Last = 0;
    int Document = 0;
    int LastDocument = 0;
};

template <class Slots>
void ReplaceSlots(Slots& slots, int from, int to) {
    std::replace(slots.begin(), slots.end(), static_cast<std::int16_t>(from),
                 static_cast<std::int16_t>(to));
}

/// The last position, from 0, at which `part` can stand in `text`; negative when it can't.
int LastPosition(const std::string& text, const std::string& part) {
    return static_cast<int>(text.size()) - static_cast<int>(part.size());
}

void WarnOfReferences(int number) {
    const auto name = BoxName(number);
    for (int j = 1; j < NextBox; ++j) {
        const auto& text = Boxes[j].BoxText;
        for (auto at = text.find(name); at != std::string::npos; at = text.find(name, at + 1)) {
            Tell("Warning: Box" + NumberText(number) +
                     " is about to be deleted.\r\nThis box is used as an operator for box" +
                     NumberText(j) + ".\r\n",
                 Icon::Exclamation);
        }
    }
}

/// Empties the slots of the boxes at the far ends that name this box; its own ones stay.
void Disconnect(int number) {
    const Box& box = Boxes[number];
    for (const auto peer : box.BoxIn) {
        if (peer > 0) Attempt([&] { ReplaceSlots(Boxes[peer].BoxOut, number, 0); });
    }
    for (const auto peer : box.BoxOut) {
        if (peer > 0) Attempt([&] { ReplaceSlots(Boxes[peer].BoxIn, number, 0); });
    }
}

/// The scan's limit comes from the original length: a replacement never makes the text longer.
void RenameReferences(std::string& text, const std::string& from, const std::string& to) {
    const int last = LastPosition(text, from);
    for (int at = 0; at <= last && at < static_cast<int>(text.size()); ++at) {
        const auto position = static_cast<std::size_t>(at);
        if (text.compare(position, from.size(), from) == 0) {
            text.replace(position, from.size(), to);
        }
    }
}

void RedirectToNewNumber(int last, int number) {
    for (int i = 1; i <= last; ++i) {
        ReplaceSlots(Boxes[i].BoxIn, last, number);
        ReplaceSlots(Boxes[i].BoxOut, last, number);
        RenameReferences(Boxes[i].BoxText, BoxName(last), BoxName(number));
    }
}

/// Shows the moved box under its new number where it was.
void MoveControl(const Deletion& d) {
    if (d.Document != d.LastDocument) {
        Attempt([&] { DocumentWindow(d.Document).box.Unload(d.Number); });
        Attempt([&] { DocumentWindow(d.LastDocument).box.Load(d.Number); });
    }
    Attempt([&] {
        auto& controls = DocumentWindow(d.LastDocument).box;
        controls[d.Number].Top = controls[d.Last].Top;
        controls[d.Number].Left = controls[d.Last].Left;
    });
    Attempt([&] { GiveIcon(DocumentWindow(d.LastDocument).box[d.Number], BoxIconKey(d.Number)); });
    Attempt([&] { DocumentWindow(d.LastDocument).box.Unload(d.Last); });
    Attempt([&] { DocumentWindow(d.LastDocument).box[d.Number].Visible = true; });
}

/// Removes the box from the table and from the screen.
void Remove(const Deletion& d) {
    Attempt([&] { DocumentWindow(d.Document).box[d.Number].Visible = false; });
    if (d.Number < d.Last) {
        RedirectToNewNumber(d.Last, d.Number);
        Boxes[d.Number] = Boxes[d.Last];
        MoveControl(d);
    }
    if (d.Number == d.Last) Attempt([&] { DocumentWindow(d.Document).box.Unload(d.Number); });
    Attempt([&] { FreeRecord(Boxes[d.Last]); });
    for (const int document : {d.LastDocument, d.Document}) {
        Attempt([&] { DocumentStates[document].Modified = -1; });
    }
    --NextBox;
    UpdateBoxGauge(BoxTableFill());
    for (int i = 1; i <= SelectedBoxes.UpperBound(); ++i) {
        if (SelectedBoxes[i] == NextBox) SelectedBoxes[i] = ToInt16(d.Number);
    }
}

}  // namespace

void DeleteBoxes(bool& Silent) {
    std::string document;
    std::string lastDocument;
    if (SelectedBoxes.UpperBound() > 0) EditMode = 1;
    for (int i = 1; i <= SelectedBoxes.UpperBound(); ++i) {
        Deletion d;
        d.Number = SelectedBoxes[i];
        d.Last = NextBox - 1;
        if (!Silent) WarnOfReferences(d.Number);
        Disconnect(d.Number);
        d.Document = Boxes[d.Number].BoxDocument;
        d.LastDocument = BoxOrFree(d.Last).BoxDocument;
        Remove(d);
        document = NumberText(d.Document);
        lastDocument = NumberText(d.LastDocument);
    }
    for (const auto& changed : {document, lastDocument}) {
        Attempt([&] { RedrawDocument(changed); });
        Attempt([&] { ClearSelectionRect(changed); });
    }
    SelectedBoxes.Resize(0);
}

}  // namespace quorvane
