// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "catalogue/option_lists.h"

namespace quorvane {

/// Puts the options of a list on an empty window: one under the other in a frame with its caption,
/// the further field beside its option or below, and OK.
void SetUpOptionList(const OptionList& list, QWidget* window);

}  // namespace quorvane
