// SPDX-License-Identifier: MIT
#include "qt/dispatch.h"

#include <QApplication>
#include <QMessageBox>

#include "platform/runtime_error.h"
#include "shell/recovery.h"

namespace quorvane {

std::function<void()> RefreshScreen = [] {};

namespace {

/// Saves what is open, says what happened and where it was saved, and ends.
[[noreturn]] void EndAfter(const RuntimeError& error) {
    QString text = QString("Run-time error '%1':\n%2")
                       .arg(error.Number)
                       .arg(QString::fromUtf8(error.Description));
    const auto files = WriteRecoveryFiles();
    if (!files.empty()) text += "\n\nChanged diagrams were saved as:";
    for (const auto& file : files) text += "\n" + QString::fromUtf8(file);
    QMessageBox box(QMessageBox::Critical, "Quorvane", text);
    box.setObjectName("runtimeError");
    box.exec();
    std::_Exit(3);
}

}  // namespace

void Dispatch(const std::function<void()>& handler) {
    try {
        handler();
        RefreshScreen();
    } catch (const RuntimeError& error) {
        EndAfter(error);
    }
}

}  // namespace quorvane
