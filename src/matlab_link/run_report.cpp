// SPDX-License-Identifier: MIT
#include "matlab_link/run_report.h"

#include <cmath>
#include <cstdlib>

namespace quorvane {

LinkReport linkReport;

namespace {

bool IsBox(int number) { return number >= 1 && number <= MaxBoxes; }

BoxReport* ReportOf(int box) { return IsBox(box) ? &linkReport.Of[box] : nullptr; }

void NoteBox(int number) {
    const Box& box = Boxes[number];
    linkReport.Ran[number] = {box.Id, box.BoxType, box.BoxText, box.BoxIn};
}

std::vector<double> Points(std::string_view letters) {
    std::vector<double> points;
    for (const char letter : letters) {
        points.push_back(letter < '!' ? std::nan("") : letter - '!');
    }
    return points;
}

}  // namespace

void BeginReport(int total) {
    linkReport = {
        .wantsValues = linkReport.wantsValues, .Total = total, .Runs = linkReport.Runs + 1};
    GiveBoxIds();
    for (int i = 1; i < NextBox && IsBox(i); ++i) NoteBox(i);
}

void ReportSent(const LineBoxes& lines) {
    std::int16_t last = 0;
    for (const auto box : lines) {
        if (box != last) ++linkReport.Sent;
        last = box;
    }
    linkReport.Box = last;
}

void ReportRunning(const LineBoxes& lines) {
    for (const auto box : lines) {
        auto* report = ReportOf(box);
        if (!report) continue;
        *report = {.State = BoxRun::Running};
        NoteBox(box);  // The run may have asked for its text.
    }
}

void ReportEnd(const LineBoxes& lines, std::int16_t failed, bool stopped) {
    bool reached = !stopped;
    for (const auto box : lines) {
        if (box == failed && failed != 0) reached = false;
        auto* report = ReportOf(box);
        if (report && report->State == BoxRun::Running) {
            report->State = reached ? BoxRun::Done : BoxRun::None;
        }
    }
}

void ReportFailure(std::int16_t box, std::string_view message) {
    auto* report = ReportOf(box);
    if (!report) return;
    report->State = BoxRun::Failed;
    report->Message = message;
}

void ReportValue(const std::string& told) {
    auto* report = ReportOf(std::atoi(told.c_str()));
    const auto start = told.find(':'), end = told.find('\n');
    if (!report || start == std::string::npos || end == std::string::npos) return;
    report->Value = told.substr(start + 1, end - start - 1);
    report->Points = Points(std::string_view(told).substr(end + 1));
}

void ResetReport() { linkReport = {}; }

}  // namespace quorvane
