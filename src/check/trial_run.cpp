// SPDX-License-Identifier: MIT
#include "check/trial_run.h"

#include "commands/matrix_input.h"
#include "diagram/worksheet.h"
#include "generator/compile_document.h"
#include "generator/front.h"
#include "platform/quiet_desktop.h"

namespace quorvane {

namespace {

/// Restores at the end of the scope what a walk changes. In between nobody is asked, and the marks
/// of a run that may be waiting for an answer right now are off.
class KeptState {
public:
    KeptState() {
        ForEachOpenDocument(
            [this](const Worksheet& sheet, int) { gauges_.push_back(sheet.pnlResource.Value); });
        desktop = &nobody_;
        ClearMarks();
    }
    ~KeptState() {
        desktop = desktop_;
        Boxes = std::move(boxes_);
        Front = std::move(front_);
        FrameStack = std::move(frames_);
        frontWidth = width_;
        nestingDepth = depth_;
        EditMode = mode_;
        frmMatrix = std::move(matrix_);
        auto gauge = gauges_.begin();
        ForEachOpenDocument([&](Worksheet& sheet, int) { sheet.pnlResource.Value = *gauge++; });
    }
    KeptState(const KeptState&) = delete;
    KeptState& operator=(const KeptState&) = delete;

private:
    QuietDesktop nobody_;
    Desktop* desktop_ = desktop;
    decltype(Boxes) boxes_ = Boxes;
    decltype(Front) front_ = Front;
    decltype(FrameStack) frames_ = FrameStack;
    decltype(frontWidth) width_ = frontWidth;
    decltype(nestingDepth) depth_ = nestingDepth;
    decltype(EditMode) mode_ = EditMode;
    decltype(frmMatrix) matrix_ = frmMatrix;
    std::vector<double> gauges_;
};

std::vector<WaitingBox> WaitingBoxes() {
    std::vector<WaitingBox> waiting;
    for (int slot = 1; slot <= frontWidth; ++slot) {
        const int box = Front[slot];
        if (box <= 0) continue;
        waiting.push_back(
            {box, AttemptValue(ErrorPolicy::Ignore, 0, [&] { return UndoneFeeder(box); })});
    }
    return waiting;
}

}  // namespace

TrialEnd TryCompiling(int document) {
    const KeptState kept;
    TrialEnd end;
    try {
        Run run;
        run.Document = static_cast<std::int16_t>(document);
        end.Done = WalkDocument(run) == RunEnd::Done;
        if (!end.Done) end.Waiting = WaitingBoxes();
    } catch (const RuntimeError& error) {
        end.Error = error.Number;
    }
    end.Depth = nestingDepth;
    for (const auto& box : Boxes) end.Written.push_back(IsDone(box));
    return end;
}

}  // namespace quorvane
