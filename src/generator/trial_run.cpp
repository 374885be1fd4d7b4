// SPDX-License-Identifier: MIT
#include "generator/trial_run.h"

#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "generator/compile_document.h"
#include "generator/front.h"
#include "platform/numbers.h"
#include "platform/quiet_desktop.h"

namespace quorvane {

namespace {

int UndoneFeeder(int box) {
    for (const int feeder : BoxOrFree(box).BoxIn) {
        if (feeder > 0 && BoxOrFree(feeder).BoxMark != "OK") return feeder;
    }
    return 0;
}

/// Sees what waits when the run stops.
struct WatchingDesktop : QuietDesktop {
    TrialEnd* End = nullptr;

    Answer MsgBox(const Message& message) override {
        const auto answer = QuietDesktop::MsgBox(message);
        for (int slot = 1; slot <= frontWidth && answer == Answer::Abort; ++slot) {
            if (Front[slot] > 0) End->Waiting.push_back({Front[slot], UndoneFeeder(Front[slot])});
        }
        return answer;
    }
};

}  // namespace

TrialEnd TryCompiling(int document) {
    const auto boxes = Boxes;
    const auto front = Front;
    const auto frames = FrameStack;
    const auto width = frontWidth;
    const auto depth = nestingDepth;
    const auto mode = EditMode;
    const auto lastEnd = lastRunEnd;
    auto* const person = desktop;

    TrialEnd end;
    WatchingDesktop nobody;
    nobody.End = &end;
    desktop = &nobody;
    try {
        end.Script = CompileDocument(1, NumberText(document));
        end.Done = lastRunEnd == RunEnd::Done;
    } catch (const RuntimeError& error) {
        end.Error = error.Number;
    }
    end.Depth = nestingDepth;

    desktop = person;
    Boxes = boxes;
    Front = front;
    FrameStack = frames;
    frontWidth = width;
    nestingDepth = depth;
    EditMode = mode;
    lastRunEnd = lastEnd;
    UpdateBoxGauge(BoxTableFill());
    return end;
}

}  // namespace quorvane
