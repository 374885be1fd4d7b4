// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "catalogue/option_lists.h"

namespace quorvane {

/// Puts the options of a list on an empty window: one under the other in a frame with its caption,
/// the further field beside its option or below, and OK.
void SetUpOptionList(const OptionList& list, QWidget* window);

/// Says in each option's tool tip what it writes, with the further field as it stands.
void ShowOptionTips(const OptionList& list, const QWidget* window);

}  // namespace quorvane
