// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls.h"
#include "platform/form.h"

namespace quorvane {

/// The dialog that offers what programs left behind that didn't come to a proper end.
struct RecoveryForm {
    FormState Form = {.Caption = "Quorvane"};
    Label lblTop;
    ListBox diagrams;
    Button openAll, later, throwAway;
};
extern RecoveryForm recovery;

/// Offers the diagrams below RecoveryRoot() in folders that no running program holds. What the user
/// opens comes as changed worksheets; the old files go when the copies of this program stand.
/// A file that is damaged is opened as far as it has whole boxes, and kept under another name.
/// Unknown files are left alone.
void OfferRecovery();
/// Opens them without asking.
void OpenRecovery();

void recovery_openAll_Click();
void recovery_later_Click();
void recovery_throwAway_Click();
Form recovery_Table();

void ResetRecoveryOffer();

}  // namespace quorvane
