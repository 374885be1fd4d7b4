// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <memory>
#include <string>

#include "platform/desktop.h"

class QEventLoop;

namespace quorvane {

/// The far end of the link: a MATLAB or an Octave behind pipes, a child of this program in a
/// process group of its own, which dies with it. A script goes to it as a file, together with a
/// call of a function of ours that runs the file between two marks; what stands between them is its
/// answer. A script has ended when its end mark came or the engine is gone, and never for another
/// reason. Meanwhile the windows are painted and take no input but Escape, which breaks the script
/// off; an engine that doesn't heed it is killed after five seconds.
class MatlabProcess : public QObject {
public:
    MatlabProcess();
    ~MatlabProcess() override;

    /// Starts a program in place of the running one and waits until it answers. Error 53 when it
    /// can't be started or ends at once.
    void Start(const QString& chosen);
    bool IsRunning() const;
    /// Runs a script, or keeps it while a block that began in it or before it is open. Error 282
    /// when no engine is running.
    void Execute(const std::string& script, const LineBoxes& boxes);
    bool HasAnswer() const { return !answer_.isEmpty(); }
    /// What the last script printed, then "".
    std::string TakeAnswer();
    /// Tells of the block that is still kept, which runs when the run has `come` to its end.
    std::string Finish(bool come);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Stop();
    void WriteFunctions(bool isOctave);
    QString PathOf(const QString& name) const;
    QByteArray AddFolder() const;
    void Run(const std::string& script, const LineBoxes& boxes);
    void NameBox(const QString& file, const LineBoxes& boxes);
    void Wait();
    void Read();
    bool TakeMark();
    void TakeMarkOfJob(char kind);
    void Ask(char kind, const QByteArray& question);
    void EndJob();
    void Ended();
    void Tick();
    void Interrupt();
    void Limit();

    QProcess process_;
    std::unique_ptr<QTemporaryDir> folder_;
    QByteArray token_;  ///< Part of all names and marks of ours, drawn anew for each engine
    std::string kept_;  ///< The parts of a block that isn't closed yet
    LineBoxes keptBoxes_;
    QByteArray answer_;

    int job_ = 0;
    QEventLoop* waiting_ = nullptr;  ///< The loop of the running script
    QByteArray received_;
    qsizetype looked_ = 0;    ///< In front of this no mark begins
    qsizetype leftOut_ = 0;   ///< Bytes of a flood that were not kept
    bool asking_ = false;     ///< A question of the script is on the screen
    QElapsedTimer running_;   ///< Since the script was sent
    QElapsedTimer stopping_;  ///< Since Escape; invalid without it
    int breaks_ = 0;          ///< How often the script was told to stop
    QTimer idle_;             ///< Lets an idle engine look after its figures, once it has some
    QElapsedTimer shown_;     ///< Since the windows last took over the records
};

}  // namespace quorvane
