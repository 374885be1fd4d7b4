// SPDX-License-Identifier: MIT
#include "qt/matlab_process.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QRandomGenerator>
#include <QTimer>
#include <algorithm>
#include <csignal>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#include <unistd.h>
#endif

#include "diagram/box_table.h"
#include "generator/output_targets.h"
#include "matlab_link/script_blocks.h"
#include "platform/desktop.h"
#include "platform/runtime_error.h"
#include "qt/dispatch.h"
#include "qt/screen_units.h"

namespace quorvane {

namespace {

constexpr int FileNotFound = 53;
constexpr int NoApplicationAnswered = 282;
constexpr int TickMilliseconds = 200;
constexpr int ShowMilliseconds = 100;
constexpr int GoingMilliseconds = 3000;
constexpr int IdleMilliseconds = 300;
constexpr int BreakSeconds = 5;
constexpr qsizetype AnswerLimit = 8 << 20;
constexpr std::int16_t NoBox = 0;
/// How the engine begins what it says of a script that it can't read; the line's number follows.
constexpr const char* ParseError = "parse error near line ";

const char* const functions[] = {"run", "ask", "input", "pause", "keyboard"};
const char* const octaveFunctions[] = {"system_dependent"};

/// What an engine is started with, by the beginning of its file name.
struct EngineRow {
    const char* Name;
    QStringList Arguments;
};
const QString octaveSetUp =
    "PS1('');PS2('');more off;warning('off','Octave:shadowed-function');"
    "warning('off','backtrace');";
const EngineRow engines[] = {
    {"octave",
     {"--no-gui", "--quiet", "--no-init-file", "--no-history", "--interactive", "--eval",
      octaveSetUp, "--persist"}},
    {"", {"-nodesktop", "-nosplash"}},
};

/// With a screen, an Octave that draws by Qt is preferred to the one without windows: its figures
/// stay alive between the boxes.
QString WithFigures(const QString& program) {
    const QFileInfo file(program);
    const QFileInfo full(file.dir().filePath("octave"));
    const bool hasScreen = QGuiApplication::platformName() != "offscreen";
    return hasScreen && file.fileName() == "octave-cli" && full.isExecutable() ? full.filePath()
                                                                               : program;
}

/// To the engine and all that it runs; `group` is the number of the engine.
void Signal(qint64 group, int signal) {
#ifdef Q_OS_UNIX
    if (group > 0) ::kill(static_cast<pid_t>(-group), signal);
#else
    Q_UNUSED(group);
    Q_UNUSED(signal);
#endif
}

/// The line of a script, from 0, that holds this character.
std::size_t LineAt(const std::string& script, std::size_t at) {
    const auto end = script.begin() + static_cast<std::ptrdiff_t>(at);
    return static_cast<std::size_t>(std::count(script.begin(), end, '\n'));
}

/// The beginning of what is told of a box.
std::string NameOf(std::int16_t box) { return box == NoBox ? "" : BoxName(box) + ": "; }

QByteArray Quoted(const QString& text) {
    return "'" + QString(text).replace("'", "''").toUtf8() + "'";
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

void ShowState(const QString& text) {
    frmTextResults.lblState.Caption = ToCore(text);
    RefreshScreen();
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
    connect(&process_, &QProcess::readyRead, this, &MatlabProcess::Read);
    connect(&process_, &QProcess::finished, this, &MatlabProcess::Ended);
    connect(&idle_, &QTimer::timeout, this, [this] {
        if (!waiting_ && IsRunning()) process_.write("try," + token_ + "run;catch,end\n");
    });
    shown_.start();
}

MatlabProcess::~MatlabProcess() { Stop(); }

/// An idle engine ends when its input does; what is left of its group then is killed.
void MatlabProcess::Stop() {
    if (!IsRunning()) return;
    const auto group = process_.processId();
    process_.closeWriteChannel();
    process_.waitForFinished(500);
    Signal(group, SIGKILL);
    process_.kill();
    process_.waitForFinished();
}

bool MatlabProcess::IsRunning() const { return process_.state() == QProcess::Running; }

QString MatlabProcess::PathOf(const QString& name) const { return folder_->filePath(name + ".m"); }

void MatlabProcess::WriteFunctions(bool isOctave) {
    QStringList names(std::begin(functions), std::end(functions));
    if (isOctave) names.append(QStringList(std::begin(octaveFunctions), std::end(octaveFunctions)));
    for (const auto& name : names) {
        QFile source(":/engine/" + name + ".m");
        source.open(QFile::ReadOnly);
        auto text = source.readAll();
        text.replace("TOKEN", token_).replace("RUN", token_ + "run").replace("ASK", token_ + "ask");
        const bool isOurs = name == "run" || name == "ask";
        QFile file(PathOf(isOurs ? token_ + name : name));
        if (!file.open(QFile::WriteOnly) || file.write(text) != text.size()) {
            throw RuntimeError(FileNotFound);
        }
    }
}

void MatlabProcess::Start(const QString& chosen) {
    Stop();
    const auto program = WithFigures(chosen);
    folder_ = std::make_unique<QTemporaryDir>(QDir::tempPath() + "/quorvane-XXXXXX");
    token_ = "q" + QByteArray::number(QRandomGenerator::system()->generate64(), 16);
    kept_.clear();
    keptBoxes_.clear();
    idle_.stop();
    const auto name = QFileInfo(program).fileName();
    const auto* row = std::begin(engines);
    while (!name.startsWith(row->Name)) ++row;
    WriteFunctions(row == std::begin(engines));
    process_.setWorkingDirectory(QDir::homePath());
    process_.start(program, row->Arguments);
    if (!process_.waitForStarted()) throw RuntimeError(FileNotFound);
    process_.write(AddFolder() + '\n');
    Run("", {});
    answer_.clear();
    if (!IsRunning()) throw RuntimeError(FileNotFound);
}

void MatlabProcess::Execute(const std::string& script, const LineBoxes& boxes) {
    if (!IsRunning()) throw RuntimeError(NoApplicationAnswered);
    answer_.clear();
    kept_ += script;
    keptBoxes_.insert(keptBoxes_.end(), boxes.begin(), boxes.end());
    // A first plot has become one line.
    const auto lines = LineAt(kept_, kept_.size()) + (kept_.ends_with('\n') ? 0 : 1);
    keptBoxes_.resize(lines, boxes.empty() ? NoBox : boxes.back());
    if (!BlocksAreClosed(kept_)) return;
    const auto whole = std::exchange(kept_, "");
    const auto wholeBoxes = std::exchange(keptBoxes_, {});
    if (whole.find_first_not_of(" \r\n") != std::string::npos) Run(whole, wholeBoxes);
    if (shown_.elapsed() < ShowMilliseconds) return;
    RefreshScreen();
    shown_.start();
}

std::string MatlabProcess::TakeAnswer() {
    return std::exchange(answer_, QByteArray()).toStdString();
}

/// Where the block is open in truth, the engine runs nothing of it and complains of its end.
std::string MatlabProcess::Finish(bool come) {
    const auto rest = std::exchange(kept_, "");
    const auto boxes = std::exchange(keptBoxes_, {});
    if (rest.empty() || !come || !IsRunning()) return "";
    const auto told = NameOf(boxes[LineAt(rest, FindOpenBlock(rest))]);
    Run(rest, boxes);
    const auto answer = TakeAnswer();
    const bool refused = answer.find(ParseError) != std::string::npos;
    return told + "The block that begins here is never closed.\n" + (refused ? "" : answer);
}

/// The functions of ours are found again also where a script took their folder from the path.
QByteArray MatlabProcess::AddFolder() const { return "addpath(" + Quoted(folder_->path()) + ");"; }

/// The file has another name each time, since an engine may not look again at one that it knows.
void MatlabProcess::Run(const std::string& script, const LineBoxes& boxes) {
    const auto id = QByteArray::number(++job_);
    QFile file(PathOf("step" + id));
    const auto size = static_cast<qint64>(script.size());
    const bool isWritten =
        file.open(QFile::WriteOnly) && file.write(script.data(), size) == size && file.flush();
    if (!isWritten) {
        // A part of a script must not run.
        answer_ = "The script could not be written: " + file.errorString().toUtf8() + ".\n";
        return;
    }
    file.close();
    received_.clear();
    looked_ = leftOut_ = 0;
    const auto call = token_ + "run(" + Quoted(file.fileName()) + ",'" + id + "');";
    process_.write("try," + call + "catch," + AddFolder() + call + "end\n");
    Wait();
    file.remove();
    NameBox(file.fileName(), boxes);
}

/// A script that can't be read is told of by a line of its file, which the user has never seen: in
/// its place stand the box and the line of that box.
void MatlabProcess::NameBox(const QString& file, const LineBoxes& boxes) {
    const auto place = " of file " + file.toUtf8();
    const auto end = answer_.indexOf(place);
    const auto start = answer_.lastIndexOf(ParseError, end);
    if (end < 0 || start < 0 || boxes.empty()) return;
    const auto told = answer_.mid(start, end - start).split(' ').last().toULongLong();
    // The end of the script is told as the line behind its last one.
    const auto line = std::clamp<std::size_t>(told, 1, boxes.size()) - 1;
    auto first = line;
    while (first > 0 && boxes[first - 1] == boxes[line]) --first;
    const auto text = NameOf(boxes[line]) + ParseError + std::to_string(line - first + 1);
    answer_.replace(start, end + place.size() - start, QByteArray::fromStdString(text));
}

void MatlabProcess::Wait() {
    QEventLoop loop;
    QTimer clock;
    connect(&clock, &QTimer::timeout, this, &MatlabProcess::Tick);
    clock.start(TickMilliseconds);
    running_.start();
    stopping_.invalidate();
    waiting_ = &loop;
    qApp->installEventFilter(this);
    if (IsRunning()) loop.exec();
    qApp->removeEventFilter(this);
    waiting_ = nullptr;
    if (!frmTextResults.lblState.Caption.empty()) ShowState("");
}

/// What comes between two scripts belongs to none.
void MatlabProcess::Read() {
    const auto fresh = process_.readAll();
    if (waiting_) received_ += fresh;
    while (waiting_ && TakeMark()) {
    }
    if (waiting_) Limit();
}

/// Looks for the next mark and does what it asks for. False when there is none, or not all of it.
bool MatlabProcess::TakeMark() {
    const auto start = '\1' + token_;
    const auto at = received_.indexOf(start, looked_);
    if (at < 0) {
        looked_ = std::max<qsizetype>(0, received_.size() - start.size());
        return false;
    }
    looked_ = at;
    const auto behind = at + start.size();
    const auto end = received_.indexOf('\1', behind);
    if (end < behind + 2) return false;
    const char kind = received_[behind];
    const auto text = received_.mid(behind + 2, end - behind - 2);
    const bool isQuestion = kind == 'i' || kind == 'p';
    // But for a question, a mark brings a line end of its own.
    looked_ = isQuestion ? at : std::max<qsizetype>(0, at - 1);
    received_.remove(looked_, end + 1 - looked_);
    if (isQuestion) {
        Ask(kind, text);
    } else if (kind == 'f') {
        idle_.start(IdleMilliseconds);
    } else if (text == QByteArray::number(job_)) {
        TakeMarkOfJob(kind);
    }
    return true;
}

/// A script that neither ended nor was broken off has ended the engine, which goes in a moment.
void MatlabProcess::TakeMarkOfJob(char kind) {
    if (kind == 'b') {
        received_.remove(0, looked_);
        looked_ = 0;
    } else if (kind == 'e' || stopping_.isValid()) {
        received_.truncate(looked_);
        EndJob();
    } else {
        QTimer::singleShot(GoingMilliseconds, waiting_, [this] { EndJob(); });
    }
}

/// What the user answers stands behind the question, as on a terminal.
void MatlabProcess::Ask(char kind, const QByteArray& question) {
    asking_ = true;
    QByteArray line;
    if (kind == 'i') {
        const auto text = question.toStdString();
        line = QByteArray::fromStdString(AskForLine(text, "Quorvane", ""));
        received_.insert(looked_, question + line + '\n');
    } else {
        Tell("The script waits. OK goes on.", Icon::Information);
    }
    asking_ = false;
    process_.write(line.replace('\n', ' ') + '\n');
    running_.start();
}

/// A flood is kept up to its limit and counted from there on.
void MatlabProcess::Limit() {
    const auto excess = looked_ - AnswerLimit;
    if (excess <= 0) return;
    received_.remove(AnswerLimit, excess);
    looked_ = AnswerLimit;
    leftOut_ += excess;
}

/// Nothing when the job has ended already, as when the engine dies while its end is waited for.
void MatlabProcess::EndJob() {
    if (!waiting_) return;
    answer_ = received_;
    if (leftOut_ > 0) answer_ += "\n... " + QByteArray::number(leftOut_) + " bytes more\n";
    if (stopping_.isValid()) answer_ += "Stopped.\n";
    waiting_->quit();
    waiting_ = nullptr;
}

void MatlabProcess::Ended() {
    if (!waiting_) return;
    received_ += process_.readAll();
    while (waiting_ && TakeMark()) {
    }
    if (!waiting_) return;
    const bool crashed = process_.exitStatus() == QProcess::CrashExit;
    const auto code = QByteArray::number(process_.exitCode());
    EndJob();
    answer_ += crashed ? "Matlab has been ended by signal " + code + ".\n"
                       : "Matlab has ended with exit code " + code + ".\n";
}

void MatlabProcess::Tick() {
    if (asking_) return;
    if (!stopping_.isValid()) {
        if (running_.elapsed() < 2 * TickMilliseconds) return;
        return ShowState("Matlab is working. Escape stops it.");
    }
    const auto seconds = static_cast<int>(stopping_.elapsed() / 1000);
    if (seconds >= BreakSeconds) return Signal(process_.processId(), SIGKILL);
    if (seconds >= breaks_) Interrupt();
    ShowState(QString("Stopping. Matlab is ended by force in %1 s.").arg(BreakSeconds - seconds));
}

/// A break while the engine waits for a line takes effect with the next line. Where the first one
/// doesn't help, the engine may stand in its debugger.
void MatlabProcess::Interrupt() {
    Signal(process_.processId(), SIGINT);
    process_.write(breaks_++ == 0 ? "\n" : "dbquit\n");
}

bool MatlabProcess::eventFilter(QObject*, QEvent* event) {
    if (asking_ || !IsUserInput(event->type())) return false;
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && !stopping_.isValid()) {
        stopping_.start();
        breaks_ = 0;
        Interrupt();
        Tick();
    }
    event->ignore();
    return true;
}

}  // namespace quorvane
