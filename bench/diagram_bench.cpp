// SPDX-License-Identifier: MIT
// Loading, compiling, checking and saving diagrams of several shapes that fill a tenth of the table
// or all.
#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <stdexcept>

#include "check/check_document.h"
#include "diagram/arrows.h"
#include "diagram/worksheet.h"
#include "diagrams.h"
#include "files/document_file.h"
#include "generator/compile_document.h"
#include "generator/front.h"
#include "memory_count.h"
#include "platform/numbers.h"
#include "shell/application.h"
#include "support/scripted_desktop.h"
#include "workbench/after_event.h"
#include "workbench/history.h"
#include "workbench/live_script.h"
#include "workbench/quick_find.h"
#include "workbench/recovery.h"

using namespace quorvane;
using namespace quorvane::bench;

namespace {

/// A desktop that is told "Done !" and asked nothing: a question would be part of the time.
struct SilentDesktop : testing::ScriptedDesktop {
    Answer MsgBox(const Message& message) override {
        if (message.Text != "Done !") throw std::logic_error("unexpected: " + message.Text);
        return Answer::Ok;
    }
};

/// One diagram under measurement: its boxes, its file, and how long its walk is.
struct Subject {
    std::vector<Box> Boxes;
    std::string Path;
    WalkSize Walk;
    double FileBytes = 0;
};

SilentDesktop silent;

Subject Prepare(const Shape& shape, int boxes) {
    desktop = &silent;
    Subject subject;
    subject.Boxes = shape.Make(boxes);
    subject.Path = WorkFolder() + "/" + std::string(shape.Name) + NumberText(boxes) + ".qvm";
    DrawOnNewSheet(subject.Boxes);
    subject.Walk = MeasureWalk();
    Documents[1]->Caption = subject.Path;
    SaveDocument(1, 1);
    subject.FileBytes = static_cast<double>(std::filesystem::file_size(subject.Path));
    return subject;
}

/// Measures `work` alone: what puts the program back for the next round stands in `prepare`.
template <class Preparation, class Work>
void Measure(benchmark::State& state, const Subject& subject, Preparation prepare, Work work) {
    using Clock = std::chrono::steady_clock;
    for ([[maybe_unused]] auto round : state) {
        prepare();
        const auto start = Clock::now();
        work();
        const std::chrono::duration<double> taken = Clock::now() - start;
        state.SetIterationTime(taken.count());
    }
    prepare();
    {
        const MemoryCount memory;
        work();
        state.counters["peak_bytes"] = static_cast<double>(MemoryCount::Peak());
    }
    state.counters["file_bytes"] = subject.FileBytes;
    state.counters["script_bytes"] = static_cast<double>(subject.Walk.ScriptBytes);
    state.counters["passes"] = subject.Walk.Passes;
    state.counters["visits"] = subject.Walk.Visits;
}

void Loading(benchmark::State& state, const Shape& shape, int boxes) {
    const auto subject = Prepare(shape, boxes);
    Measure(state, subject, ResetApplication, [&] { LoadDocumentFile(subject.Path); });
    if (NextBox != boxes + 1) state.SkipWithError("not all boxes were loaded");
}

void Compiling(benchmark::State& state, const Shape& shape, int boxes) {
    const auto subject = Prepare(shape, boxes);
    DrawOnNewSheet(subject.Boxes);
    std::string script;
    // The front keeps its width from run to run; each round has that of a fresh program.
    const auto prepare = [&] {
        script = std::string();
        ResetFront();
    };
    Measure(state, subject, prepare, [&] { script = CompileDocument(1, "1"); });
    if (script.size() != subject.Walk.ScriptBytes) state.SkipWithError("another script came out");
}

void Checking(benchmark::State& state, const Shape& shape, int boxes) {
    const auto subject = Prepare(shape, boxes);
    DrawOnNewSheet(subject.Boxes);
    std::vector<Finding> found;
    Measure(state, subject, ResetFront, [&] { found = CheckDocument(1); });
    if (!found.empty()) state.SkipWithError("something was found");
}

void Saving(benchmark::State& state, const Shape& shape, int boxes) {
    const auto subject = Prepare(shape, boxes);
    DrawOnNewSheet(subject.Boxes);
    Documents[1]->Caption = subject.Path;
    const auto nothing = [] {};
    Measure(state, subject, nothing, [] { SaveDocument(1, 1); });
}

/// What the workbench costs after an event: one that moved a box, and one that changed nothing.
void Noticing(benchmark::State& state, const Shape& shape, int boxes, int moved) {
    const auto subject = Prepare(shape, boxes);
    DrawOnNewSheet(subject.Boxes);
    RedrawDocument("1");
    AfterEvent();
    const auto before = HistoryChanges();
    const auto prepare = [&] {
        auto& control = Documents[1]->box[boxes / 2];
        control.Left = Boxes[boxes / 2].BoxLeft += moved;
        RedrawDocument("1");
    };
    Measure(state, subject, prepare, AfterEvent);
    if ((HistoryChanges() == before) != (moved == 0)) state.SkipWithError("a wrong step");
}

/// Writing the recovery file of a worksheet that has changed.
void Recovering(benchmark::State& state, const Shape& shape, int boxes) {
    const auto subject = Prepare(shape, boxes);
    silent.State = WorkFolder();
    DrawOnNewSheet(subject.Boxes);
    AfterEvent();
    const auto prepare = [&] {
        ++Boxes[boxes / 2].BoxLeft;
        AfterEvent();
    };
    Measure(state, subject, prepare, WriteRecovery);
    if (!HasRecoveryFile(1)) state.SkipWithError("nothing was written");
    ResetRecovery();
}

void Stepping(benchmark::State& state, const Shape& shape, int boxes) {
    Noticing(state, shape, boxes, 15);
}

void Resting(benchmark::State& state, const Shape& shape, int boxes) {
    Noticing(state, shape, boxes, 0);
}

/// Makes the workbench look at the diagram anew.
void NoteChange(int boxes) {
    ++Boxes[boxes / 2].BoxLeft;
    AfterEvent();
}

/// The script as it stands, with what the check finds.
void Listing(benchmark::State& state, const Shape& shape, int boxes) {
    const auto subject = Prepare(shape, boxes);
    DrawOnNewSheet(subject.Boxes);
    Measure(
        state, subject, [&] { NoteChange(boxes); }, [] { ScriptOf(1); });
    if (ScriptOf(1).Text.size() != subject.Walk.ScriptBytes) state.SkipWithError("another script");
}

/// What is found at each box of a diagram whose arrows into every other box are gone.
void Advising(benchmark::State& state, const Shape& shape, int boxes) {
    const auto subject = Prepare(shape, boxes);
    DrawOnNewSheet(subject.Boxes);
    for (int i = 2; i <= boxes; i += 2) {
        for (auto& entry : Boxes[i].BoxIn) {
            if (entry <= 0) continue;
            for (auto& exit : Boxes[entry].BoxOut) exit = exit == i ? std::int16_t{0} : exit;
            entry = 0;
        }
    }
    std::size_t found = 0;
    const auto work = [&] {
        for (int i = 1; i <= boxes; ++i) found += FindingsOfBox(i).size();
    };
    Measure(
        state, subject, [&] { NoteChange(boxes); }, work);
    if (found == 0) state.SkipWithError("nothing was found");
}

/// The first key of a search, which all boxes fit.
void Searching(benchmark::State& state, const Shape& shape, int boxes) {
    const auto subject = Prepare(shape, boxes);
    DrawOnNewSheet(subject.Boxes);
    std::vector<QuickRow> rows;
    Measure(
        state, subject, [] {}, [&] { rows = FindQuick("b"); });
    if (std::ssize(rows) < boxes) state.SkipWithError("not all boxes were found");
}

struct Operation {
    const char* Name;
    void (*Run)(benchmark::State& state, const Shape& shape, int boxes);
};
constexpr Operation operations[] = {
    {"load", Loading},      {"compile", Compiling}, {"check", Checking},     {"save", Saving},
    {"step", Stepping},     {"rest", Resting},      {"recover", Recovering}, {"script", Listing},
    {"findings", Advising}, {"search", Searching}};

/// Under the names operation/shape/boxes.
void RegisterAll() {
    for (const auto& operation : operations) {
        for (const auto& shape : shapes) {
            for (const int boxes : {MaxBoxes / 10, MaxBoxes}) {
                const auto name = std::string(operation.Name) + "/" + std::string(shape.Name) +
                                  "/" + NumberText(boxes);
                const auto run = [&operation, &shape, boxes](benchmark::State& state) {
                    operation.Run(state, shape, boxes);
                };
                benchmark::RegisterBenchmark(name.c_str(), run)
                    ->UseManualTime()
                    ->Unit(benchmark::kMicrosecond);
            }
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    RegisterAll();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
