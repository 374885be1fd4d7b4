// SPDX-License-Identifier: MIT
#include "matlab_link/link.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

#include "diagram/box_table.h"
#include "generator/send_to_matlab.h"
#include "matlab_link/answer_reader.h"
#include "matlab_link/engine_folder.h"
#include "matlab_link/fault.h"
#include "matlab_link/run_report.h"
#include "matlab_link/script_blocks.h"
#include "platform/desktop.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace quorvane {

LinkListener linkListener;

namespace {

constexpr int FileNotFound = 53;
constexpr int NoApplicationAnswered = 282;
constexpr std::int64_t Never = -1;
constexpr std::int64_t QuietMilliseconds = 400;
constexpr std::int64_t GoingMilliseconds = 3000;
constexpr int BreakSeconds = 5;
constexpr std::int16_t NoBox = 0;

/// The arguments of an engine, by the beginning of its file name; any other is an Octave. They are
/// plain words, so that they come through any command that starts the engine elsewhere.
struct EngineRow {
    const char* Name;
    bool IsOctave;
    std::vector<std::string> Arguments;
};
constexpr std::string_view octaveSetUp =
    "PS1('');PS2('');more off;warning('off','Octave:shadowed-function');"
    "warning('off','backtrace');sigterm_dumps_octave_core(false);"
    "sighup_dumps_octave_core(false);\n";
const EngineRow engineRows[] = {
    {"matlab", false, {"-nodesktop", "-nosplash"}},
    {"",
     true,
     {"--no-gui", "--quiet", "--no-init-file", "--no-history", "--eval", "format", "--persist"}},
};

/// An engine that another program starts is named by the last word that names one.
const EngineRow& RowOf(const std::string& program, const std::vector<std::string>& words) {
    auto name = FileNameOf(program);
    for (const auto& word : words) {
        const auto last = FileNameOf(word);
        if (last.starts_with("octave") || last.starts_with("matlab")) name = last;
    }
    const auto* row = std::begin(engineRows);
    while (!name.starts_with(row->Name)) ++row;
    return *row;
}

/// The engine that was started last and what is known of it.
struct Engine {
    EngineFolder Folder;  ///< Holds our functions, where the engine takes them from files alone
    std::string Token;    ///< Part of all our names and marks, drawn anew for each engine
    std::string Kept;     ///< The parts of a block that isn't closed yet
    LineBoxes KeptBoxes;
    std::string Answer;
    int Script = 0;      ///< The number of the last script
    int Call = 0;        ///< The number of the last call of the loop
    bool Loops = false;  ///< The loop runs and takes requests
    bool Busy = false;   ///< The link waits for it
    bool HasFigures = false;
};
Engine engine;
bool runIsLeft = false;

/// A script that runs.
struct Job {
    std::string Id;
    std::string Script;
    const LineBoxes* Boxes = nullptr;  ///< The box that wrote each line, none when empty
    AnswerReader Reader;
    std::int64_t SentAt = 0;         ///< When the script, or the last answer for it, was sent
    std::int64_t StoppedAt = Never;  ///< When the user broke it off
    std::int64_t LeftAt = Never;     ///< When it was left uninterrupted: the engine is ending
    int Breaks = 0;                  ///< How often the engine was interrupted
    bool Sent = false;               ///< Before, the loop has to begin
    bool Begun = false;              ///< What comes now is its answer
    bool Told = false;               ///< Its answer is complete
    bool Ended = false;
    std::int16_t Failed = NoBox;  ///< The box at fault
    bool Refused = false;         ///< It couldn't be parsed
    bool IsOpen = false;          ///< A block in it is never closed, which is told elsewhere
};

/// Marks the engine as busy, for as long as this lives.
struct BusyScope {
    BusyScope() { engine.Busy = true; }
    ~BusyScope() { engine.Busy = false; }
    BusyScope(const BusyScope&) = delete;
    BusyScope& operator=(const BusyScope&) = delete;
};

bool Answers() { return !engine.Token.empty() && desktop->EngineRuns(); }

void ShowState(const std::string& text) { frmTextResults.lblState.Caption = text; }

/// The line of a script, from 0, that holds this character.
std::size_t LineAt(const std::string& script, std::size_t at) {
    const auto end = script.begin() + static_cast<std::ptrdiff_t>(at);
    return static_cast<std::size_t>(std::count(script.begin(), end, '\n'));
}

/// The beginning of a message about a box.
std::string NameOf(std::int16_t box) { return box == NoBox ? "" : BoxName(box) + ": "; }

std::string Quoted(const std::string& text) {
    std::string quoted = "'";
    for (const char c : text) quoted += c == '\'' ? "''" : std::string(1, c);
    return quoted + "'";
}

/// A request to the loop (resources/engine/next.m). The text ends in a line end of ours.
void Request(char kind, const std::string& numbers, const std::string& text) {
    const auto size = std::to_string(text.size() + 1);
    desktop->WriteEngine(engine.Token + kind + " " + size + numbers + "\n" + text + "\n");
}

/// What makes our functions known. An engine without a folder takes them as one text.
std::string Definitions() {
    const auto folder = engine.Folder.Path();
    if (!folder.empty()) return "addpath(" + Quoted(folder) + ");\n";
    return EngineDefinitions(engine.Token) + "try," + engine.Token + "figures();catch,end\n";
}

/// Has the loop tell that it runs, by a mark with the number of this call. At the engine's own
/// prompt the line calls the loop; one that runs answers the line. An engine that doesn't know the
/// loop yet asks for the definitions.
void CallLoop() {
    const auto call = engine.Token + "loop(" + std::to_string(++engine.Call) + ");";
    const auto folder = engine.Folder.Path();
    const auto size = std::to_string(octaveSetUp.size() + Definitions().size());
    const auto fetch = "builtin('fprintf',1,'\\001" + engine.Token +
                       "h:\\001\\n');builtin('fflush',1);builtin('eval',builtin('fread',0," + size +
                       ",'char=>char')');";
    // The second line end is for Octave, which looks at the character after the line.
    desktop->WriteEngine("\ntry," + call + "catch," +
                         (folder.empty() ? fetch : Definitions() + call) + "end\n\n");
}

/// An interrupt while the engine waits for a line takes effect with the next line.
void Interrupt(Job& job) {
    ++job.Breaks;
    desktop->InterruptEngine();
    CallLoop();
}

/// The numbers of a script's boxes, each once, where their values are asked for.
std::string WantedValues(const LineBoxes& lines) {
    if (!linkReport.wantsValues) return "";
    const std::set<std::int16_t> boxes(lines.begin(), lines.end());
    std::string numbers;
    for (const auto box : boxes) {
        if (box != NoBox) numbers += " " + std::to_string(box);
    }
    return numbers;
}

/// A line that ends in nothing is evaluated at once; several have to be stored by the engine.
void SendScript(Job& job) {
    const auto end = job.Script.find_last_not_of("\r\n") + 1;
    Request('r', " " + job.Id + WantedValues(*job.Boxes), job.Script.substr(0, end));
    job.Sent = true;
    job.SentAt = desktop->Milliseconds();
}

/// The engine asks for our functions: at its prompt it waits for so many bytes, in the loop for a
/// request.
void Define() {
    if (engine.Loops) return Request('s', "", Definitions());
    desktop->WriteEngine(std::string(octaveSetUp) + Definitions());
    CallLoop();
}

/// The user's answer follows the question, as on a terminal.
void Ask(Job& job, const Mark& mark) {
    std::string line;
    if (mark.Kind == MarkKind::Line) {
        line = AskForLine(mark.Text, "Quorvane", "");
        InsertText(job.Reader, mark.Text + line + "\n");
    } else {
        Tell("The script is paused. Press OK to continue.", Icon::Information);
    }
    Request('a', "", line);
    job.SentAt = desktop->Milliseconds();
}

/// A listener gets what has been printed; nothing of it is kept then.
void PassOn(Job& job) {
    if (!linkListener.Printed || !job.Begun || job.Told) return;
    const auto text = AnswerOf(job.Reader);
    if (!text.empty()) linkListener.Printed(text);
}

/// The answer is complete; what still comes belongs to no script.
void TakeAnswer(Job& job) {
    if (job.Told) return;
    PassOn(job);
    engine.Answer = AnswerOf(job.Reader);
    job.Told = true;
}

void EndJob(Job& job) {
    TakeAnswer(job);
    if (job.StoppedAt != Never) engine.Answer += "Stopped.\n";
    job.Ended = true;
}

/// The loop runs: it is time for the script, or the script that was broken off is over.
void GoOn(Job& job, const Mark& mark) {
    if (mark.Text != std::to_string(engine.Call)) return;
    engine.Loops = true;
    if (job.StoppedAt != Never) return EndJob(job);
    if (!job.Sent) SendScript(job);
}

/// The loop was left: the script was broken off, or the engine is quitting, which it does in a
/// moment.
void Leave(Job& job) {
    engine.Loops = false;
    if (!job.Sent || job.Told) return;
    if (job.StoppedAt == Never) {
        job.LeftAt = desktop->Milliseconds();
        return;
    }
    TakeAnswer(job);
}

/// The loop of a script that was broken off must first be known to run again.
void ReachEnd(Job& job) { job.StoppedAt == Never ? EndJob(job) : TakeAnswer(job); }

/// The engine's complaint stands in the answer where the script was left.
void Complain(Job& job, const std::string& told) {
    const auto fault = ReadFault(told, *job.Boxes);
    job.Refused = fault.Refused;
    if (job.IsOpen && fault.Refused) return;
    job.Failed = fault.Box;
    ReportFailure(fault.Box, fault.Message.substr(0, fault.Message.find('\n')));
    if (!linkListener.Failed) return InsertText(job.Reader, fault.Told);
    PassOn(job);
    linkListener.Failed(fault.Box, fault.Message);
}

void FollowMark(Job& job, const Mark& mark) {
    switch (mark.Kind) {
        case MarkKind::Line:
        case MarkKind::Pause: return Ask(job, mark);
        case MarkKind::Figures: engine.HasFigures = true; return;
        case MarkKind::Functions: return Define();
        case MarkKind::Loops: return GoOn(job, mark);
        case MarkKind::Unwound: return Leave(job);
        case MarkKind::Fault: return Complain(job, mark.Text);
        case MarkKind::Value: return ReportValue(mark.Text);
        case MarkKind::Begin:
            if (mark.Text != job.Id) return;
            job.Begun = true;
            return BeginAnswer(job.Reader);
        case MarkKind::End:
            if (mark.Text == job.Id) ReachEnd(job);
            return;
    }
}

/// The answer of an engine that is gone ends by saying how it ended.
void EndWithEngine(Job& job, const EngineNews& news) {
    LookAtAll(job.Reader);
    EndJob(job);
    const std::string told =
        (news.Crashed ? "Matlab has been ended by signal " : "Matlab has ended with exit code ") +
        std::to_string(news.Code) + ".";
    if (!job.Boxes->empty()) ReportFailure(job.Failed = job.Boxes->back(), told);
    if (!linkListener.Failed || job.Failed == NoBox) {
        engine.Answer += told + "\n";
    } else {
        linkListener.Failed(job.Failed, told);
    }
}

void BreakOff(Job& job) {
    if (job.StoppedAt != Never) return;
    job.StoppedAt = desktop->Milliseconds();
    Interrupt(job);
}

void LookAtClock(Job& job) {
    const auto now = desktop->Milliseconds();
    if (job.LeftAt != Never && now - job.LeftAt >= GoingMilliseconds) {
        LookAtAll(job.Reader);
        return EndJob(job);
    }
    if (job.StoppedAt == Never) {
        if (now - job.SentAt >= QuietMilliseconds) ShowState("Matlab is working. Escape stops it.");
        return;
    }
    const auto seconds = static_cast<int>((now - job.StoppedAt) / 1000);
    if (seconds >= BreakSeconds) return desktop->KillEngine();
    if (seconds >= job.Breaks) Interrupt(job);
    ShowState("Stopping. Matlab is ended by force in " + std::to_string(BreakSeconds - seconds) +
              " s.");
}

void WaitForEnd(Job& job) {
    while (!job.Ended) {
        const auto news = desktop->WaitForEngine();
        job.Reader.Received += news.Bytes;
        while (!job.Ended) {
            const auto mark = TakeMark(job.Reader);
            if (!mark) break;
            FollowMark(job, *mark);
        }
        if (job.Ended) break;
        if (news.Ended) return EndWithEngine(job, news);
        if (linkListener.Printed && news.Bytes.empty()) LookAtLineEnd(job.Reader);
        PassOn(job);
        LimitAnswer(job.Reader);
        if (news.Escape || runIsLeft) BreakOff(job);
        LookAtClock(job);
    }
}

/// False when the engine couldn't parse the script. A script that `isOpen` is expected to be such.
bool RunScript(const std::string& script, const LineBoxes& boxes, bool isOpen = false) {
    Job job{.Id = std::to_string(++engine.Script), .Script = script, .Boxes = &boxes};
    job.IsOpen = isOpen;
    job.Reader.Token = engine.Token;
    job.SentAt = desktop->Milliseconds();
    const BusyScope busy;
    ReportRunning(boxes);
    engine.Loops ? SendScript(job) : CallLoop();
    try {
        WaitForEnd(job);
    } catch (...) {
        LookAtLineEnd(job.Reader);
        PassOn(job);
        throw;
    }
    ShowState("");
    ReportEnd(boxes, job.Failed, job.StoppedAt != Never);
    return !job.Refused;
}

}  // namespace

