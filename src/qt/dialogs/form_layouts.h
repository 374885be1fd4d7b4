// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

namespace quorvane {

/// Puts the layout of a form, src/qt/forms/<form>.ui, on an empty window; nothing happens for a
/// form without one. In a layout the member "x(1)" of an array is called "x_1".
void SetUpLayout(const QString& form, QWidget* window);

}  // namespace quorvane
