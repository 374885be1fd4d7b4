// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <string>

#include "platform/quiet_desktop.h"

namespace quorvane {

/// The desktop of the command line: whatever the program shows or asks becomes a line of a
/// transcript, and prepared answers are given in order. A question that finds no fitting answer is
/// aborted or cancelled, or takes its default.
struct ConsoleDesktop : QuietDesktop {
    std::function<void(const std::string& line)> WriteTranscript;  ///< Without a line end
    std::deque<std::string> Answers;                               ///< One line each

    Answer MsgBox(const Message& message) override;
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText) override;
    std::string OpenFileDialog(const std::string& filter, const std::string& fileName) override;
    std::string SaveFileDialog(const std::string& filter, const std::string& fileName) override;
    void ShowModal(std::string_view form) override;

private:
    /// Takes the next answer; "" when there is none left.
    std::string TakeAnswer();
    /// Takes the next answer as a path; error 32755 when it is none.
    std::string TakePath();
};

/// A field of the transcript: backslash, TAB, CR and LF as \\, \t, \r and \n.
std::string Escaped(const std::string& text);
/// The reverse of Escaped; a backslash before any other character stays as it is.
std::string Unescaped(const std::string& text);

/// The transcript's line of a run-time error.
std::string RuntimeLine(int number, const std::string& description);

}  // namespace quorvane
