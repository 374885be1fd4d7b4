// SPDX-License-Identifier: MIT
#include "generator/send_to_matlab.h"

#include <algorithm>
#include <charconv>

#include "diagram/worksheet.h"
#include "generator/compile_document.h"
#include "generator/link_door.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace quorvane {

TextResultsForm frmTextResults;
LinkDoor matlabLink;

namespace {

constexpr int NoApplicationAnswered = 282;

void PrepareLink(LinkBox& link, const char* item) {
    link.LinkMode = 0;
    link.LinkTopic = "MATLAB|Engine";
    link.LinkItem = item;
}

/// Runs one statement of the sending side. Without an answering MATLAB the user is asked, as often
/// as it takes; any other failure is skipped. False when the user gives up.
template <class Statement>
bool TryToSend(Statement&& statement) {
    for (;;) {
        try {
            statement();
            return true;
        } catch (const RuntimeError& error) {
            if (error.Number != NoApplicationAnswered) return true;
        }
        const auto answer = desktop->MsgBox(
            {"Matlab is not responding. Maybe it isn't running. Shal I try and start it ?",
             Icon::Critical, Buttons::YesNo});
        if (answer != Answer::Yes) return false;
        matlabLink.StartMatlab();
    }
}

bool Execute(LinkBox& sender, const LineBoxes& boxes) {
    const auto open = [&] {
        sender.LinkMode = 2;
        matlabLink.Open();
    };
    if (!TryToSend(open)) return false;
    if (!TryToSend([&] { matlabLink.Execute(sender.Text, boxes); })) return false;
    sender.LinkMode = 0;
    return true;
}

/// A failing step leaves its answer out of the log; nothing else changes.
void Request(LinkBox& receiver) {
    PrepareLink(receiver, "EngStringResult");
    receiver.LinkMode = 2;
    Attempt([&] {
        matlabLink.Open();
        receiver.Text = matlabLink.Request();
    });
    receiver.LinkMode = 0;
}

/// How many boxes of a worksheet a run would visit: a comment is never reached.
int BoxesToRun(const Worksheet& sheet) {
    const auto isRun = [document = TextToInt16(sheet.Tag)](const Box& box) {
        return box.BoxDocument == document && box.BoxType != "Comment";
    };
    return static_cast<int>(std::count_if(Boxes.begin() + 1, Boxes.begin() + NextBox, isRun));
}

/// The box whose part of the log this is; what comes after the last part has none.
int BoxOfLog(std::size_t at) {
    const auto& parts = frmTextResults.Parts;
    const auto part = std::find_if(parts.begin(), parts.end(),
                                   [at](const LogPart& each) { return at < each.End; });
    return part == parts.end() ? 0 : part->Box;
}

/// Cuts "box4: " off a line; 0 where it doesn't begin so.
int TakeBoxName(std::string_view& line) {
    constexpr std::string_view box = "box";
    const auto colon = line.find(": ");
    if (!line.starts_with(box) || colon == std::string_view::npos) return 0;
    int number = 0;
    const auto digits = line.substr(box.size(), colon - box.size());
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (read.ec != std::errc() || read.ptr != digits.data() + digits.size()) return 0;
    line.remove_prefix(colon + 2);
    return number;
}

void GiveUp(const std::string& message) {
    ClearMarks();
    if (!message.empty()) Tell(message, Icon::Information);
    UpdateBoxGauge(BoxTableFill());
    SetPointerAll(PointerDefault);
}

}  // namespace

void frmTextResults_Load() {
    frmTextResults = {};
    frmTextResults.Form.Loaded = true;
}

void frmTextResults_cmdOK_Click() { frmTextResults = {}; }

void mnuEXEMatlab_Click(Worksheet& sheet) {
    if (!frmTextResults.Form.Loaded) frmTextResults_Load();
    frmTextResults.Form.Visible = true;
    frmTextResults.Minimized = false;
    matlabLink.Begin(BoxesToRun(sheet));
    CompileDocument(0, sheet.Tag);
    frmTextResults.txt.Text += matlabLink.Finish(lastRunEnd == RunEnd::Done);
}

std::vector<LogFault> FaultsOfLog(std::size_t from) {
    const std::string_view log = frmTextResults.txt.Text;
    std::vector<LogFault> faults;
    while (from < log.size()) {
        const auto end = std::min(log.find_first_of("\r\n", from), log.size());
        auto line = log.substr(from, end - from);
        const int named = TakeBoxName(line);
        if (line.starts_with("error: ") || line.starts_with("parse error")) {
            faults.push_back({from, end, named > 0 ? named : BoxOfLog(from)});
        }
        from = end + 1;
    }
    return faults;
}

std::string FoldFirstPlot(std::string_view script) {
    const auto bound = script.size() < 2 ? 0 : script.size() - 2;
    std::string folded = script.starts_with("figure") ? "system_dependent(12,'off');"
                                                      : "system_dependent(12,'off');figure;";
    const auto prefix = folded.size();
    while (!script.empty() && folded.size() - prefix < bound) {
        if (script.starts_with("\r\n")) {
            script.remove_prefix(2);
            const bool afterSemicolon = folded.size() > prefix && folded.back() == ';';
            if (!afterSemicolon) {
                folded += ';';
                continue;
            }
            // The scan continues after the cut, so that the next character is skipped.
            if (script.empty()) break;
        }
        folded += script[0];
        script.remove_prefix(1);
    }
    folded += script;
    return folded + "\r\n";
}

std::string WithoutDoubleSemicolons(std::string_view script) {
    const auto bound = script.empty() ? 0 : script.size() - 1;
    std::string single;
    single.reserve(script.size());
    while (!script.empty() && single.size() < bound) {
        while (script.starts_with(";;")) script.remove_prefix(1);
        single += script[0];
        script.remove_prefix(1);
    }
    single += script;
    return single;
}

bool SendToMatlab(Run& run, std::string_view boxType) {
    if (boxType == "Plot Output" && run.plotPrefixSent == 0) {
        run.scriptText = FoldFirstPlot(run.scriptText);
        run.plotPrefixSent = 1;
    }
    run.scriptText = WithoutDoubleSemicolons(run.scriptText);
    auto& sender = frmTextResults.Sender;
    auto& receiver = frmTextResults.Receiver;
    sender.Text = run.scriptText;
    PrepareLink(sender, "EngEvalString");
    if (!Execute(sender, run.boxOfLine)) {
        GiveUp("DDE Error. Could not compile. Try compiling to the clipboard.");
        return false;
    }
    run.Policy = ErrorPolicy::Ignore;
    Request(receiver);
    frmTextResults.txt.Text += run.scriptText + receiver.Text;
    frmTextResults.Parts.push_back(
        {frmTextResults.txt.Text.size(), run.boxOfLine.empty() ? 0 : run.boxOfLine.back()});
    receiver.Text.clear();
    sender.Text.clear();
    run.scriptText.clear();
    run.boxOfLine.clear();
    if (!matlabLink.IsLeft()) return true;
    GiveUp("");
    return false;
}

}  // namespace quorvane
