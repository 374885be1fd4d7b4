// SPDX-License-Identifier: MIT
#include "qt/desktop/recovery_watch.h"

#include <QGuiApplication>
#include <QPointer>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QTimer>
#include <array>
#include <csignal>

#include "qt/desktop/dispatch.h"
#include "workbench/recovery.h"

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace quorvane {

namespace {

constexpr int Delay = 1000;        ///< Milliseconds from a change to the write
constexpr int RetryDelay = 10000;  ///< After one that failed

QPointer<QTimer> timer;

#ifdef Q_OS_UNIX

constexpr int endings[] = {SIGTERM, SIGHUP, SIGINT};
std::array<int, 2> signalPipe = {-1, -1};

/// A signal may come at any place: it only wakes the event loop.
void PassOn(int signal) {
    const auto byte = static_cast<char>(signal);
    if (write(signalPipe[1], &byte, 1) != 1) _exit(1);
}

/// Ends as the signal ends a program that doesn't know it.
void EndBySignal() {
    char byte = 0;
    if (read(signalPipe[0], &byte, 1) != 1) return;
    EndRecovery();
    std::signal(byte, SIG_DFL);
    std::raise(byte);
}

/// A second signal doesn't wait for a handler that is still running. One that is ignored from the
/// start stays so.
void WatchSignals() {
    if (pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    auto* notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, EndBySignal);
    for (const int signal : endings) {
        struct sigaction before {
        }, action{};
        action.sa_handler = PassOn;
        action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
        sigaction(signal, nullptr, &before);
        if (before.sa_handler != SIG_IGN) sigaction(signal, &action, nullptr);
    }
}

#else

void WatchSignals() {}

#endif

}  // namespace

void StartRecoveryWatch() {
    timer = new QTimer(qApp);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, qApp, [] {
        const auto before = RecoveryProblem();
        if (!WriteRecovery()) timer->start(RetryDelay);
        if (RecoveryProblem() != before) DispatchLayout([] {});
    });
    QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp,
                     [](QSessionManager&) { WriteRecovery(); });
    WatchSignals();
}

void WatchRecovery() {
    if (!timer || !RecoveryIsDue()) return;
    // A write that failed is tried again with the next change, too.
    if (!timer->isActive() || timer->remainingTime() > Delay) timer->start(Delay);
}

}  // namespace quorvane
