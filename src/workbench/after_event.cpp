// SPDX-License-Identifier: MIT
#include "workbench/after_event.h"

#include "workbench/history.h"

namespace quorvane {

void AfterEvent() { NoteStep(); }

}  // namespace quorvane
