// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktop.h"

namespace quorvane {

/// The desktop of the command line: whatever the program shows or asks becomes a line of a
/// transcript, and prepared answers are given in order. A question that finds no fitting answer is
/// aborted or cancelled, or takes its default.
struct ConsoleDesktop : Desktop {
    std::function<void(const std::string& line)> WriteTranscript;  ///< Without a line end
    std::function<void(const std::string& text)> WriteSent;        ///< What goes to MATLAB
    std::deque<std::string> Answers;                               ///< One line each

    Answer MsgBox(const Message& message) override;
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText) override;
    std::string OpenFileDialog(const std::string& filter, const std::string& fileName) override;
    std::string SaveFileDialog(const std::string& filter, const std::string& fileName) override;
    std::int32_t ColorDialog(std::int32_t start) override { return start; }
    void ShowModal(std::string_view form) override;
    void PopupMenu(std::string_view) override {}
    void ArrangeWindows(int) override {}
    void SetClipboardText(const std::string&) override {}
    int ClockSeconds() override { return 0; }
    void PaintNow() override {}
    void Help(const std::string&, int) override {}
    void StartProcess(const std::string&) override {}
    void EndProgram() override {}
    void LinkOpen() override {}
    void LinkExecute(const std::string& script) override { WriteSent(script); }
    std::string LinkRequest() override { return ""; }
    std::string LinkFinish() override { return ""; }
    void StartMatlab() override {}
    /// The command line remembers nothing from run to run.
    std::string ReadStore(const std::string&, const std::string&) override { return ""; }
    void WriteStore(const std::string&, const std::string&, const std::string&) override {}
    std::vector<std::pair<std::string, std::string>> ReadStoreSection(const std::string&) override {
        return {};
    }

private:
    std::string TakeAnswer();
    std::string TakePath();
};

/// A field of the transcript: backslash, TAB, CR and LF as \\, \t, \r and \n.
std::string Escaped(const std::string& text);
/// The text behind it; a backslash in front of any other character stays as it is.
std::string Unescaped(const std::string& text);

/// The transcript's line of a run-time error.
std::string RuntimeLine(int number, const std::string& description);

}  // namespace quorvane
