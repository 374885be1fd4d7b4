// SPDX-License-Identifier: MIT
#include "workbench/after_event.h"

#include "workbench/history.h"
#include "workbench/recovery.h"

namespace quorvane {

void AfterEvent() {
    NoteStep();
    NoteRecovery();
}

}  // namespace quorvane
