// SPDX-License-Identifier: MIT
#include "catalogue/catalogue_fixture.h"
#include "commands/change_box.h"
#include "commands/worksheet_events.h"
#include "diagram/arrows.h"
#include "diagram/comment_form.h"
#include "diagram/connections.h"
#include "diagram/delete_boxes.h"
#include "diagram/layout.h"
#include "diagram/page_view.h"
#include "diagram/placement.h"
#include "diagram/preferences.h"
#include "diagram/selection.h"
#include "files/close_document.h"
#include "generator/compile_document.h"
#include "generator/front.h"
#include "generator/send_to_matlab.h"
#include "generator/write_script.h"
#include "platform/numbers.h"
#include "support/step_test.h"
#include "workbench/after_event.h"
#include "workbench/history.h"

namespace quorvane::testing {

/// Plays the tables of diagrams: what a user does, and what then stands in the records.
class DiagramSteps : public StepTest, public ::testing::WithParamInterface<const char*> {
protected:
    DiagramSteps() {
        for (const auto& some : {RecordWords(), SheetWords(), FormWords(), Steps(), Handlers(),
                                 Commands(), Runs(), History()}) {
            Know(some);
        }
    }

    static void Press(double X, double Y, int document = 1) {
        main_MouseDown(Sheet(document), LeftButton, 0, X, Y);
    }

    /// Arms a box of this type and places it.
    static void Place(const std::string& type, double X, double Y, int document = 1) {
        EditMode = 1;
        AddBox(Sheet(document));
        Boxes[NextBox - 1].BoxType = type;
        Press(X, Y, document);
    }

    static void SelectNumbers(const Reals& numbers) {
        SelectedBoxes.Resize(0);
        for (const auto number : numbers) SelectedBoxes.Append(ToInt16(number));
    }

    static std::vector<int> Selected() {
        std::vector<int> numbers;
        for (int i = 1; i <= SelectedBoxes.UpperBound(); ++i) numbers.push_back(SelectedBoxes[i]);
        return numbers;
    }

private:
    Words RecordWords() {
        return {
            {"ArrowSource", Global(ArrowSource)},
            {"types", Seen([](A) {
                 std::vector<std::string> types;
                 for (int i = 1; i < NextBox; ++i) types.push_back(Boxes[i].BoxType);
                 return types;
             })},
            {"remember", Step([this](A) { remembered = Boxes; })},
            {"changed", Seen([this](A) {
                 std::vector<int> numbers;
                 for (int i = 0; i <= MaxBoxes; ++i) {
                     if (Boxes[i] != remembered[i]) numbers.push_back(i);
                 }
                 return numbers;
             })},
            {"BoxIconKey", Seen([](A a) { return std::string(BoxIconKey(a[0])); })},
            {"BoxTableFill", Seen([](A) { return BoxTableFill(); })},
            {"FindEntrySlot", Seen([](A a) { return FindEntrySlot(a[0], a[1]); })},
            {"SelectedBoxes", Seen([](A) { return Selected(); })},
            {"SelectionLeft", Global(SelectionLeft)},
            {"SelectionTop", Global(SelectionTop)},
        };
    }

