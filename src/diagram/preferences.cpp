// SPDX-License-Identifier: MIT
#include "diagram/preferences.h"

namespace quorvane {

std::string ProgramDirectory;
PreferencesForm frmPrefs;

}  // namespace quorvane
