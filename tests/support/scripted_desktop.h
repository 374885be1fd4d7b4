// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "generator/link_door.h"
#include "platform/paths.h"
#include "platform/quiet_desktop.h"

namespace quorvane::testing {

/// A desktop that answers as a test prepared it and keeps what it was asked. Without a prepared
/// answer a question gets the refusing one: abort, cancel, no.
struct ScriptedDesktop : QuietDesktop {
    std::vector<Message> Messages;
    std::deque<Answer> MessageAnswers;     ///< Taken by messages with more than one button
    std::vector<std::string> Prompts;      ///< Title, "|", prompt, "|", default
    std::deque<std::string> Texts;         ///< Answers of prompts; "" when they run out
    std::vector<std::string> FileDialogs;  ///< "open" or "save", "|", filter, "|", file name
    std::deque<std::string> Paths;         ///< Chosen files; cancelled when they run out
    bool Wanders = false;  ///< A file dialog moves to the folder of the file, as some do
    std::map<std::string, std::function<void()>, std::less<>> Forms;  ///< The user at a modal form
    std::vector<std::string> FormsShown;
    std::deque<std::int32_t> Colors;  ///< Chosen colours; cancelled when they run out
    std::vector<std::int32_t> ColorStarts;
    std::vector<std::string> MenusPopped;  ///< Menu, "|", document
    bool Ended = false;
    std::deque<int> Seconds;  ///< What the clock reads; 0 when they run out
    std::function<void()> AtPaint = [] {};
    std::vector<std::string> HelpCommands;  ///< File, "|", code
    std::vector<std::string> Processes;     ///< Started programs
    bool ProcessesFail = false;
    ProgramPlaces Places;           ///< Where engines are looked for
    std::vector<std::string> Sent;  ///< What went to MATLAB
    std::vector<LineBoxes> SentBoxes;
    std::string Reply;             ///< What each request gets
    std::deque<int> LinkFailures;  ///< Error numbers of the next openings of the link; 0 for none
    int MatlabStarts = 0;
    std::string Kept;  ///< What MATLAB says at the end of a run
    std::map<std::string, std::map<std::string, std::string>> Store;
    std::string Data;  ///< The user's folders for data and for state
    std::string State;

    Answer MsgBox(const Message& message) override {
        Messages.push_back(message);
        const bool isPrepared = message.Choice != Buttons::Ok && !MessageAnswers.empty();
        return isPrepared ? Take(MessageAnswers) : QuietDesktop::MsgBox(message);
    }
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& defaultText) override {
        Prompts.push_back(title + "|" + prompt + "|" + defaultText);
        return Texts.empty() ? "" : Take(Texts);
    }
    std::string OpenFileDialog(const std::string& filter, const std::string& name) override {
        return TakePath("open|" + filter + "|" + name);
    }
    std::string SaveFileDialog(const std::string& filter, const std::string& name) override {
        return TakePath("save|" + filter + "|" + name);
    }
    void ShowModal(std::string_view form) override {
        FormsShown.emplace_back(form);
        if (const auto user = Forms.find(form); user != Forms.end()) user->second();
    }
    std::int32_t ColorDialog(std::int32_t start) override {
        ColorStarts.push_back(start);
        if (Colors.empty()) throw RuntimeError(32755);
        return Take(Colors);
    }
    void PopupMenu(std::string_view menu, int document) override {
        MenusPopped.push_back(std::string(menu) + "|" + std::to_string(document));
    }
    int ClockSeconds() override { return Seconds.empty() ? 0 : Take(Seconds); }
    void PaintNow() override { AtPaint(); }
    void Help(const std::string& file, int command) override {
        HelpCommands.push_back(file + "|" + std::to_string(command));
    }
    /// The engine is there, but any script ends it.
    ProgramPlaces WherePrograms() override { return Places; }
    void StartEngine(const std::string& path, const std::vector<std::string>&) override {
        if (ProcessesFail) throw RuntimeError(53);
        Processes.push_back(path);
    }
    bool EngineRuns() override { return !Processes.empty(); }
    void EndProgram() override { Ended = true; }
    std::string DataFolder() override { return Data; }
    std::string StateFolder() override { return State; }
    std::string ReadStore(const std::string& section, const std::string& key) override {
        return Store[section][key];
    }
    void WriteStore(const std::string& section, const std::string& key,
                    const std::string& value) override {
        Store[section][key] = value;
    }
    std::vector<std::pair<std::string, std::string>> ReadStoreSection(
        const std::string& section) override {
        std::vector<std::pair<std::string, std::string>> rows;
        for (const auto& row : Store[section]) {
            if (!row.second.empty()) rows.emplace_back(row);
        }
        return rows;
    }

    /// A link that answers as prepared.
    LinkDoor Link() {
        LinkDoor door;
        door.Open = [this] {
            const int failure = LinkFailures.empty() ? 0 : Take(LinkFailures);
            if (failure != 0) throw RuntimeError(failure);
        };
        door.Execute = [this](const std::string& script, const LineBoxes& boxes) {
            Sent.push_back(script);
            SentBoxes.push_back(boxes);
        };
        door.Request = [this] { return Reply; };
        door.Finish = [this](bool come) { return come ? Kept : "dropped|"; };
        door.StartMatlab = [this] { ++MatlabStarts; };
        return door;
    }

private:
    template <class T>
    static T Take(std::deque<T>& answers) {
        T answer = std::move(answers.front());
        answers.pop_front();
        return answer;
    }
    std::string TakePath(std::string asked) {
        FileDialogs.push_back(std::move(asked));
        if (Paths.empty()) throw RuntimeError(32755);
        if (Wanders) ChangeDirectory(std::string(FolderOf(Paths.front())));
        return Take(Paths);
    }
};

}  // namespace quorvane::testing
