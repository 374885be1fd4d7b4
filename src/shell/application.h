// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// Puts the whole state of the program back to what it is at the start: the table, the documents,
/// the front, the preferences, the open files.
void ResetApplication();

}  // namespace quorvane
