// SPDX-License-Identifier: MIT
#include "diagram/arrows.h"
#include "diagram/comment_form.h"
#include "diagram/connections.h"
#include "diagram/delete_boxes.h"
#include "diagram/editing_words.h"
#include "diagram/editor_fixture.h"
#include "diagram/layout.h"
#include "diagram/page_view.h"
#include "diagram/preferences.h"
#include "support/table_file.h"

namespace quorvane::testing {

/// Plays the tables of this folder: what a user does, and what then stands in the records.
class EditingTest : public EditorTest, public ::testing::WithParamInterface<const char*> {
protected:
    void SetUp() override {
        EditorTest::SetUp();
        for (auto&& some : {RecordWords(), SheetWords(), FormWords(), Steps(), Handlers()}) {
            words.insert(some.begin(), some.end());
        }
    }

    void Restart() {
        ResetApplication();
        screen = ScriptedDesktop();
        NewDocument();
    }

    /// Carries out the cells of a row; those behind "at FORM" each time that form is shown.
    void CarryOut(const std::vector<std::string>& cells, const std::string& place) {
        for (auto next = cells.begin(); next != cells.end();) {
            const auto& cell = *next++;
            SCOPED_TRACE(::testing::Message() << place << " " << cell);
            if (cell.starts_with("at ")) {
                EXPECT_EQ(awaited, "");
                awaited = cell.substr(3);
                screen.Forms[awaited] = [this, place, rest = std::vector(next, cells.end())] {
                    awaited.clear();
                    CarryOut(rest, place);
                };
                return;
            }
            try {
                if (!cell.empty()) CarryOut(cell);
            } catch (const std::exception& error) {
                ADD_FAILURE() << error.what();
            }
        }
    }

    std::string awaited;  ///< A form that has yet to be shown

private:
    /// "STEP ARGUMENTS", "VALUE ARGUMENTS = EXPECTED" or "VALUE ARGUMENTS := NEW".
    void CarryOut(const std::string& cell) {
        const auto equals = cell.find('=');
        const bool sets = equals != std::string::npos && cell[equals - 1] == ':';
        std::istringstream left(cell.substr(0, sets ? equals - 1 : equals));
        std::string name;
        left >> name;
        Arguments a;
        for (double number = 0; left >> number;) a.Given.push_back(number);
        left.clear();
        std::getline(left >> std::ws, a.Text);
        const auto& word = words.at(name);
        if (equals == std::string::npos) return word.Do(a);
        const auto right = equals + 2 < cell.size() ? cell.substr(equals + 2) : "";
        if (sets) return word.Set(a, right);
        EXPECT_EQ(word.See(a), right);
    }