    Words SheetWords() {
        using W = Worksheet;
        return {
            {"AllocateDocument", Seen([](A) { return AllocateDocument(); })},
            {"CurrentDocument", Global(CurrentDocument)},
            {"PageRight", Global(PageRight)},
            {"PageBottom", Global(PageBottom)},
            {"Tag", OfSheet(&W::Tag)},
            {"ScaleWidth", OfSheet(&W::ScaleWidth)},
            {"ScaleHeight", OfSheet(&W::ScaleHeight)},
            {"DrawWidth", OfSheet(&W::DrawWidth)},
            {"BubbleShow", OfSheet(&W::mnuOptionsBubbleShow, &MenuItem::Checked)},
            {"Minimized", OfSheet(&W::Minimized)},
            {"MousePointer", OfSheet(&W::MousePointer)},
            {"cmdEventFire", OfSheet(&W::cmdEventFire)},
            {"scrH.Max", OfSheet(&W::scrH, &ScrollBar::Max)},
            {"scrV.Max", OfSheet(&W::scrV, &ScrollBar::Max)},
            {"bars", Seen([](A a) {
                 const auto& w = Sheet(a[0]);
                 return std::vector{w.pnlResource.Place, w.pnlArrow.Place, w.scrH.Place, w.pctblank,
                                    w.scrV.Place};
             })},
            {"pnlResource", OfSheet(&W::pnlResource, &GaugePanel::Value)},
            {"pnlArrow", OfSheet(&W::pnlArrow, &ArrowPanel::BackColor)},
            {"MultipleArrows", OfSheet(&W::mnuMultipleArrows, &MenuItem::Checked)},
            {"txtboxname", Seen([](A a) { return Sheet(a[0]).txtboxname; })},
            {"painted", Seen([](A a) { return Taken(Sheet(a[0]).Surface); })},
            {"arrows", Seen([](A a) {
                 std::vector<std::string> ends;
                 const auto& shapes = Sheet(a[0]).Surface;
                 for (std::size_t i = 0; i < shapes.size(); i += 3) {
                     ends.push_back(Show(shapes[i].Color) + ">" + Show(shapes[i].X2));
                 }
                 return ends;
             })},
            {"shapes", Seen([](A a) { return static_cast<int>(Sheet(a[0]).Surface.size()); })},
            {"boxes", Seen([](A a) -> auto& { return Sheet(a[0]).box; })},
            {"box", Value([](A a) -> auto& { return Sheet(a[1]).box[a[0]]; })},
            {"Width", OfControl(&BoxControl::Width)},
            {"Height", OfControl(&BoxControl::Height)},
            {"Picture", OfControl(&BoxControl::Picture)},
            {"Pointer", OfControl(&BoxControl::MousePointer)},
            {"DragAutomatic", OfControl(&BoxControl::DragAutomatic)},
        };
    }

    Words FormWords() {
        return {
            {"color", Step([this](A a) { screen.Colors.push_back(a[0]); })},
            {"ColorStarts", Seen([this](A) { return Taken(screen.ColorStarts); })},
            {"chkShowBubbles", Global(frmPrefs.chkShowBubbles)},
            {"lblfunc", Seen([](A) { return frmInfo.lblfunc; })},
            {"lblFrom", Seen([](A) { return frmInfo.lblFrom; })},
            {"lblTo", Seen([](A) { return frmInfo.lblTo; })},
            {"chkFrom", Global(frmInfo.chkFrom)},
            {"chkTo", Global(frmInfo.chkTo)},
            {"chkLockedInputs", Global(frmInfo.chkLockedInputs)},
            {"chkLockedOutputs", Global(frmInfo.chkLockedOutputs)},
            {"frmPageView.Caption", Global(frmPageView.Form.Caption)},
            {"frmPageView.Loaded", Global(frmPageView.Form.Loaded)},
            {"frmPageView.boxes", Seen([](A) -> auto& { return frmPageView.box; })},
            {"frmPageView.box", Seen([](A a) {
                 const auto& c = frmPageView.box[a[0]];
                 return Reals{c.Left, c.Top, c.Width, c.Height, double(c.Picture)};
             })},
            {"frmPageView.Surface", Seen([](A) { return frmPageView.Surface; })},
            {"frmPageView.Page", Seen([](A) { return frmPageView.Page; })},
            {"frmPageView.Seen", Seen([](A) { return frmPageView.Seen; })},
            {"frmPageView.pnl", Seen([](A) { return frmPageView.pnl; })},
            {"frmPageView.cmdOK", Seen([](A) { return frmPageView.cmdOK; })},
        };
    }

