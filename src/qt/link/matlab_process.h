// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QProcess>
#include <QTimer>
#include <string>

#include "platform/desktop.h"

class QEventLoop;

namespace quorvane {

/// The process at the far end of the link (matlab_link/link.h): a child of this program in a
/// process group of its own, which dies with it. While the link waits for it, the windows are
/// painted and take no input but Escape.
class MatlabProcess : public QObject {
public:
    MatlabProcess();
    ~MatlabProcess() override;

    /// Starts a program in place of the running one. Error 53 when it can't be started.
    void Start(const QString& chosen, const QStringList& arguments);
    bool IsRunning() const { return process_.state() == QProcess::Running; }
    void Write(const std::string& bytes);
    EngineNews Wait();
    void Interrupt();
    void Kill();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Stop();
    void Came();
    bool ComesSoon();
    void WaitInLoop();

    QProcess process_;
    QEventLoop* waiting_ = nullptr;  ///< The loop of the wait
    bool waits_ = false;             ///< In a short wait, which paints nothing
    bool escape_ = false;            ///< Escape was pressed in this wait
    QTimer idle_;                    ///< Lets an idle engine update its figures
    QElapsedTimer shown_;            ///< Since the windows last took over the records
};

}  // namespace quorvane