    Words RecordWords() {
        return {
            {"NextBox", Global(NextBox)},
            {"EditMode", Global(EditMode)},
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
            {"record", Seen([](A a) { return Boxes[a[0]]; })},
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
            {"NewDocument", Seen([](A) { return NewDocument(); })},
            {"AllocateDocument", Seen([](A) { return AllocateDocument(); })},
            {"CurrentDocument", Global(CurrentDocument)},
            {"Modified", OfState(&DocumentState::Modified)},
            {"Closed", OfState(&DocumentState::Closed)},
            {"PageRight", Global(PageRight)},
            {"PageBottom", Global(PageBottom)},
            {"txtEvent", Global(frmMDI.txtEvent)},
            {"Tag", OfSheet(&W::Tag)},
            {"ScaleWidth", OfSheet(&W::ScaleWidth)},
            {"ScaleHeight", OfSheet(&W::ScaleHeight)},
            {"Minimized", OfSheet(&W::Minimized)},
            {"MousePointer", OfSheet(&W::MousePointer)},
            {"cmdEventFire", OfSheet(&W::cmdEventFire)},
            {"scrH", OfSheet(&W::scrH, &ScrollBar::Value)},
            {"scrV", OfSheet(&W::scrV, &ScrollBar::Value)},
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
            {"shpCopy", OfSheet(&W::shpCopy)},
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
            {"told", Seen([this](A) { return Taken(screen.Messages); })},
            {"shown", Seen([this](A) { return Taken(screen.FormsShown); })},
            {"color", Step([this](A a) { screen.Colors.push_back(a[0]); })},
            {"ColorStarts", Seen([this](A) { return Taken(screen.ColorStarts); })},
            {"chkShowBubbles", Global(frmPrefs.chkShowBubbles)},
            {"frmComment.Loaded", Global(frmComment.Form.Loaded)},
            {"txtComment", Global(frmComment.txtComment.Text)},
            {"frmInfo.Caption", Global(frmInfo.Form.Caption)},
            {"frmInfo.Loaded", Global(frmInfo.Form.Loaded)},
            {"lblBoxName", Global(frmInfo.lblBoxName.Caption)},
            {"lblfunc", Seen([](A) { return frmInfo.lblfunc; })},
            {"lblFrom", Seen([](A) { return frmInfo.lblFrom; })},
            {"lblTo", Seen([](A) { return frmInfo.lblTo; })},
            {"lblEmpty", Global(frmInfo.lblEmpty.Caption)},
            {"txtnum", Global(frmInfo.txtnum.Text)},
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
            {"join", Step([](A a) { Join(a[0], a[1]); })},
            {"select", Step([](A a) {
                 SelectNumbers({a.Given.begin(), a.Given.end()});
             })},
            {"delete", Step([](A a) {
                 SelectNumbers({a.Given.begin(), a.Given.end()});
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
            {"main_Resize", Handler(main_Resize)},
            {"scrH_Change", Handler(scrH_Change)},
            {"scrV_Change", Handler(scrV_Change)},
            {"pnlArrow_Click", Handler(pnlArrow_Click)},
            {"mnuArrow_Click", Handler(mnuArrow_Click)},
            {"mnuMultipleArrows_Click", Handler(mnuMultipleArrows_Click)},
            {"mnuEditLineColor_Click", Handler(mnuEditLineColor_Click)},
            {"mnuEditMove_Click", Handler(mnuEditMove_Click)},
            {"mnueditcopy_Click", Handler(mnueditcopy_Click)},
            {"mnuEditClear_Click", Handler(mnuEditClear_Click)},
            {"mnuOptionsBubbleShow_Click", Handler(mnuOptionsBubbleShow_Click)},
            {"mnuPageView_Click", Handler(mnuPageView_Click)},
            {"frmPageView_cmdOK_Click", Handler(frmPageView_cmdOK_Click)},
            {"frmInfo_cmdOK_Click", Handler(frmInfo_cmdOK_Click)},
            {"frmInfo_cmdCancel_Click", Handler(frmInfo_cmdCancel_Click)},
            {"frmInfo_cmdColor_Click", Handler(frmInfo_cmdColor_Click)},
            {"frmComment_txtComment_Change", Handler(frmComment_txtComment_Change)},
            {"frmComment_cmdOK_Click", Handler(frmComment_cmdOK_Click)},
        };
    }

    /// What the desktop has noted since it was asked last, parted by " | ".
    template <class T>
    static std::string Taken(std::vector<T>& notes) {
        std::string text;
        for (const auto& note : notes) text += (text.empty() ? "" : " | ") + Show(note);
        notes.clear();
        return text;
    }

    Words words;
    decltype(Boxes) remembered;
};

TEST_P(EditingTest, Table) {
    for (auto row : ReadTable(std::string("diagram/") + GetParam() + ".tsv")) {
        const auto place = row.back();
        row.pop_back();
        if (!row[0].empty()) {
            EXPECT_EQ(awaited, "") << "was not shown before " << place;
            Restart();
        }
        row[0].clear();
        CarryOut(row, place);
    }
    EXPECT_EQ(awaited, "");
}

INSTANTIATE_TEST_SUITE_P(Tables, EditingTest,
                         ::testing::Values("arrows", "box_info", "connections", "delete_boxes",
                                           "layout", "page_view", "placement", "selection",
                                           "worksheet"),
                         [](const auto& table) { return std::string(table.param); });

}  // namespace quorvane::testing