void StartLink(const std::string& program, std::vector<std::string> words) {
    const auto& row = RowOf(program, words);
    Engine fresh;
    fresh.Token = DrawToken();
    if (!row.IsOctave) fresh.Folder.Make(fresh.Token);
    words.insert(words.end(), row.Arguments.begin(), row.Arguments.end());
    runIsLeft = false;
    desktop->StartEngine(program, words);
    engine = std::move(fresh);
    RunScript("", {});
    engine.Answer.clear();
    if (!Answers()) throw RuntimeError(FileNotFound);
}

bool LinkIsBusy() { return engine.Busy; }
void LeaveRun() { runIsLeft = true; }
bool RunIsLeft() { return runIsLeft; }

void LinkOpen() {
    if (!Answers() && engine.Answer.empty()) throw RuntimeError(NoApplicationAnswered);
}

void LinkExecute(const std::string& script, const LineBoxes& boxes) {
    if (runIsLeft) return;
    if (!Answers()) throw RuntimeError(NoApplicationAnswered);
    engine.Answer.clear();
    ReportSent(boxes);
    engine.Kept += script;
    auto& kept = engine.KeptBoxes;
    kept.insert(kept.end(), boxes.begin(), boxes.end());
    // A first plot has become one line.
    const auto lines =
        LineAt(engine.Kept, engine.Kept.size()) + (engine.Kept.ends_with('\n') ? 0 : 1);
    kept.resize(lines, boxes.empty() ? NoBox : boxes.back());
    if (!BlocksAreClosed(engine.Kept)) return;
    const auto whole = std::exchange(engine.Kept, "");
    const auto wholeBoxes = std::exchange(kept, {});
    if (whole.find_first_not_of(" \r\n") != std::string::npos) RunScript(whole, wholeBoxes);
}

std::string LinkRequest() { return std::exchange(engine.Answer, ""); }

/// When the block really is open, the engine runs none of it and complains about the missing end.
std::string LinkFinish(bool come) {
    linkReport.Box = NoBox;
    runIsLeft = false;
    const auto rest = std::exchange(engine.Kept, "");
    const auto boxes = std::exchange(engine.KeptBoxes, {});
    if (rest.empty() || !come || !Answers()) return "";
    const std::string neverClosed = "The block that begins here is never closed.";
    const auto box = boxes[LineAt(rest, FindOpenBlock(rest))];
    auto told = NameOf(box) + neverClosed + "\n";
    if (RunScript(rest, boxes, true)) return told + LinkRequest();
    LinkRequest();
    ReportRunning(boxes);
    ReportFailure(box, neverClosed);
    ReportEnd(boxes, box, false);
    return told;
}

void LookAfterFigures() {
    if (engine.HasFigures && engine.Loops && !engine.Busy && Answers()) Request('d', "", "");
}

void ResetLink() {
    engine = {};
    runIsLeft = false;
    linkListener = {};
}

}  // namespace quorvane
