// SPDX-License-Identifier: MIT
#include "workbench/live_script.h"

#include <map>

#include "check/trial_run.h"
#include "diagram/box_table.h"
#include "diagram/preferences.h"
#include "diagram/worksheet.h"
#include "workbench/history.h"

namespace quorvane {

namespace {

/// A script and what it was made from.
struct KeptScript {
    LiveScript Script;
    int Changes = -1;
    int StartsUnwired = 0;
};
std::map<int, KeptScript> scripts;

LiveScript Make(int document) {
    LiveScript live;
    auto end = TryCompiling(document);
    live.Asked = std::move(end.Asked);
    if (end.End == RunEnd::Refused) live.Asked.emplace_back("There are no inputs !");
    if (end.Error != 0)
        live.Asked.push_back("Run-time error: " + RuntimeError(end.Error).Description);
    if (end.End == RunEnd::Done) {
        live.Text = std::move(end.Script);
        live.BoxOfLine = std::move(end.BoxOfLine);
    }
    live.Findings = CheckDocument(document);
    return live;
}

}  // namespace

const LiveScript& ScriptOf(int document) {
    static const LiveScript none;
    if (document < 1 || document > Documents.UpperBound() || !Documents[document]) return none;
    auto& kept = scripts[document];
    const int startsUnwired = frmPrefs.chkInput.Value;
    if (kept.Changes != HistoryChanges() || kept.StartsUnwired != startsUnwired) {
        kept = {Make(document), HistoryChanges(), startsUnwired};
    }
    return kept.Script;
}

std::string InWords(const Finding& finding) {
    return finding.Text + (finding.Text.ends_with('.') ? " " : ". ") + finding.Advice;
}

std::string FindingsOfBox(int number) {
    std::string text;
    for (const auto& finding : ScriptOf(BoxOrFree(number).BoxDocument).Findings) {
        if (finding.Box != number) continue;
        text += (text.empty() ? "" : "\n") + InWords(finding);
    }
    return text;
}

void ResetLiveScripts() { scripts.clear(); }

}  // namespace quorvane