    Words Steps() {
        return {
            {"place", Step([](A a) { Place(a.Text, a.X(0), a.X(1), a[2]); })},
            {"fill", Step([](A a) {
                 while (NextBox <= a[0]) Place(a.Text, 0, 0);
             })},
            {"AddBox", Step([](A a) { AddBox(Sheet(a[0])); })},
            {"press", Step([](A a) { Press(a.X(0), a.X(1), a[2]); })},
            {"drag", Step([](A a) { main_MouseMove(Sheet(a[2]), LeftButton, 0, a.X(0), a.X(1)); })},
            {"hover", Step([](A a) { main_MouseMove(Sheet(a[0]), 0, 0, 10, 10); })},
            {"release", Step([](A a) { main_MouseUp(Sheet(a[0]), LeftButton, 0, 0, 0); })},
            {"join", Step([](A a) {
                 EditMode = 3;
                 for (const int end : {0, 1}) box_Click(Sheet(), a[static_cast<std::size_t>(end)]);
             })},
            {"select", Step([](A a) { SelectNumbers(a.Given); })},
            {"delete", Step([](A a) {
                 SelectNumbers(a.Given);
                 bool silent = true;
                 DeleteBoxes(silent);
             })},
            {"unload", Step([](A a) { Sheet(a[1]).box.Unload(a[0]); })},
            {"close", Step([](A a) { Documents[a[0]].reset(); })},
            {"box_Click", Step([](A a) { box_Click(Sheet(a[1]), a[0]); })},
            {"box_MouseMove", Step([](A a) { box_MouseMove(Sheet(), a[0]); })},
            {"box_MouseDown", Step([](A a) { box_MouseDown(Sheet(), a[0], a[1], a[2]); })},
            {"main_DragDrop", Step([](A a) { main_DragDrop(Sheet(), a[0], a.X(1), a.X(2)); })},
            {"main_MouseMove", Step([](A a) { main_MouseMove(Sheet(), a[0], 0, a.X(1), a.X(2)); })},
            {"OpenBoxInfo", Step([](A a) { OpenBoxInfo(Sheet(), a[0]); })},
            {"DrawArrow", Step([](A a) { DrawArrow(a[0], a[1], a[2], "b", a[3]); })},
            {"RedrawDocument", Step([](A a) { RedrawDocument(Show(a.Given)); })},
            {"ClearSelectionRect", Step([](A a) { ClearSelectionRect(Show(a.Given)); })},
            {"SetPointerAll", Step([](A a) { SetPointerAll(a[0]); })},
            {"UpdateBoxGauge", Step([](A a) { UpdateBoxGauge(a[0]); })},
        };
    }

    static Words Handlers() {
        return {
            {"main_Resize", Step([](A a) { main_Resize(Sheet(a[0])); })},
            {"scrH_Change", Step([](A a) { scrH_Change(Sheet(a[0])); })},
            {"scrV_Change", Step([](A a) { scrV_Change(Sheet(a[0])); })},
            {"pnlArrow_Click", Step([](A a) { pnlArrow_Click(Sheet(a[0])); })},
            {"frmPageView_cmdOK_Click", Step([](A) { frmPageView_cmdOK_Click(); })},
        };
    }

    Words Commands() {
        return {
            {"run", Step([](A a) { RunBoxCommand(Sheet(a[0]), a.Text); })},
            {"make", Step([this](A a) {
                 auto steps = a.Text;
                 const auto dialog = TakeWord(steps);
                 screen.Forms[dialog] = [=] {
                     Play(dialog, steps + (steps.empty() ? "cmdOK" : "|cmdOK"));
                 };
                 for (const auto& command : boxCommands) {
                     if (command.Dialog == dialog) RunBoxCommand(Sheet(), command.Control);
                 }
             })},
            {"change", Seen([](A a) { return ChangeBox(Sheet(), a[0]); })},
            {"row", Seen([](A a) {
                 const auto row = BoxRow(Boxes[a[0]]);
                 return row[0] + "|" + row[1] + "|" + row[2] + "|" + row[3];
             })},
            {"texts", Step([this](A a) {
                 const auto texts = Split(a.Text.substr(1), '|');
                 screen.Texts.assign(texts.begin(), texts.end());
             })},
            {"prompts", Seen([this](A) { return Taken(screen.Prompts); })},
            {"draw", Step([](A a) {
                 for (const auto& box : Split(a.Text, '|')) DrawBox(box, a[0]);
             })},
        };
    }

