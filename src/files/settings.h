// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls.h"

namespace quorvane {

/// The preferences dialog. Its controls are the live preferences.
struct PreferencesForm {
    CheckBox chkInput;  ///< Start the generator at every box without arrows into it, too
};
extern PreferencesForm frmPrefs;

}  // namespace quorvane
