// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QIcon>

namespace quorvane {

/// A drawing of the program's resources, "bar/undo" or "examples/sine", as an icon that is drawn
/// anew for each size and resolution. The ground fills what a drawing of other proportions leaves.
QIcon SvgIcon(const QString& name, const QColor& ground = Qt::transparent);

}  // namespace quorvane
