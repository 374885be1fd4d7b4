// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktop.h"
#include "qt/link/matlab_process.h"

namespace quorvane {

/// The desktop of the application: dialogs of the window system, its clipboard and its settings.
struct QtDesktop : Desktop {
    Answer MsgBox(const Message& message) override;
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText) override;
    std::string OpenFileDialog(const std::string& filter, const std::string& fileName) override;
    std::string SaveFileDialog(const std::string& filter, const std::string& fileName) override;
    std::int32_t ColorDialog(std::int32_t start) override;
    void ShowModal(std::string_view form) override;
    void FocusWorksheet(int document) override;
    void PopupMenu(std::string_view menu, int document) override;
    void ArrangeWindows(int how) override;
    void SetClipboardText(const std::string& text) override;
    int ClockSeconds() override;
    void PaintNow() override;
    void Help(const std::string& file, int command) override;
    void EndProgram() override;
    ProgramPlaces WherePrograms() override;
    void StartEngine(const std::string& program,
                     const std::vector<std::string>& arguments) override;
    bool EngineRuns() override;
    void WriteEngine(const std::string& bytes) override;
    EngineNews WaitForEngine() override;
    void InterruptEngine() override;
    void KillEngine() override;
    std::int64_t Milliseconds() override;
    std::string DataFolder() override;
    std::string StateFolder() override;
    std::string ReadStore(const std::string& section, const std::string& key) override;
    void WriteStore(const std::string& section, const std::string& key,
                    const std::string& value) override;
    std::vector<std::pair<std::string, std::string>> ReadStoreSection(
        const std::string& section) override;

private:
    MatlabProcess matlab_;
};

}  // namespace quorvane
