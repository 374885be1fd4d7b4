// SPDX-License-Identifier: MIT
#include "files/settings.h"

namespace quorvane {

PreferencesForm frmPrefs;

}  // namespace quorvane
