// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls.h"

namespace quorvane {

/// The preferences dialog. Its controls are the live preferences, which all parts read.
struct PreferencesForm {
    CheckBox chkInput;  ///< Start the generator at every box without arrows into it, too
    CheckBox chkShowBubbles = {.Value = 1};  ///< Bubbles name the boxes under the mouse
};
extern PreferencesForm frmPrefs;

}  // namespace quorvane
