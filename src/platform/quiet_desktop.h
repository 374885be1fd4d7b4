// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop.h"
#include "platform/runtime_error.h"

namespace quorvane {

/// A desktop without a user: a question gets the refusing answer or its default, a dialog is
/// cancelled, and nothing is stored. Desktops without a screen derive from it and override what
/// they answer.
struct QuietDesktop : Desktop {
    Answer MsgBox(const Message& message) override {
        switch (message.Choice) {
            case Buttons::YesNo: return Answer::No;
            case Buttons::YesNoCancel: return Answer::Cancel;
            case Buttons::AbortRetryIgnore: return Answer::Abort;
            default: return Answer::Ok;
        }
    }
    std::string InputBox(const std::string&, const std::string&, const std::string& text) override {
        return text;
    }
    std::string OpenFileDialog(const std::string&, const std::string&) override {
        throw RuntimeError(32755);
    }
    std::string SaveFileDialog(const std::string&, const std::string&) override {
        throw RuntimeError(32755);
    }
    std::int32_t ColorDialog(std::int32_t) override { throw RuntimeError(32755); }
    void ShowModal(std::string_view) override {}
    void FocusWorksheet(int) override {}
    void PopupMenu(std::string_view, int) override {}
    void ArrangeWindows(int) override {}
    void SetClipboardText(const std::string&) override {}
    int ClockSeconds() override { return 0; }
    void PaintNow() override {}
    void Help(const std::string&, int) override {}
    void EndProgram() override {}
    void StartEngine(const std::string&, const std::vector<std::string>&) override {
        throw RuntimeError(53);
    }
    ProgramPlaces WherePrograms() override { return {}; }
    bool EngineRuns() override { return false; }
    void WriteEngine(const std::string&) override {}
    EngineNews WaitForEngine() override { return {.Bytes = "", .Ended = true}; }
    void InterruptEngine() override {}
    void KillEngine() override {}
    std::int64_t Milliseconds() override { return 0; }
    std::string DataFolder() override { return ""; }
    std::string StateFolder() override { return ""; }
    std::string ReadStore(const std::string&, const std::string&) override { return ""; }
    void WriteStore(const std::string&, const std::string&, const std::string&) override {}
    std::vector<std::pair<std::string, std::string>> ReadStoreSection(const std::string&) override {
        return {};
    }
};

}  // namespace quorvane
