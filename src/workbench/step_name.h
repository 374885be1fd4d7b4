// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "workbench/snapshot.h"

namespace quorvane {

/// What a user would call the step from one state to the next: "place Sin", "delete 3 boxes".
std::string StepName(const Snapshot& before, const Snapshot& after);

}  // namespace quorvane
