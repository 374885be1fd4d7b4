// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/desktop.h"

namespace quorvane {

/// An engine behind pipes, for a program without an event loop of its own. It has a session and a
/// process group of its own and dies with this program. Its standard error is that of the program.
class EngineProcess {
public:
    EngineProcess() = default;
    EngineProcess(const EngineProcess&) = delete;
    EngineProcess& operator=(const EngineProcess&) = delete;
    ~EngineProcess();

    /// False on Windows, where no engine can be started this way yet.
    static bool IsAvailable();

    /// Starts a command, found on the PATH, in place of the running one. Error 53 when it can't be
    /// started.
    void Start(const std::vector<std::string>& command);
    bool Runs() const { return process_ > 0; }
    /// The bytes are kept until the engine takes them, which it does while somebody waits.
    void Write(const std::string& bytes) { unwritten_ += bytes; }
    /// Waits until the engine has printed something or is gone, a signal has come or a fifth of a
    /// second has passed.
    EngineNews Wait();
    /// Signals the engine and all that it has started.
    void Signal(int signal) const;
    /// Closes the engine's input, which an idle one takes as its end, and waits at most so long for
    /// it. What is left of its group is killed then.
    void End(int milliseconds);
    /// Ends an engine that is busy: by interrupts, which a program that starts one elsewhere passes
    /// on when there are two within a second, and by force after some seconds.
    void Stop();

private:
    void WriteMore();
    bool ReadMore(std::string& bytes);
    bool HasEnded(int milliseconds) const;
    void WaitForEnd(int milliseconds);
    void Bury(EngineNews& news);

    std::int64_t process_ = 0;  ///< Also the number of its group; 0 for none
    int input_ = -1, output_ = -1;
    std::string unwritten_;
};

/// The words of a command as a shell parts them: by blanks, with quotes and backslashes, but
/// nothing is put in for variables and patterns. False when a quote isn't closed or there is no
/// word.
bool SplitCommand(const std::string& command, std::vector<std::string>& words);

}  // namespace quorvane
