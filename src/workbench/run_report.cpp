// SPDX-License-Identifier: MIT
#include "workbench/run_report.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>

#include "diagram/box_table.h"
#include "platform/numbers.h"
#include "workbench/history.h"

namespace quorvane {

namespace {

/// A box of today and its report.
struct Follow {
    std::int16_t Ran = 0;  ///< Its number in the run, 0 when it wasn't there
    bool IsOld = false;
};

/// All of them, and what they were made from.
struct Follows {
    CheckedArray<Follow, 1, MaxBoxes> Of;
    int Changes = -1;
    int Runs = -1;
};
Follows follows;

int LastBox() { return std::min<int>(NextBox - 1, MaxBoxes); }

std::int16_t RanAs(int number) {
    return number >= 1 && number <= LastBox() ? follows.Of[number].Ran : std::int16_t{0};
}

/// The same type, text and feeders as in the run.
bool IsAsRun(int number) {
    const Box& box = Boxes[number];
    const auto& ran = linkReport.Ran[follows.Of[number].Ran];
    if (box.BoxType != ran.Type || box.BoxText != ran.Text) return false;
    for (int i = 1; i <= box.BoxIn.UpperBound; ++i) {
        const int then = ran.In[i], now = box.BoxIn[i];
        const bool same = now > 0 && then > 0 ? RanAs(now) == then : now == then;
        if (!same) return false;
    }
    return true;
}

/// Marks a box and all that hangs on it.
void Age(int number) {
    if (number < 1 || number > LastBox() || follows.Of[number].IsOld) return;
    follows.Of[number].IsOld = true;
    for (const int fed : Boxes[number].BoxOut) Age(fed);
}

void FollowBoxes() {
    follows = {.Changes = HistoryChanges(), .Runs = linkReport.Runs};
    std::unordered_map<std::uint32_t, std::int16_t> ran;
    for (std::int16_t i = 1; i <= MaxBoxes && linkReport.Ran[i].Id != 0; ++i) {
        ran[linkReport.Ran[i].Id] = i;
    }
    if (ran.empty()) return;
    for (int i = 1; i <= LastBox(); ++i) {
        const auto found = ran.find(Boxes[i].Id);
        if (found != ran.end()) follows.Of[i].Ran = found->second;
    }
    for (int i = 1; i <= LastBox(); ++i) {
        if (RanAs(i) == 0 || !IsAsRun(i)) Age(i);
    }
}

void FollowChanges() {
    if (follows.Changes != HistoryChanges() || follows.Runs != linkReport.Runs) FollowBoxes();
}

}  // namespace

const BoxReport& ReportOf(int number) {
    static const BoxReport none;
    FollowChanges();
    const int ran = RanAs(number);
    return ran == 0 ? none : linkReport.Of[ran];
}

bool IsOutOfDate(int number) {
    FollowChanges();
    return RanAs(number) != 0 && follows.Of[number].IsOld;
}

std::string ReportInWords(int number) {
    const auto& report = ReportOf(number);
    const auto& text = report.Message.empty() ? report.Value : report.Message;
    return text.empty() || !IsOutOfDate(number) ? text : "out of date: " + text;
}

std::vector<int> FailedBoxes() {
    std::vector<int> failed;
    for (int i = 1; i <= LastBox(); ++i) {
        if (ReportOf(i).State == BoxRun::Failed && !IsOutOfDate(i)) failed.push_back(i);
    }
    return failed;
}

std::string RunInWords() {
    if (linkReport.Box != 0) {
        // A loop's box may be sent twice.
        const auto nth = std::min(linkReport.Sent, linkReport.Total);
        return "running box " + NumberText(nth) + " of " + NumberText(linkReport.Total);
    }
    const auto failed = std::ssize(FailedBoxes());
    if (failed == 0) return "";
    return NumberText(failed) + (failed == 1 ? " box failed" : " boxes failed");
}

void ResetShownReports() { follows = {}; }

}  // namespace quorvane
