// SPDX-License-Identifier: MIT
#include "workbench/after_event.h"

#include "diagram/box_table.h"
#include "workbench/history.h"
#include "workbench/recovery.h"

namespace quorvane {

void AfterEvent() {
    GiveBoxIds();
    NoteStep();
    NoteRecovery();
}

}  // namespace quorvane
