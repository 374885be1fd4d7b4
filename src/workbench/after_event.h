// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// Notices what an event has changed. It is called once when the handler has run, and before the
/// screen follows. The dialogs of a handler belong to its event. Throws nothing.
void AfterEvent();

}  // namespace quorvane
