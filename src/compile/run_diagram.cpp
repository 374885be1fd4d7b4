// SPDX-License-Identifier: MIT
#include "compile/run_diagram.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <utility>
#include <vector>

#include "compile/options.h"
#include "compile/output.h"
#include "diagram/worksheet.h"
#include "generator/compile_document.h"
#include "generator/link_door.h"
#include "generator/send_to_matlab.h"
#include "matlab_link/engine_process.h"
#include "matlab_link/link.h"
#include "matlab_link/run_report.h"
#include "platform/runtime_error.h"

namespace quorvane {

namespace {

constexpr int EndMilliseconds = 5000;
constexpr std::size_t LastWordsLimit = 2000;

volatile std::sig_atomic_t stopSignal = 0;

/// Ends the run at once, by whatever routine it is in. It is no run-time error, which a policy
/// might drop.
struct RunStopped {
    int Code;
    std::string Why;  ///< "" when there is nothing to say
};

void WriteLine(const std::string& line) {
    std::fwrite(line.data(), 1, line.size(), stderr);
    std::fputc('\n', stderr);
}

/// What came in place of a ready engine, in one line.
std::string Told(const EngineNews& last) {
    return last.Bytes.empty() ? "" : ". It said: " + Escaped(last.Bytes);
}

/// The boxes of the script that runs; only of a block there are several.
std::string RunningBoxes() {
    std::string names;
    for (int i = 1; i <= MaxBoxes; ++i) {
        if (linkReport.Of[i].State != BoxRun::Running) continue;
        names += (names.empty() ? "" : ", ") + BoxName(i);
    }
    return names.find(',') == std::string::npos ? names : "one of " + names;
}

/// The console with an engine behind it.
struct RunDesktop : ConsoleDesktop {
    EngineProcess Engine;
    std::string CommandText;
    std::int64_t StartLimit = 0;  ///< In milliseconds
    bool Started = false;         ///< The command could be started, whatever it is
    bool Ready = false;
    EngineNews Last;  ///< Before it was ready

    explicit RunDesktop(const ConsoleDesktop& console) : ConsoleDesktop(console) {}

    void StartEngine(const std::string& program, const std::vector<std::string>& words) override {
        std::vector<std::string> command = {program};
        command.insert(command.end(), words.begin(), words.end());
        Started = Ready = false;
        Last = {};
        startedAt_ = Milliseconds();
        Engine.Start(command);
        Started = true;
    }
    bool EngineRuns() override { return Engine.Runs(); }
    void WriteEngine(const std::string& bytes) override { Engine.Write(bytes); }
    void InterruptEngine() override { Engine.Signal(SIGINT); }
    void KillEngine() override { Engine.End(0); }
    std::int64_t Milliseconds() override {
        using namespace std::chrono;
        return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    }
    EngineNews WaitForEngine() override {
        if (stopSignal != 0) throw RunStopped{EndedBySignal + stopSignal, ""};
        auto news = Engine.Wait();
        if (!Ready) NoteStart(news);
        return news;
    }
    /// A script that asks what nobody answers would wait for ever, or go on with nothing.
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& text) override {
        const bool isAnswered =
            !Answers.empty() && (Answers.front() == "cancel" || Answers.front() == "text" ||
                                 Answers.front().starts_with("text "));
        if (LinkIsBusy() && !isAnswered) {
            throw RunStopped{RunBrokenOff, RunningBoxes() + " asks \"" + Escaped(prompt) +
                                               "\", and no answer is left: put a line \"text ...\" "
                                               "into a file and name it with --answers"};
        }
        return ConsoleDesktop::InputBox(prompt, title, text);
    }

private:
    /// What it prints before it is ready may say why it won't be.
    void NoteStart(const EngineNews& news) {
        Last.Bytes += news.Bytes;
        Last.Bytes.resize(std::min(Last.Bytes.size(), LastWordsLimit));
        if (news.Ended) {
            Last.Ended = true;
            Last.Crashed = news.Crashed;
            Last.Code = news.Code;
        } else if (StartLimit > 0 && Milliseconds() - startedAt_ >= StartLimit) {
            throw RunStopped{NothingCompiled, CommandText + ": It isn't ready after " +
                                                  std::to_string(StartLimit / 1000) +
                                                  " s; give it more by --start-limit" + Told(Last)};
        }
    }

