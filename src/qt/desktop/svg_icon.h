// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace quorvane {

/// An icon of the frame's own buttons, `resources/icons/bar/NAME.svg`, drawn anew for each size and
/// resolution.
QIcon SvgIcon(const QString& name);

}  // namespace quorvane
