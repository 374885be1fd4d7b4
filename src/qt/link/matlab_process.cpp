// SPDX-License-Identifier: MIT
#include "qt/link/matlab_process.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QKeyEvent>
#include <QWidget>
#include <algorithm>
#include <csignal>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#include <unistd.h>
#endif

#include "matlab_link/link.h"
#include "platform/runtime_error.h"
#include "qt/desktop/dispatch.h"

namespace quorvane {

namespace {

constexpr int FileNotFound = 53;
constexpr int WaitMilliseconds = 200;
/// Most boxes answer within this time; turning to the windows meanwhile would take longer than
/// they.
constexpr int SoonMilliseconds = 5;
constexpr int ShowMilliseconds = 100;
constexpr int IdleMilliseconds = 300;
/// Output that arrives while nobody waits is kept up to this many bytes.
constexpr qint64 UnreadLimit = 1 << 20;

/// With a screen, an Octave that draws by Qt is preferred to the one without windows: its figures
/// stay alive between the boxes.
QString WithFigures(const QString& program) {
    const QFileInfo file(program);
    const QFileInfo full(file.dir().filePath("octave"));
    const bool hasScreen = QGuiApplication::platformName() != "offscreen";
    return hasScreen && file.fileName() == "octave-cli" && full.isExecutable() ? full.filePath()
                                                                               : program;
}

/// Signals the engine and all that it runs; `group` is the engine's process number.
void Signal(qint64 group, int signal) {
#ifdef Q_OS_UNIX
    if (group > 0) ::kill(static_cast<pid_t>(-group), signal);
#else
    Q_UNUSED(group);
    Q_UNUSED(signal);
#endif
}

bool IsUserInput(QEvent::Type type) {
    static const QEvent::Type kinds[] = {QEvent::KeyPress,
                                         QEvent::KeyRelease,
                                         QEvent::ShortcutOverride,
                                         QEvent::Shortcut,
                                         QEvent::MouseButtonPress,
                                         QEvent::MouseButtonRelease,
                                         QEvent::MouseButtonDblClick,
                                         QEvent::MouseMove,
                                         QEvent::Wheel,
                                         QEvent::ContextMenu,
                                         QEvent::TouchBegin,
                                         QEvent::TabletPress,
                                         QEvent::InputMethod};
    return std::find(std::begin(kinds), std::end(kinds), type) != std::end(kinds);
}

/// The key, or a press on the bar's button that does the same.
bool IsEscape(QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        return static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    }
    if (event->type() != QEvent::MouseButtonPress) return false;
    const auto at = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
    const auto* pressed = QApplication::widgetAt(at);
    return pressed && pressed->objectName() == "stop";
}

}  // namespace

MatlabProcess::MatlabProcess() {
    process_.setProcessChannelMode(QProcess::MergedChannels);
#ifdef Q_OS_LINUX
    const auto parent = ::getpid();
    process_.setChildProcessModifier([parent] {
        ::setsid();
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parent) ::_exit(1);
    });
#endif
    connect(&process_, &QProcess::readyRead, this, &MatlabProcess::Came);
    connect(&process_, &QProcess::finished, this, &MatlabProcess::Came);
    // It changes no record, so it may run beside a handler or a dialog.
    connect(&idle_, &QTimer::timeout, this, LookAfterFigures);
    shown_.start();
}

MatlabProcess::~MatlabProcess() { Stop(); }

/// An idle engine ends when its input is closed; what is then left of its group is killed.
void MatlabProcess::Stop() {
    if (!IsRunning()) return;
    const auto group = process_.processId();
    process_.closeWriteChannel();
    process_.waitForFinished(500);
    Signal(group, SIGKILL);
    process_.kill();
    process_.waitForFinished();
}

void MatlabProcess::Start(const QString& chosen, const QStringList& arguments) {
    Stop();
    process_.setWorkingDirectory(QDir::homePath());
    process_.start(WithFigures(chosen), arguments);
    if (!process_.waitForStarted()) throw RuntimeError(FileNotFound);
    idle_.start(IdleMilliseconds);
}

void MatlabProcess::Write(const std::string& bytes) {
    process_.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

EngineNews MatlabProcess::Wait() {
    if (shown_.elapsed() >= ShowMilliseconds) {
        RefreshScreen();
        shown_.start();
    }
    escape_ = false;
    const bool waits = IsRunning() && process_.bytesAvailable() == 0 && !ComesSoon();
    if (waits && IsRunning()) WaitInLoop();
    EngineNews news;
    news.Escape = escape_;
    news.Ended = !IsRunning();
    news.Bytes = process_.readAll().toStdString();
    news.Crashed = process_.exitStatus() == QProcess::CrashExit;
    news.Code = process_.exitCode();
    return news;
}

bool MatlabProcess::ComesSoon() {
    waits_ = true;
    const bool came = process_.waitForReadyRead(SoonMilliseconds);
    waits_ = false;
    return came;
}

void MatlabProcess::WaitInLoop() {
    QEventLoop loop;
    QTimer::singleShot(WaitMilliseconds, &loop, &QEventLoop::quit);
    waiting_ = &loop;
    qApp->installEventFilter(this);
    loop.exec();
    qApp->removeEventFilter(this);
    waiting_ = nullptr;
}

void MatlabProcess::Came() {
    if (waiting_) return waiting_->quit();
    if (waits_) return;
    if (process_.bytesAvailable() > UnreadLimit) process_.readAll();
}

void MatlabProcess::Interrupt() { Signal(process_.processId(), SIGINT); }
void MatlabProcess::Kill() { Signal(process_.processId(), SIGKILL); }

bool MatlabProcess::eventFilter(QObject*, QEvent* event) {
    if (!IsUserInput(event->type())) return false;
    if (IsEscape(event)) {
        escape_ = true;
        waiting_->quit();
    }
    // A key that is no shortcut now comes again as a press.
    event->setAccepted(event->type() == QEvent::ShortcutOverride);
    return true;
}

}  // namespace quorvane