    Words Runs() {
        return {
            {"compile",
             {[](A a) { CompileDocument(ToInt16(a[0]), Show(a[1])); },
              [](A a) {
                  const auto script = CompileDocument(ToInt16(a[0]), Show(a[1]));
                  return Replaced(script, "\r\n", "\n");
              },
              {}}},
            {"end", Seen([](A) -> std::string {
                 for (int i = 0; i < NextBox; ++i) {
                     if (!Boxes[i].BoxMark.empty()) return "marks are left";
                 }
                 const std::map<RunEnd, std::string> ends = {{RunEnd::None, "none"},
                                                             {RunEnd::Done, "done"},
                                                             {RunEnd::Aborted, "aborted"},
                                                             {RunEnd::Refused, "refused"}};
                 return ends.at(lastRunEnd);
             })},
            {"frontWidth", Global(frontWidth)},
            {"Front",
             {{},
              [](A) {
                  return Show(
                      std::vector<int>(Front.Data(), Front.Data() + Front.UpperBound() + 1));
              },
              [](A, const std::string& text) {
                  std::istringstream in(text);
                  std::int16_t box = 0;
                  for (int i = 0; in >> box; ++i) Front[i] = box;
              }}},
            {"enqueue", Step([](A a) {
                 for (const auto box : a.Given) AddToFront(ToInt16(box));
             })},
            {"RemoveFromFront", Step([](A a) { RemoveFromFront(a[0]); })},
            {"PushFront", Step([](A a) { PushFront(ErrorPolicy::Fatal, a[0]); })},
            {"PopFront", Step([](A) { PopFront(); })},
            {"header", Seen([](A a) {
                 auto path = a.Text;
                 const auto text = AddFunctionHeader(path, "x");
                 return path + ": " + text;
             })},
            {"sent", Seen([this](A) { return Replaced(Taken(screen.Sent), "\r\n", "\n"); })},
            {"SentBoxes", Seen([this](A) { return Taken(screen.SentBoxes); })},
            {"Reply", Global(screen.Reply)},
            {"Kept", Global(screen.Kept)},
            {"frmTextResults", Global(frmTextResults.Form.Visible)},
            {"frmTextResults_cmdOK", Step([](A) { frmTextResults_cmdOK_Click(); })},
            {"linked", Seen([this](A a) { return Linked(a); })},
            {"link", Seen([](A) {
                 const auto& sender = frmTextResults.Sender;
                 const auto& receiver = frmTextResults.Receiver;
                 return sender.Text + receiver.Text + Show(sender.LinkMode + receiver.LinkMode) +
                        " " + sender.LinkTopic + "|" + sender.LinkItem + " " + receiver.LinkTopic +
                        "|" + receiver.LinkItem;
             })},
            {"refuse", Step([this](A a) { screen.LinkFailures = {a[0]}; })},
            {"log", Global(frmTextResults.txt.Text)},
        };
    }

    /// Sends two boxes over a link whose openings fail so, two for a box, to a user who answers so
    /// to the offer to start MATLAB: how often it starts, the last message, what goes to it, and
    /// the log.
    std::string Linked(A a) {
        Restart();
        DrawBox("Constant Input~3~~2");
        DrawBox("Screen Output~~1");
        frmTextResults.txt.Text = "before|";
        screen.Reply = "ans|";
        screen.LinkFailures.assign(a.Given.begin(), a.Given.end());
        for (const char answer : a.Text) {
            screen.MessageAnswers.push_back(answer == 'Y' ? Answer::Yes : Answer::No);
        }
        CompileDocument(0, "1");
        return Show(screen.MatlabStarts) + " " + Show(screen.Messages.back()) + "|" +
               Replaced(Taken(screen.Sent) + "|" + frmTextResults.txt.Text, "\r\n", "\n");
    }

    static Words History() {
        const auto ended = [](auto&& happens) {
            return Step([=](A) {
                happens();
                AfterEvent();
            });
        };
        return {
            {"undoes", Seen([](A) {
                 AfterEvent();
                 return UndoName();
             })},
            {"redoes", Seen([](A) { return RedoName(); })},
            {"undo", ended([] { Undo(); })},
            {"redo", ended([] { Redo(); })},
            {"GiveUp", Seen([](A) { return GiveUp(); })},
            {"save", Step([](A) { SaveDocument(1, 1); })},
            {"close_document", Step([](A) { CloseDocument(1); })},
            {"load", Step([](A a) { LoadDocumentFile(a.Text); })},
        };
    }

    decltype(Boxes) remembered;
};

TEST_P(DiagramSteps, Table) { PlayTable(std::string(GetParam()) + ".tsv"); }

INSTANTIATE_TEST_SUITE_P(Tables, DiagramSteps,
                         ::testing::Values("catalogue/commands", "diagram/arrows",
                                           "diagram/box_info", "diagram/connections",
                                           "diagram/delete_boxes", "diagram/layout",
                                           "diagram/page_view", "diagram/placement",
                                           "diagram/selection", "diagram/worksheet",
                                           "generator/runs", "workbench/history"),
                         [](const auto& table) { return Replaced(table.param, "/", "_"); });

}  // namespace quorvane::testing
