// SPDX-License-Identifier: MIT
#include "qt/sheet/mouse.h"

#include <QUuid>

#include "commands/worksheet_events.h"

namespace quorvane {

int ButtonNumber(Qt::MouseButtons buttons) {
    int number = 0;
    if (buttons & Qt::LeftButton) number |= LeftButton;
    if (buttons & Qt::RightButton) number |= RightButton;
    if (buttons & Qt::MiddleButton) number |= MiddleButton;
    return number;
}

int ShiftNumber(Qt::KeyboardModifiers modifiers) {
    int number = 0;
    if (modifiers & Qt::ShiftModifier) number |= ShiftKey;
    if (modifiers & Qt::ControlModifier) number |= CtrlKey;
    if (modifiers & Qt::AltModifier) number |= AltKey;
    return number;
}

QString DragType(const QString& what) {
    static const auto program = QUuid::createUuid().toString(QUuid::WithoutBraces);
    return "application/x-quorvane-" + what + "-" + program;
}

}  // namespace quorvane
