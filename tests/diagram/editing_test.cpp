// SPDX-License-Identifier: MIT
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
#include "platform/numbers.h"
#include "support/step_test.h"

namespace quorvane::testing {

using Numbers = std::vector<int>;

/// Plays the tables of this folder: what a user does, and what then stands in the records.
class EditingTest : public StepTest, public ::testing::WithParamInterface<const char*> {
protected:
    EditingTest() {
        for (const auto& some : {RecordWords(), SheetWords(), FormWords(), Steps(), Handlers()}) {
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

    static Numbers Selected() {
        Numbers numbers;
        for (int i = 1; i <= SelectedBoxes.UpperBound(); ++i) numbers.push_back(SelectedBoxes[i]);
        return numbers;
    }

private:
    Words RecordWords() {
        return {
            {"ArrowSource", Global(ArrowSource)},
            {"BoxType", OfBox(&Box::BoxType)},
            {"BoxText", OfBox(&Box::BoxText)},
            {"BoxMark", OfBox(&Box::BoxMark)},
            {"BoxDocument", OfBox(&Box::BoxDocument)},
            {"BoxIn", OfBox(&Box::BoxIn)},
            {"BoxOut", OfBox(&Box::BoxOut)},
            {"BoxLineColor", OfBox(&Box::BoxLineColor)},
            {"BoxLeft", OfBox(&Box::BoxLeft)},
            {"BoxTop", OfBox(&Box::BoxTop)},
            {"types", Seen([](A) {
                 std::vector<std::string> types;
                 for (int i = 1; i < NextBox; ++i) types.push_back(Boxes[i].BoxType);
                 return types;
             })},
            {"remember", Step([this](A) { remembered = Boxes; })},
            {"changed", Seen([this](A) {
                 Numbers numbers;
                 for (int i = 0; i <= MaxBoxes; ++i) {
                     if (Boxes[i] != remembered[i]) numbers.push_back(i);
                 }
                 return numbers;
             })},
            {"BoxIconKey", Seen([](A a) { return BoxIconKey(a[0]); })},
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
            {"txtEvent", Global(frmMDI.txtEvent)},
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
            {"HoldsArrow", OfSheet(&W::pnlArrow, &ArrowPanel::HoldsArrow)},
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

    decltype(Boxes) remembered;
};

TEST_P(EditingTest, Table) { PlayTable(std::string("diagram/") + GetParam() + ".tsv"); }

INSTANTIATE_TEST_SUITE_P(Tables, EditingTest,
                         ::testing::Values("arrows", "box_info", "connections", "delete_boxes",
                                           "layout", "page_view", "placement", "selection",
                                           "worksheet"),
                         [](const auto& table) { return std::string(table.param); });

}  // namespace quorvane::testing
