// SPDX-License-Identifier: MIT
#include "generator/trial_run.h"

#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "generator/compile_document.h"
#include "generator/front.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

int UndoneFeeder(int box) {
    for (const int feeder : BoxOrFree(box).BoxIn) {
        if (feeder > 0 && BoxOrFree(feeder).BoxMark != "OK") return feeder;
    }
    return 0;
}

/// A desktop without anybody before it.
struct DeadDesktop : Desktop {
    TrialEnd* End = nullptr;

    Answer MsgBox(const Message& message) override {
        if (message.Choice != Buttons::AbortRetryIgnore) return Answer::Ok;
        for (int slot = 1; slot <= frontWidth; ++slot) {
            if (Front[slot] > 0) End->Waiting.push_back({Front[slot], UndoneFeeder(Front[slot])});
        }
        return Answer::Abort;
    }
    std::string InputBox(const std::string&, const std::string&, const std::string& text) override {
        return text;
    }
    std::string OpenFileDialog(const std::string&, const std::string&) override {
        throw RuntimeError(32755);
    }
    std::string SaveFileDialog(const std::string&, const std::string&) override {
        throw RuntimeError(32755);
    }
    std::int32_t ColorDialog(std::int32_t start) override { return start; }
    void ShowModal(std::string_view) override {}
    void PopupMenu(std::string_view) override {}
    void ArrangeWindows(int) override {}
    void SetClipboardText(const std::string&) override {}
    int ClockSeconds() override { return 0; }
    void PaintNow() override {}
    void Help(const std::string&, int) override {}
    void StartProcess(const std::string&) override {}
    void EndProgram() override {}
    void LinkOpen() override {}
    void LinkExecute(const std::string&) override {}
    std::string LinkRequest() override { return ""; }
    std::string LinkFinish() override { return ""; }
    void StartMatlab() override {}
    std::string ReadStore(const std::string&, const std::string&) override { return ""; }
    void WriteStore(const std::string&, const std::string&, const std::string&) override {}
    std::vector<std::pair<std::string, std::string>> ReadStoreSection(const std::string&) override {
        return {};
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
    DeadDesktop nobody;
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
