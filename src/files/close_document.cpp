// SPDX-License-Identifier: MIT
#include "files/close_document.h"

#include "diagram/box_table.h"
#include "diagram/delete_boxes.h"
#include "diagram/selection.h"
#include "files/document_file.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

/// False when the user cancels.
bool OfferToSave(int document) {
    if (!DocumentStates[document].Modified) return true;
    const auto answer = desktop->MsgBox({"Do you wish to save this file before closing ?",
                                         Icon::Exclamation, Buttons::YesNoCancel});
    if (answer == Answer::Yes) SaveDocument(ToInt16(document), 1);
    return answer != Answer::Cancel;
}

void DeleteAllBoxes(const Worksheet& window, int document) {
    ClearSelectionRect(window.Tag);
    SelectedBoxes.Resize(0);
    for (int i = 1; i <= NextBox; ++i) {
        if (BoxOrFree(i).BoxDocument == document) SelectedBoxes.Append(ToInt16(i));
    }
    bool Silent = true;
    DeleteBoxes(Silent);
    SelectedBoxes.Resize(0);
}

}  // namespace

bool CloseDocument(int document) {
    const auto& window = DocumentWindow(document);
    const bool agreed = OfferToSave(document);
    if (agreed) DeleteAllBoxes(window, document);
    DocumentStates[document].Closed = -1;
    if (agreed) Documents[document].reset();
    return agreed;
}

void mnuFileClose_Click(Worksheet& sheet) {
    if (!sheet.Tag.empty()) CloseDocument(DocumentNumber(sheet));
}

}  // namespace quorvane
