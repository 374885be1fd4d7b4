// SPDX-License-Identifier: MIT
#include "matlab_link/link.h"

#include <algorithm>
#include <utility>

#include "diagram/box_table.h"
#include "generator/send_to_matlab.h"
#include "matlab_link/answer_reader.h"
#include "matlab_link/engine_folder.h"
#include "matlab_link/script_blocks.h"
#include "platform/desktop.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace quorvane {

namespace {

constexpr int FileNotFound = 53;
constexpr int NoApplicationAnswered = 282;
constexpr std::int64_t Never = -1;
constexpr std::int64_t QuietMilliseconds = 400;
constexpr std::int64_t GoingMilliseconds = 3000;
constexpr int BreakSeconds = 5;
constexpr std::int16_t NoBox = 0;
/// How the engine's message about a script that it can't parse begins; the line's number follows.
constexpr const char* ParseError = "parse error near line ";

/// The arguments of an engine, by the beginning of its file name.
struct EngineRow {
    const char* Name;
    bool IsOctave;
    std::vector<std::string> Arguments;
};
constexpr const char* octaveSetUp =
    "PS1('');PS2('');more off;warning('off','Octave:shadowed-function');"
    "warning('off','backtrace');";
const EngineRow engineRows[] = {
    {"octave",
     true,
     {"--no-gui", "--quiet", "--no-init-file", "--no-history", "--interactive", "--eval",
      octaveSetUp, "--persist"}},
    {"", false, {"-nodesktop", "-nosplash"}},
};

/// The engine that was started last and what is known of it.
struct Engine {
    EngineFolder Folder;  ///< Holds our functions and the script that runs
    std::string Token;    ///< Part of all our names and marks, drawn anew for each engine
    std::string Kept;     ///< The parts of a block that isn't closed yet
    LineBoxes KeptBoxes;
    std::string Answer;
    int Script = 0;     ///< The number of the last script
    bool Busy = false;  ///< A script runs
    bool HasFigures = false;
};
Engine engine;

/// A script that runs.
struct Job {
    std::string Id;
    AnswerReader Reader;
    std::int64_t SentAt = 0;         ///< When the script, or the last line for it, was sent
    std::int64_t StoppedAt = Never;  ///< When the user broke it off
    std::int64_t LeftAt = Never;     ///< When it was left uninterrupted: the engine is ending
    int Breaks = 0;                  ///< How often the engine was interrupted
    bool Ended = false;
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

/// Our functions are found again even after a script has removed their folder from the path.
std::string AddFolder() { return "addpath(" + Quoted(engine.Folder.Path()) + ");"; }

/// An interrupt while the engine waits for a line takes effect with the next line. When the first
/// one doesn't help, the engine may be in its debugger.
void Interrupt(Job& job) {
    desktop->InterruptEngine();
    desktop->WriteEngine(job.Breaks++ == 0 ? "\n" : "dbquit\n");
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
    desktop->WriteEngine(line + "\n");
    job.SentAt = desktop->Milliseconds();
}

void EndJob(Job& job) {
    engine.Answer = AnswerOf(job.Reader);
    if (job.StoppedAt != Never) engine.Answer += "Stopped.\n";
    job.Ended = true;
}

/// A script that neither ended nor was interrupted has made the engine quit, which it does in a
/// moment.
void FollowMark(Job& job, const Mark& mark) {
    switch (mark.Kind) {
        case MarkKind::Line:
        case MarkKind::Pause: return Ask(job, mark);
        case MarkKind::Figures: engine.HasFigures = true; return;
        default: break;
    }
    if (mark.Text != job.Id) return;
    if (mark.Kind == MarkKind::Begin) return BeginAnswer(job.Reader);
    if (mark.Kind == MarkKind::Unwound && job.StoppedAt == Never) {
        job.LeftAt = desktop->Milliseconds();
        return;
    }
    EndAnswer(job.Reader);
    EndJob(job);
}

/// The answer of an engine that is gone ends by saying how it ended.
void EndWithEngine(Job& job, const EngineNews& news) {
    EndJob(job);
    engine.Answer +=
        news.Crashed ? "Matlab has been ended by signal " : "Matlab has ended with exit code ";
    engine.Answer += std::to_string(news.Code) + ".\n";
}

void BreakOff(Job& job) {
    if (job.StoppedAt != Never) return;
    job.StoppedAt = desktop->Milliseconds();
    Interrupt(job);
}

void LookAtClock(Job& job) {
    const auto now = desktop->Milliseconds();
    if (job.LeftAt != Never && now - job.LeftAt >= GoingMilliseconds) return EndJob(job);
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
        LimitAnswer(job.Reader);
        if (news.Escape) BreakOff(job);
        LookAtClock(job);
    }
}

/// The engine complains about a script that it can't parse by a line of its file, which the user
/// has never seen. That is replaced by the box and the line of that box.
void NameBox(std::string& answer, const std::string& file, const LineBoxes& boxes) {
    const auto place = " of file " + file;
    const auto end = answer.find(place);
    if (end == std::string::npos || boxes.empty()) return;
    const auto start = answer.rfind(ParseError, end);
    if (start == std::string::npos) return;
    const auto told = std::atoll(answer.c_str() + start + std::string_view(ParseError).size());
    // The end of the script is reported as the line after its last one.
    const auto last = static_cast<long long>(boxes.size());
    const auto line = static_cast<std::size_t>(std::clamp(told, 1LL, last) - 1);
    auto first = line;
    while (first > 0 && boxes[first - 1] == boxes[line]) --first;
    answer.replace(start, end + place.size() - start,
                   NameOf(boxes[line]) + ParseError + std::to_string(line - first + 1));
}

/// The file has another name each time, since an engine may not look again at one that it knows.
void RunScript(const std::string& script, const LineBoxes& boxes) {
    Job job;
    job.Id = std::to_string(++engine.Script);
    job.Reader.Token = engine.Token;
    std::string why;
    const auto file = engine.Folder.Write("step" + job.Id, script, why);
    if (file.empty()) {
        // A part of a script must not run.
        engine.Answer = "The script could not be written: " + why + ".\n";
        return;
    }
    const BusyScope busy;
    const auto call = engine.Token + "run(" + Quoted(file) + ",'" + job.Id + "');";
    desktop->WriteEngine("try," + call + "catch," + AddFolder() + call + "end\n");
    job.SentAt = desktop->Milliseconds();
    WaitForEnd(job);
    ShowState("");
    engine.Folder.Remove(file);
    NameBox(engine.Answer, file, boxes);
}

}  // namespace

