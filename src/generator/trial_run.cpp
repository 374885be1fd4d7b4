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

/// What a run changes, and puts back at the end of the scope, whatever ends it.
class KeptState {
public:
    explicit KeptState(Desktop* inBetween) {
        ForEachOpenDocument([this](const Worksheet& sheet, int) {
            sheets_.push_back({sheet.MousePointer, sheet.pnlResource.Value});
        });
        desktop = inBetween;
    }
    ~KeptState() {
        desktop = desktop_;
        Boxes = boxes_;
        Front = std::move(front_);
        FrameStack = std::move(frames_);
        frontWidth = width_;
        nestingDepth = depth_;
        EditMode = mode_;
        lastRunEnd = lastEnd_;
        auto kept = sheets_.begin();
        ForEachOpenDocument([&](Worksheet& sheet, int) {
            sheet.MousePointer = kept->Pointer;
            sheet.pnlResource.Value = kept->Gauge;
            ++kept;
        });
    }
    KeptState(const KeptState&) = delete;
    KeptState& operator=(const KeptState&) = delete;

private:
    struct KeptSheet {
        int Pointer;
        double Gauge;
    };
    Desktop* desktop_ = desktop;
    decltype(Boxes) boxes_ = Boxes;
    decltype(Front) front_ = Front;
    decltype(FrameStack) frames_ = FrameStack;
    decltype(frontWidth) width_ = frontWidth;
    decltype(nestingDepth) depth_ = nestingDepth;
    decltype(EditMode) mode_ = EditMode;
    RunEnd lastEnd_ = lastRunEnd;
    std::vector<KeptSheet> sheets_;
};

}  // namespace

TrialEnd TryCompiling(int document) {
    TrialEnd end;
    WatchingDesktop nobody;
    nobody.End = &end;
    const KeptState kept(&nobody);
    try {
        end.Script = CompileDocument(1, NumberText(document));
        end.Done = lastRunEnd == RunEnd::Done;
    } catch (const RuntimeError& error) {
        end.Error = error.Number;
    }
    end.Depth = nestingDepth;
    return end;
}

}  // namespace quorvane
