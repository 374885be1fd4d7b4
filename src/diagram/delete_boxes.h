// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// Deletes the boxes of SelectedBoxes and empties it. The last box of the table takes over the
/// number of each deleted one, also from another document: slots, the "box" references in all texts
/// and the rest of the list follow it. Unless `Silent`, a warning tells of each text that refers to
/// a deleted box; it asks nothing. References are plain text: "box1" is found in "box12", too.
/// Nothing fails here: a control that isn't there is skipped. An empty list changes nothing.
void DeleteBoxes(bool& Silent);

}  // namespace quorvane
