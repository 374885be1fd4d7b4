// SPDX-License-Identifier: MIT
#include "shell/frame.h"

#include "files/settings.h"
#include "generator/send_to_matlab.h"
#include "shell/help.h"
#include "shell/tour.h"
#include "support/step_test.h"

namespace quorvane::testing {

/// Plays the tables of the frame's commands and of the tour.
class ShellTest : public StepTest, public ::testing::WithParamInterface<const char*> {
protected:
    ShellTest() {
        Know({
            {"LoadToolbox", Step([](A) { LoadToolbox(); })},
            {"UnloadFrame", Step([](A) { UnloadFrame(); })},
            {"ended", Global(screen.Ended)},
            {"helped", Seen([this](A) { return Taken(screen.HelpCommands); })},
            {"HelpFile", Global(HelpFile)},
            {"log", Global(frmTextResults.txt.Text)},
            {"left", Seen([](A) {
                 std::string left;
                 for (int i = 1; i <= 2; ++i) left += Documents[i] ? "D" : "-";
                 left += frmPictures.Form.Loaded ? "T" : "-";
                 return left + (frmTextResults.txt.Text.empty() ? "-" : "L");
             })},
            {"frmPrefs_Activate", Step([](A) { frmPrefs_Activate(); })},
            {"sheet", Seen([](A a) {
                 const auto& sheet = Sheet(a[0]);
                 return std::to_string(sheet.DrawWidth) +
                        (sheet.mnuOptionsBubbleShow.Checked ? " bubbles " : " - ") +
                        (sheet.mnuOptionsToolbox.Checked ? "toolbox " : "- ") +
                        sheet.mnuOptionsCurrentToolbox.Caption;
             })},
            {"drawn",
             {{},
              [](A a) { return Show(Sheet(a[0]).Surface.size()); },
              [](A a, const std::string&) { Sheet(a[0]).Surface.resize(1); }}},
            {"tour", Seen([](A a) {
                 const auto& panel = Sheet(a[0]).pnlTour;
                 return panel.Caption + (panel.Visible ? "" : "-");
             })},
            {"pnlTour_Click", Step([](A a) { pnlTour_Click(Sheet(a[0])); })},
            {"count", Seen([](A a) { return TourCount(Sheet(a[0]).pnlTour); })},
            {"TourStep", Global(TourStep)},
        });
    }
};

TEST_P(ShellTest, Table) { PlayTable(std::string("shell/") + GetParam() + ".tsv"); }

INSTANTIATE_TEST_SUITE_P(Tables, ShellTest, ::testing::Values("frame", "tour"),
                         [](const auto& table) { return std::string(table.param); });

}  // namespace quorvane::testing
