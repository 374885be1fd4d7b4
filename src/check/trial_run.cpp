// SPDX-License-Identifier: MIT
#include "check/trial_run.h"

#include "commands/matrix_input.h"
#include "diagram/worksheet.h"
#include "generator/compile_document.h"
#include "generator/front.h"
#include "platform/quiet_desktop.h"

namespace quorvane {

namespace {

/// A desktop without a user that remembers what it was asked.
struct ListeningDesktop : QuietDesktop {
    std::vector<std::string> Asked;

    Answer MsgBox(const Message& message) override {
        Asked.push_back(message.Text);
        return QuietDesktop::MsgBox(message);
    }
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& text) override {
        Asked.push_back(prompt);
        return QuietDesktop::InputBox(prompt, title, text);
    }
    std::string OpenFileDialog(const std::string& filter, const std::string& name) override {
        Asked.push_back("Which file to read ? (" + filter.substr(0, filter.find('|')) + ")");
        return QuietDesktop::OpenFileDialog(filter, name);
    }
    std::string SaveFileDialog(const std::string& filter, const std::string& name) override {
        Asked.push_back("Which file to write ? (" + filter.substr(0, filter.find('|')) + ")");
        return QuietDesktop::SaveFileDialog(filter, name);
    }
    void ShowModal(std::string_view) override {
        Asked.emplace_back("The elements of the matrix ?");
    }
};

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
    std::vector<std::string>& Asked() { return nobody_.Asked; }

private:
    ListeningDesktop nobody_;
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
    KeptState kept;
    TrialEnd end;
    Run run;
    run.Document = static_cast<std::int16_t>(document);
    run.notesLines = true;
    try {
        end.End = WalkDocument(run);
        if (end.End != RunEnd::Done) end.Waiting = WaitingBoxes();
    } catch (const RuntimeError& error) {
        end.Error = error.Number;
    }
    end.Script = std::move(run.scriptText);
    end.BoxOfLine = std::move(run.boxOfLine);
    end.Asked = std::move(kept.Asked());
    end.Depth = nestingDepth;
    for (const auto& box : Boxes) end.Written.push_back(IsDone(box));
    return end;
}

}  // namespace quorvane
