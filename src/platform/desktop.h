// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvane {

enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Buttons { Ok, YesNo, YesNoCancel, AbortRetryIgnore };
enum class Answer { Ok, Yes, No, Cancel, Abort, Retry, Ignore };

/// A message box. The title is the program's name unless the message has one of its own.
struct Message {
    std::string Text;
    Icon Picture = Icon::None;
    Buttons Choice = Buttons::Ok;
    std::string Title = "Quorvane";
};

/// The result of a wait for the engine.
struct EngineNews {
    std::string Bytes;     ///< What it printed since the last wait
    bool Escape = false;   ///< The user wants the script to be stopped
    bool Ended = false;    ///< It is gone, and these are its last bytes
    bool Crashed = false;  ///< Code is the signal that ended it, else its exit code
    int Code = 0;
};

/// Where programs may be installed.
struct ProgramPlaces {
    std::vector<std::string> Folders;  ///< In which programs themselves lie
    std::vector<std::string> Roots;    ///< In or below which there are folders with a "bin"
};

/// All that the program asks of the desktop it runs on. It is the one door out of the core, to the
/// application's window system, the command line, or a test.
struct Desktop {
    virtual ~Desktop() = default;

    virtual Answer MsgBox(const Message& message) = 0;
    /// Asks for one line of text; a cancelled prompt gives "". The core calls it by AskForLine.
    virtual std::string InputBox(const std::string& prompt, const std::string& title,
                                 const std::string& defaultText) = 0;
    /// Ask for a file. `filter` holds pairs of name and pattern separated by "|", `fileName` is the
    /// name shown first. Cancelling raises error 32755.
    virtual std::string OpenFileDialog(const std::string& filter, const std::string& fileName) = 0;
    virtual std::string SaveFileDialog(const std::string& filter, const std::string& fileName) = 0;
    /// Asks for a colour, red in the low byte, beginning with `start`. Cancelling raises error
    /// 32755.
    virtual std::int32_t ColorDialog(std::int32_t start) = 0;
    /// Shows the form of this name and returns when it has hidden itself. The form's record holds
    /// what the user did.
    virtual void ShowModal(std::string_view form) = 0;
    /// Gives the focus to the worksheet of this number, whatever had it before. Nothing happens
    /// when it isn't there or a dialog blocks it.
    virtual void FocusWorksheet(int document) = 0;

    /// Pops up the menu of this control at the mouse pointer. Its commands work for this document,
    /// whichever worksheet is active.
    virtual void PopupMenu(std::string_view menu, int document) = 0;
    /// Arranges the worksheets: 0 cascade, 1 tile horizontally, 2 the icons of minimised ones.
    virtual void ArrangeWindows(int how) = 0;
    virtual void SetClipboardText(const std::string& text) = 0;
    /// The seconds of the clock, 0 to 59. A wait polls it.
    virtual int ClockSeconds() = 0;
    /// Brings the screen up to the records at once, in the middle of a handler.
    virtual void PaintNow() = 0;
    /// Hands a command to the help viewer: 3 contents, 4 help on help, 261 search, 2 quit.
    virtual void Help(const std::string& file, int command) = 0;
    /// Ends the program once the running handler has returned.
    virtual void EndProgram() = 0;

    /// Starts MATLAB or Octave behind pipes, without a window of its own, in place of the one that
    /// was started before. It ends with this program. Error 53 when it can't be started.
    virtual void StartEngine(const std::string& program,
                             const std::vector<std::string>& arguments) = 0;
    virtual ProgramPlaces WherePrograms() = 0;
    virtual bool EngineRuns() = 0;
    virtual void WriteEngine(const std::string& bytes) = 0;
    /// Waits until the engine has printed something or is gone, Escape was pressed or a fifth of a
    /// second has passed. The windows are painted meanwhile and take no other input.
    virtual EngineNews WaitForEngine() = 0;
    /// Interrupt or end the engine and what it has started.
    virtual void InterruptEngine() = 0;
    virtual void KillEngine() = 0;
    /// A clock that never goes back.
    virtual std::int64_t Milliseconds() = 0;

    /// The folders for this user's files: data, where the launcher puts settings and toolboxes, and
    /// state, which only has to outlive a run. A folder may not exist yet; "" when the system names
    /// none.
    virtual std::string DataFolder() = 0;
    virtual std::string StateFolder() = 0;

    /// The per-user store: values by section and key; "" where there is none.
    virtual std::string ReadStore(const std::string& section, const std::string& key) = 0;
    virtual void WriteStore(const std::string& section, const std::string& key,
                            const std::string& value) = 0;
    /// All keys and values of a section, in the order of the keys.
    virtual std::vector<std::pair<std::string, std::string>> ReadStoreSection(
        const std::string& section) = 0;
};

/// The desktop in use. The main program sets it before anything else runs.
extern Desktop* desktop;

/// Asks for one line of text by InputBox; pasted line ends become blanks.
std::string AskForLine(const std::string& prompt, const std::string& title,
                       const std::string& defaultText);

/// Shows a message with OK alone.
void Tell(const std::string& text, Icon picture, const std::string& title = "Quorvane");

}  // namespace quorvane
