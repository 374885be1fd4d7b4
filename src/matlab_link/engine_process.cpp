// SPDX-License-Identifier: MIT
#include "matlab_link/engine_process.h"

#include "platform/runtime_error.h"

#ifndef _WIN32
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <utility>
#ifdef __linux__
#include <sys/prctl.h>
#endif
#endif

namespace quorvane {

bool SplitCommand(const std::string& command, std::vector<std::string>& words) {
    words.clear();
    bool inWord = false;
    char quote = '\0';
    for (std::size_t i = 0; i < command.size(); ++i) {
        const char c = command[i];
        if (quote == '\0' && (c == ' ' || c == '\t' || c == '\n')) {
            inWord = false;
            continue;
        }
        if (!inWord) words.emplace_back();
        inWord = true;
        if (c == quote) {
            quote = '\0';
        } else if (quote == '\0' && (c == '\'' || c == '"')) {
            quote = c;
        } else if (c == '\\' && quote != '\'' && i + 1 < command.size() &&
                   (quote == '\0' || std::string("\\\"$`").find(command[i + 1]) < 4)) {
            words.back() += command[++i];
        } else {
            words.back() += c;
        }
    }
    return quote == '\0' && !words.empty();
}

EngineProcess::~EngineProcess() { End(0); }

#ifdef _WIN32

bool EngineProcess::IsAvailable() { return false; }
void EngineProcess::Start(const std::vector<std::string>&) { throw RuntimeError(53); }
EngineNews EngineProcess::Wait() { return {.Bytes = "", .Ended = true}; }
void EngineProcess::Signal(int) const {}
void EngineProcess::End(int) {}
void EngineProcess::Stop() {}

#else

bool EngineProcess::IsAvailable() { return true; }

namespace {

constexpr int FileNotFound = 53;
constexpr int WaitMilliseconds = 200;
constexpr int LingerMilliseconds = 2000;
constexpr int AgainMilliseconds = 600;

/// A pipe; error 53 when the system has none left.
struct Pipe {
    std::array<int, 2> End{};  ///< To read and to write
    Pipe() {
        if (::pipe(End.data()) != 0) throw RuntimeError(FileNotFound);
        // The standard files stay what they are, also where one of them is closed.
        for (int& end : End) {
            const int moved = ::fcntl(end, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
            ::close(std::exchange(end, moved));
        }
    }
};

void Close(int& file) {
    if (file >= 0) ::close(std::exchange(file, -1));
}

/// In the child: becomes the command, or tells the parent that it can't.
[[noreturn]] void BecomeCommand(const std::vector<std::string>& command, int input, int output,
                                int failure, pid_t parent) {
    ::setsid();
    for (const int signal : {SIGPIPE, SIGINT, SIGTERM, SIGHUP}) std::signal(signal, SIG_DFL);
#ifdef __linux__
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
    if (::getppid() != parent) ::_exit(1);
    ::dup2(input, STDIN_FILENO);
    ::dup2(output, STDOUT_FILENO);
    std::vector<char*> words;
    words.reserve(command.size() + 1);
    for (const auto& word : command) words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    ::execvp(words[0], words.data());
    const char byte = 1;
    [[maybe_unused]] const auto told = ::write(failure, &byte, 1);
    ::_exit(127);
}

}  // namespace

void EngineProcess::Start(const std::vector<std::string>& command) {
    End(0);
    Pipe input, output, failure;
    const auto parent = ::getpid();
    const auto child = ::fork();
    if (child == 0) {
        BecomeCommand(command, input.End[0], output.End[1], failure.End[1], parent);
    }
    for (auto* end : {&input.End[0], &output.End[1], &failure.End[1]}) Close(*end);
    char byte = 0;
    const bool failed = child < 0 || ::read(failure.End[0], &byte, 1) > 0;
    Close(failure.End[0]);
    input_ = input.End[1];
    output_ = output.End[0];
    process_ = child < 0 ? 0 : child;
    unwritten_.clear();
    if (failed) {
        End(0);
        throw RuntimeError(FileNotFound);
    }
    for (const int end : {input_, output_}) ::fcntl(end, F_SETFL, O_NONBLOCK);
}

EngineNews EngineProcess::Wait() {
    EngineNews news;
    if (!Runs()) return {.Bytes = "", .Ended = true};
    for (bool waits = true; waits;) {
        if (!unwritten_.empty()) WriteMore();
        std::array<pollfd, 2> ends = {
            {{output_, POLLIN, 0}, {unwritten_.empty() ? -1 : input_, POLLOUT, 0}}};
        const int ready = ::poll(ends.data(), ends.size(), WaitMilliseconds);
        waits = ready > 0 && ends[0].revents == 0;
        if (ready > 0 && !waits && !ReadMore(news.Bytes)) HasEnded(LingerMilliseconds);
    }
    if (news.Bytes.empty() && (output_ < 0 || HasEnded(0))) Bury(news);
    return news;
}

void EngineProcess::WriteMore() {
    const auto written = ::write(input_, unwritten_.data(), unwritten_.size());
    if (written > 0) unwritten_.erase(0, static_cast<std::size_t>(written));
    // What an engine no longer reads is dropped: it is about to end.
    if (written < 0 && errno == EPIPE) unwritten_.clear();
}

/// False when the engine has closed its output.
bool EngineProcess::ReadMore(std::string& bytes) {
    std::array<char, 65536> buffer;
    const auto count = ::read(output_, buffer.data(), buffer.size());
    if (count > 0) bytes.append(buffer.data(), static_cast<std::size_t>(count));
    if (count == 0) Close(output_);
    return count != 0;
}

/// The process stays there as long as nobody buries it, and so does the number of its group.
bool EngineProcess::HasEnded(int milliseconds) const {
    for (int waited = 0;; waited += 10) {
        siginfo_t info{};
        const int flags = WEXITED | WNOHANG | WNOWAIT;
        const int found = ::waitid(P_PID, static_cast<id_t>(process_), &info, flags);
        if (found == 0 && info.si_pid != 0) return true;
        if (waited >= milliseconds) return false;
        ::poll(nullptr, 0, 10);
    }
}

/// An engine that has closed its output without ending can't answer any more, and is killed too.
void EngineProcess::Bury(EngineNews& news) {
    Signal(SIGKILL);
    // As much as a pipe may hold; what still prints by then is none of ours.
    for (int reads = 0; reads < 16 && output_ >= 0; ++reads) ReadMore(news.Bytes);
    int status = 0;
    while (::waitpid(static_cast<pid_t>(process_), &status, 0) < 0 && errno == EINTR) {
    }
    process_ = 0;
    Close(input_);
    Close(output_);
    news.Ended = true;
    news.Crashed = WIFSIGNALED(status);
    news.Code = news.Crashed ? WTERMSIG(status) : WEXITSTATUS(status);
}

void EngineProcess::Signal(int signal) const {
    if (Runs()) ::kill(static_cast<pid_t>(-process_), signal);
}

/// An engine that is about to print still needs somebody to read.
void EngineProcess::WaitForEnd(int milliseconds) {
    for (int waited = 0; waited < milliseconds && !HasEnded(10); waited += 10) {
        std::string dropped;
        if (output_ >= 0) ReadMore(dropped);
    }
}

void EngineProcess::End(int milliseconds) {
    Close(input_);
    EngineNews last;
    if (Runs()) {
        WaitForEnd(milliseconds);
        Bury(last);
    }
    Close(output_);
}

void EngineProcess::Stop() {
    Close(input_);
    for (int i = 0; i < 2 && Runs() && !HasEnded(0); ++i) {
        Signal(SIGINT);
        WaitForEnd(AgainMilliseconds);
    }
    End(LingerMilliseconds);
}

#endif

}  // namespace quorvane
