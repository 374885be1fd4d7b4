// SPDX-License-Identifier: MIT
#include "qt/desktop/dispatch.h"

#include <QApplication>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>

#include "platform/runtime_error.h"
#include "qt/desktop/recovery_watch.h"
#include "shell/recovery.h"
#include "workbench/after_event.h"
#include "workbench/recovery.h"

namespace quorvane {

std::function<void()> RefreshScreen = [] {};

namespace {

/// Whatever a handler let out, as a run-time error.
RuntimeError ErrorOf(const std::exception_ptr& thrown) {
    constexpr int outOfMemory = 7, internalError = 51;
    try {
        std::rethrow_exception(thrown);
    } catch (const RuntimeError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return RuntimeError(outOfMemory);
    } catch (...) {
        return RuntimeError(internalError);
    }
}

/// Saves the changed documents, tells the error and where they were saved, and ends the program.
/// The user may have it started anew with its recovery files.
[[noreturn]] void EndAfter(const RuntimeError& error) {
    QString text = QString("Run-time error '%1':\n%2")
                       .arg(error.Number)
                       .arg(QString::fromUtf8(error.Description));
    const auto files = WriteRecoveryFiles();
    WriteRecovery();
    if (!files.empty()) text += "\n\nChanged diagrams were saved as:";
    for (const auto& file : files) text += "\n" + QString::fromUtf8(file);
    QMessageBox box(QMessageBox::Critical, "Quorvane", text);
    box.setObjectName("runtimeError");
    box.setDefaultButton(box.addButton(QMessageBox::Ok));
    box.setEscapeButton(QMessageBox::Ok);
    const QAbstractButton* openAgain = box.addButton("Open again", QMessageBox::ActionRole);
    box.exec();
    EndRecovery();
    if (box.clickedButton() == openAgain) {
        QProcess::startDetached(QCoreApplication::applicationFilePath(), {OpenAgain});
    }
    std::_Exit(3);
}

bool handlerRuns = false;
int handlersRunning = 0;  ///< More than one while a dialog of a handler is open

bool MayStart(const QWidget* source) {
    const auto* dialog = QApplication::activeModalWidget();
    return !handlerRuns && (!dialog || (source && source->window() == dialog));
}

/// A handler runs for as long as this lives.
struct RunningScope {
    RunningScope() {
        handlerRuns = true;
        ++handlersRunning;
    }
    ~RunningScope() {
        handlerRuns = Before;
        --handlersRunning;
    }
    const bool Before = handlerRuns;
};

}  // namespace

void Dispatch(const std::function<void()>& handler, const QWidget* source) {
    if (!MayStart(source)) {
        // The control that was operated goes back to what its record holds.
        QMetaObject::invokeMethod(
            qApp, [] { DispatchLayout([] {}); }, Qt::QueuedConnection);
        return;
    }
    DispatchLayout([&] {
        {
            const RunningScope running;
            handler();
        }
        if (handlersRunning > 0) return;
        AfterEvent();
        WatchRecovery();
    });
}

void DispatchLayout(const std::function<void()>& handler) {
    try {
        handler();
        RefreshScreen();
    } catch (...) {
        const RunningScope running;
        EndAfter(ErrorOf(std::current_exception()));
    }
}

DialogScope::DialogScope() : before_(handlerRuns) { handlerRuns = false; }
DialogScope::~DialogScope() { handlerRuns = before_; }

}  // namespace quorvane
