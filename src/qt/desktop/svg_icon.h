// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace quorvane {

/// A drawing of the program's resources, "bar/undo" or "examples/sine", as an icon that is drawn
/// anew for each size and resolution.
QIcon SvgIcon(const QString& name);

}  // namespace quorvane
