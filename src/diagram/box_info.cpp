// SPDX-License-Identifier: MIT
#include "diagram/box_info.h"

#include "diagram/arrows.h"
#include "diagram/box_table.h"
#include "diagram/comment_form.h"
#include "diagram/preferences.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace quorvane {

InfoForm frmInfo;

namespace {

struct SlotCount {
    int Empty = 0;
    int Locked = 0;
};

std::string NameAndType(int number) {
    return BoxName(number) + " (" + BoxOrFree(number).BoxType + ")";
}

/// Shows the far end of each slot beside its check box, and counts the others.
template <class Slots, class Labels, class Checks>
SlotCount ShowPeers(const Slots& slots, Labels& labels, Checks& checks) {
    SlotCount count;
    for (int i = 1; i <= Slots::UpperBound; ++i) {
        const bool connected = slots[i] > 0;
        labels[i].Caption = connected ? NameAndType(slots[i]) : "";
        labels[i].Visible = connected;
        checks[i].Visible = connected;
        if (slots[i] == 0) ++count.Empty;
        if (slots[i] == LockedSlot) ++count.Locked;
    }
    return count;
}

/// Each piece brings its own blanks, so that the middle has two or none.
std::string EmptySlotsText(int entries, int exits) {
    std::string text;
    if (entries == 0) text = "There are no empty inputs, ";
    if (entries == 1) text = "There is one empty input, ";
    if (entries > 1) text = "There are " + NumberText(entries) + " empty inputs, ";
    text += "and ";
    if (exits == 0) text += " no empty outputs.";
    if (exits == 1) text += " one empty output.";
    if (exits > 1) text += NumberText(exits) + " empty outputs.";
    return text;
}

void ShowBox(int number) {
    const Box& box = Boxes[number];
    frmInfo.lblBoxName.Caption = "This box's name is: " + NameAndType(number);
    frmInfo.lblfunc.Visible = box.BoxType == "Compute Function";
    if (frmInfo.lblfunc.Visible) frmInfo.lblfunc.Caption = "Function: " + box.BoxText;
    const auto entries = ShowPeers(box.BoxIn, frmInfo.lblFrom, frmInfo.chkFrom);
    const auto exits = ShowPeers(box.BoxOut, frmInfo.lblTo, frmInfo.chkTo);
    frmInfo.chkLockedInputs.Visible = entries.Locked > 0;
    frmInfo.chkLockedOutputs.Visible = exits.Locked > 0;
    frmInfo.lblEmpty.Caption = EmptySlotsText(entries.Empty, exits.Empty);
    frmInfo.txtnum.Text = NumberText(number);
}

template <class Slots>
void ReplaceSlots(Slots& slots, int from, int to) {
    for (auto& slot : slots) {
        if (slot == from) slot = static_cast<std::int16_t>(to);
    }
}

void BreakEntry(int number, int entry) {
    auto& slot = Boxes[number].BoxIn[entry];
    if (slot > 0) Attempt([&] { ReplaceSlots(Boxes[slot].BoxOut, number, 0); });
    slot = 0;
}

void BreakExit(int number, int exit) {
    auto& slot = Boxes[number].BoxOut[exit];
    if (slot > 0) Attempt([&] { ReplaceSlots(Boxes[slot].BoxIn, number, 0); });
    slot = 0;
}

/// Carries out what is ticked, whether or not its check box is visible.
void ChangeBox(int number) {
    for (int i = 1; i <= 3; ++i) {
        if (frmInfo.chkFrom[i].Value == 1) BreakEntry(number, i);
    }
    for (int i = 1; i <= 5; ++i) {
        if (frmInfo.chkTo[i].Value == 1) BreakExit(number, i);
    }
    Box& box = Boxes[number];
    if (frmInfo.chkLockedInputs.Value != 0) ReplaceSlots(box.BoxIn, LockedSlot, 0);
    if (frmInfo.chkLockedOutputs.Value != 0) ReplaceSlots(box.BoxOut, LockedSlot, 0);
}

void EditComment(int number) {
    LoadForm(frmComment);
    frmComment.txtComment.Text = Boxes[number].BoxText;
    frmComment_txtComment_Change();
    desktop->ShowModal("frmComment");
    Boxes[number].BoxText = frmComment.txtComment.Text;
    frmComment = {};
}

std::string RowName(const char* control, int index) {
    return std::string(control) + "(" + NumberText(index) + ")";
}

}  // namespace