    std::int64_t startedAt_ = 0;
};

/// Starts the engine, or the first of those that are usual.
void StartOne(RunDesktop& run, const std::string& command) {
    std::vector<std::string> tried = {command};
    if (command.empty()) tried = {"octave-cli", "octave"};
    for (const auto& text : tried) {
        std::vector<std::string> words;
        if (!SplitCommand(text, words)) {
            throw RunStopped{NothingCompiled,
                             "--engine " + text + ": A quote isn't closed, or there is no word"};
        }
        run.CommandText = text;
        const auto program = words.front();
        words.erase(words.begin());
        run.Ready = Attempt([&] { StartLink(program, words); });
        if (run.Ready) return;
        if (!run.Started) continue;
        throw RunStopped{NothingCompiled,
                         text + ": It ended before it was ready, " +
                             (run.Last.Crashed ? "by signal " : "with exit code ") +
                             std::to_string(run.Last.Code) + Told(run.Last)};
    }
    throw RunStopped{NothingCompiled, command.empty()
                                          ? "There is neither octave-cli nor octave on the PATH: "
                                            "install Octave, or name an engine with --engine"
                                          : command + ": It can't be started"};
}

/// A message of several lines goes on in lines that begin with blanks.
void TellFailure(std::int16_t box, const std::string& message) {
    std::string line = box == 0 ? "" : BoxName(box) + ": ";
    for (std::size_t i = 0; i < message.size(); ++i) {
        if (message[i] != '\n') {
            line += message[i];
        } else if (i + 1 < message.size() && message[i + 1] != '\n') {
            line += "\n    ";
        }
    }
    WriteLine(line);
}

void Print(const std::string& text) {
    const bool isWritten =
        std::fwrite(text.data(), 1, text.size(), stdout) == text.size() && std::fflush(stdout) == 0;
    if (isWritten || stopSignal != 0) return;
    throw RunStopped{NothingCompiled, "standard output: What the run prints can't be written"};
}

bool HasFailedBox() {
    return std::any_of(linkReport.Of.begin(), linkReport.Of.end(),
                       [](const BoxReport& box) { return box.State == BoxRun::Failed; });
}

ExitCode RunBoxes(RunDesktop& run) {
    try {
        mnuEXEMatlab_Click(*Documents[1]);
    } catch (const RuntimeError& error) {
        run.WriteTranscript(RuntimeLine(error.Number, error.Description));
        return RunFailed;
    }
    if (HasFailedBox()) return BoxFailed;
    return lastRunEnd == RunEnd::Done ? RunFinished : RunBrokenOff;
}

std::string FinishRun(bool come) {
    const auto told = LinkFinish(come);
    if (!told.empty()) TellFailure(0, told);
    return "";
}

/// Ctrl+C is for this program alone, which then sees to the engine. A reader that is gone is an
/// output that can't be written.
void WatchSignals() {
#ifndef _WIN32
    struct sigaction action = {};
    action.sa_handler = [](int signal) { stopSignal = signal; };
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) ::sigaction(signal, &action, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
#endif
}

}  // namespace

int RunDiagram(const ConsoleDesktop& console, const EngineChoice& choice) {
    if (!EngineProcess::IsAvailable()) {
        return Refuse("--run isn't there on Windows yet; compile the diagram and run the script");
    }
    RunDesktop run(console);
    run.StartLimit = choice.StartLimit * 1000LL;
    desktop = &run;
    WatchSignals();
    linkListener = {Print, TellFailure};
    matlabLink = {
        LinkOpen,   LinkExecute, LinkRequest, FinishRun, [&] { StartOne(run, choice.Command); },
        BeginReport};
    try {
        StartOne(run, choice.Command);
        const auto code = RunBoxes(run);
        run.Engine.End(EndMilliseconds);
        return code;
    } catch (const RunStopped& stopped) {
        // An engine that asks is idle.
        stopped.Code == RunBrokenOff ? run.Engine.End(EndMilliseconds) : run.Engine.Stop();
        if (!stopped.Why.empty()) WriteLine("quorvane-compile: " + stopped.Why);
        return stopped.Code;
    }
}

}  // namespace quorvane
