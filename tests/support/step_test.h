// SPDX-License-Identifier: MIT
#pragma once

#include "files/document_fixture.h"
#include "support/step_player.h"

namespace quorvane::testing {

/// Plays tables on a scripted desktop, which also know the commands of the menus ("mnuArrow_Click
/// 2" in document 2, "frame.mnuFileExit"). The steps at a form are carried out each time that it is
/// shown.
class StepTest : public DocumentTest, protected StepPlayer {
protected:
    StepTest() : StepPlayer(folder) {
        Know({
            {"NewDocument", Seen([](A) { return NewDocument(); })},
            {"told", Seen([this](A) { return Taken(screen.Messages); })},
            {"shown", Seen([this](A) { return Taken(screen.FormsShown); })},
            {"choose", Step([this](A a) { screen.Paths.push_back(folder / a.Text); })},
            {"asked", Seen([this](A) { return Taken(screen.FileDialogs); })},
            {"answer", Step([this](A a) {
                 const std::map<std::string, Answer> answers = {
                     {"yes", Answer::Yes}, {"no", Answer::No}, {"cancel", Answer::Cancel}};
                 screen.MessageAnswers = {answers.at(a.Text)};
             })},
            {"checked", Seen([](A a) { return MenuOf(a).Checked; })},
            {"caption", Seen([](A a) { return MenuOf(a).Caption; })},
        });
        for (const auto& row : documentMenu) {
            words[std::string(row.Control) + "_Click"] =
                Step([&row](A a) { RunMenuCommand(row, Sheet(a[0])); });
        }
        for (const auto& row : frameMenu) {
            if (row.Command) {
                words["frame." + std::string(row.Control)] = Step([&row](A) { row.Command(); });
            }
        }
    }
    void TearDown() override {
        EXPECT_EQ(awaited_, "") << "was not shown";
        DocumentTest::TearDown();
    }
    void BeginAnew() override {
        EXPECT_EQ(awaited_, "") << "was not shown";
        Restart();
    }
    void AtForm(const std::string& form, std::function<void()> steps) override {
        EXPECT_EQ(awaited_, "");
        awaited_ = form;
        screen.Forms[form] = [this, steps = std::move(steps)] {
            awaited_.clear();
            steps();
        };
    }

private:
    /// The entry that is named, of a document's menu, or of the frame's for number 0.
    static const MenuItem& MenuOf(A a) {
        if (a[0] == 0) return *MenuRecord(frmMDI, a.Text, -1);
        return *MenuRecord(Sheet(a[0]), a.Text, -1);
    }

    std::string awaited_;  ///< A form that has yet to be shown
};

}  // namespace quorvane::testing