void StartLink(const std::string& program) {
    const auto name = FileNameOf(program);
    const auto* row = std::begin(engineRows);
    while (!name.starts_with(row->Name)) ++row;
    Engine fresh;
    fresh.Token = DrawToken();
    fresh.Folder.Make(fresh.Token, row->IsOctave);
    desktop->StartEngine(program, row->Arguments);
    engine = std::move(fresh);
    desktop->WriteEngine(AddFolder() + "\n");
    RunScript("", {});
    engine.Answer.clear();
    if (!Answers()) throw RuntimeError(FileNotFound);
}

void LinkOpen() {
    if (!Answers() && engine.Answer.empty()) throw RuntimeError(NoApplicationAnswered);
}

void LinkExecute(const std::string& script, const LineBoxes& boxes) {
    if (!Answers()) throw RuntimeError(NoApplicationAnswered);
    engine.Answer.clear();
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
    const auto rest = std::exchange(engine.Kept, "");
    const auto boxes = std::exchange(engine.KeptBoxes, {});
    if (rest.empty() || !come || !Answers()) return "";
    const auto told = NameOf(boxes[LineAt(rest, FindOpenBlock(rest))]);
    RunScript(rest, boxes);
    const auto answer = LinkRequest();
    const bool refused = answer.find(ParseError) != std::string::npos;
    return told + "The block that begins here is never closed.\n" + (refused ? "" : answer);
}

void LookAfterFigures() {
    if (engine.HasFigures && !engine.Busy && Answers()) {
        desktop->WriteEngine("try," + engine.Token + "run;catch,end\n");
    }
}

void ResetLink() { engine = {}; }

}  // namespace quorvane
