// SPDX-License-Identifier: MIT
#include "diagram/preferences.h"

namespace quorvane {

PreferencesForm frmPrefs;

}  // namespace quorvane