void OpenBoxInfo(Worksheet& sheet, int number) {
    if (Boxes[number].BoxType == "Comment") {
        EditComment(number);
        desktop->FocusWorksheet(DocumentNumber(sheet));
        return;
    }
    if (!frmInfo.Form.Loaded) frmInfo = {};
    frmInfo.Form.Loaded = true;
    ShowBox(number);
    desktop->ShowModal("frmInfo");
    desktop->FocusWorksheet(DocumentNumber(sheet));
    frmInfo.lblfunc.Caption.clear();
    if (frmInfo.lblEmpty.Caption == "Cancel") return;
    ChangeBox(number);
    RedrawDocument(sheet.Tag);
    frmInfo = {};
}

void frmInfo_cmdOK_Click() {
    frmInfo.lblEmpty.Caption = "OK";
    frmInfo.Form.Visible = false;
}

void frmInfo_cmdCancel_Click() {
    frmInfo.lblEmpty.Caption = "Cancel";
    frmInfo.Form.Visible = false;
}

void frmInfo_cmdColor_Click() {
    auto& colors = Boxes[TextToInt16(frmInfo.txtnum.Text)].BoxLineColor;
    Attempt([&] { colors.Fill(desktop->ColorDialog(colors[1])); });
}

Form frmInfo_Table() {
    Form form = {"frmInfo", &frmInfo.Form, {}};
    form.Controls = {{"lblBoxName", &frmInfo.lblBoxName},
                     {"lblfunc", &frmInfo.lblfunc},
                     {"Label1", &frmInfo.Label1},
                     {"Label2", &frmInfo.Label2},
                     {"Label3", &frmInfo.Label3}};
    for (int i = 1; i <= 3; ++i) {
        form.Controls.push_back({RowName("lblFrom", i), &frmInfo.lblFrom[i]});
        form.Controls.push_back({RowName("chkFrom", i), &frmInfo.chkFrom[i]});
    }
    for (int i = 1; i <= 5; ++i) {
        form.Controls.push_back({RowName("lblTo", i), &frmInfo.lblTo[i]});
        form.Controls.push_back({RowName("chkTo", i), &frmInfo.chkTo[i]});
    }
    for (ControlRow row : std::initializer_list<ControlRow>{
             {"lblEmpty", &frmInfo.lblEmpty},
             {"chkLockedInputs", &frmInfo.chkLockedInputs},
             {"chkLockedOutputs", &frmInfo.chkLockedOutputs},
             {"txtnum", &frmInfo.txtnum},
             {"cmdColor", &frmInfo.cmdColor, frmInfo_cmdColor_Click},
             {"cmdOK", &frmInfo.cmdOK, frmInfo_cmdOK_Click},
             {"cmdCancel", &frmInfo.cmdCancel, frmInfo_cmdCancel_Click}}) {
        form.Controls.push_back(std::move(row));
    }
    return form;
}

void ShowBubble(Worksheet& sheet, int number) {
    auto& bubble = sheet.txtboxname;
    const Box& box = Boxes[number];
    // A comment's bubble never equals the type, so it is updated at each move.
    if (!sheet.mnuOptionsBubbleShow.Checked || box.BoxType == bubble.Caption) return;
    bubble.Caption = box.BoxType == "Comment" ? "Comment: " + box.BoxText : box.BoxType;
    const auto& control = sheet.box[number];
    bubble.Top = control.Top + control.Height;
    bubble.Left = control.Left + control.Width;
    bubble.Visible = true;
}

void HideBubble(Worksheet& sheet) {
    if (sheet.txtboxname.Caption.empty()) return;
    sheet.txtboxname.Visible = false;
    sheet.txtboxname.Caption.clear();
}

void mnuOptionsBubbleShow_Click(Worksheet& sheet) {
    auto& checked = sheet.mnuOptionsBubbleShow.Checked;
    checked = !checked;
    frmPrefs.chkShowBubbles.Value = checked ? 1 : 0;
}

}  // namespace quorvane
