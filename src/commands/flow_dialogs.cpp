// SPDX-License-Identifier: MIT
#include "commands/flow_dialogs.h"

#include <cstdio>

#include "commands/read_fields.h"
#include "diagram/comment_form.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"

namespace quorvane {

ForLoopForm frmForLoop;
IfForm frmIf;
SubsForm frmSubs;
PauseForm frmPause;
UserInputForm frmUserInput;

namespace {

constexpr std::string_view ElseWord = "else";
using Fields = std::vector<std::string>;

std::string TextOf(const Box* former, const std::string& otherwise = "") {
    return former ? former->BoxText : otherwise;
}

}  // namespace

Form frmForLoop_Table() {
    return {.Name = "frmForLoop",
            .State = &frmForLoop.Form,
            .Controls = {{"txtFrom", &frmForLoop.txtFrom},
                         {"txtUntil", &frmForLoop.txtUntil},
                         {"txtInc", &frmForLoop.txtInc},
                         {"cmd", &frmForLoop.cmd, HideForm<frmForLoop>}}};
}

void CompleteFor(int box, const Box* former) {
    LoadForm(frmForLoop);
    if (const auto fields = former ? ReadFields(former->BoxText, "{}:{}:{},") : Fields();
        !fields.empty()) {
        frmForLoop.txtFrom.Text = fields[0];
        frmForLoop.txtInc.Text = fields[1];
        frmForLoop.txtUntil.Text = fields[2];
    }
    desktop->ShowModal("frmForLoop");
    Boxes[box].BoxText = frmForLoop.txtFrom.Text + ":" + frmForLoop.txtInc.Text + ":" +
                         frmForLoop.txtUntil.Text + ",";
    frmForLoop = {};
}

Form frmIf_Table() {
    return {.Name = "frmIf",
            .State = &frmIf.Form,
            .Controls = {{"txtCondition", &frmIf.txtCondition},
                         {"chkelse", &frmIf.chkelse},
                         {"cmdOK", &frmIf.cmdOK, HideForm<frmIf>}}};
}

void CompleteIf(int box, const Box* former) {
    LoadForm(frmIf);
    if (former) {
        const bool hasElse = former->BoxText.starts_with(ElseWord);
        frmIf.chkelse.Value = hasElse ? 1 : 0;
        frmIf.txtCondition.Text = former->BoxText.substr(hasElse ? ElseWord.size() : 0);
    }
    desktop->ShowModal("frmIf");
    Boxes[box].BoxText = frmIf.chkelse.Value ? ElseWord : "";
    Boxes[box].BoxText += frmIf.txtCondition.Text;
    frmIf = {};
}

void CompleteWhile(int box, const Box* former) {
    Boxes[box].BoxText =
        AskForLine("Enter the condition in Matlab Script", "Quorvane", TextOf(former));
}

void CompletePickup(int box, const Box* former) {
    Boxes[box].BoxText = AskForLine("Please enter the variable to pick up", "Quorvane",
                                    TextOf(former, BoxName(box)));
}

namespace {

/// The type of the box at which a subroutine begins: the name, a blank and this word.
constexpr std::string_view SubroutineWord = "Subroutine";

}  // namespace

void frmSubs_Load() {
    frmSubs = {};
    frmSubs.Form = {.Caption = "Current Subs", .Loaded = true};
    for (int i = 1; i < NextBox; ++i) {
        const auto& type = Boxes[i].BoxType;
        if (type.ends_with(SubroutineWord) && type != "End Subroutine") {
            frmSubs.available_subs.List.push_back(type);
        }
    }
}

Form frmSubs_Table() {
    return {.Name = "frmSubs",
            .State = &frmSubs.Form,
            .Controls = {{"available_subs", &frmSubs.available_subs},
                         {"cmdOK", &frmSubs.cmdOK, HideForm<frmSubs>}}};
}

std::string AskInsertedSubroutine(const Box* former) {
    frmSubs_Load();
    const auto inserted = former ? ReadFields(former->BoxType, "Insert Subroutine {}") : Fields();
    if (!inserted.empty()) {
        frmSubs.available_subs.Text = inserted[0] + " " + std::string(SubroutineWord);
    }
    desktop->ShowModal("frmSubs");
    auto name = frmSubs.available_subs.Text;
    if (name.ends_with(SubroutineWord)) {
        const auto tail = SubroutineWord.size() + 1;
        name.resize(name.size() < tail ? 0 : name.size() - tail);
    }
    frmSubs = {};
    return "Insert Subroutine " + name;
}

std::string AskStartedSubroutine(const Box* former) {
    const auto name = former ? ReadFields(former->BoxType, "{} Subroutine") : Fields{""};
    return AskForLine("What is the subroutine's name ?", "Quorvane", name.empty() ? "" : name[0]) +
           " Subroutine";
}

namespace {

/// The shortest usual form of a number of seconds: up to 15 digits, no trailing zeros.
std::string SecondsText(double seconds) {
    char text[32];
    std::snprintf(text, sizeof text, "%.15G", seconds);
    return text;
}

/// The seconds that stand in the dialog; 0 for a text that is no number.
double Seconds() {
    return AttemptValue(ErrorPolicy::Ignore, 0.0,
                        [] { return TextToNumber(frmPause.lblSecs.Text); });
}

}  // namespace

void frmPause_lblSecs_Change() {
    const bool number = Attempt([] { TextToNumber(frmPause.lblSecs.Text); });
    if (!number || Seconds() < 0) frmPause.lblSecs.Text = "0";
}

void frmPause_spn_Change() {
    const int steps = frmPause.spn.Value;
    frmPause.spn.Value = 0;
    if (steps == 0) return;
    frmPause.lblSecs.Text = SecondsText(Seconds() - steps);
    frmPause_lblSecs_Change();
}

void frmPause_chkNoNumber_Click() {
    const bool counted = frmPause.chkNoNumber.Value == 0;
    frmPause.spn.Enabled = counted;
    frmPause.lblSecs.Enabled = counted;
}

Form frmPause_Table() {
    return {.Name = "frmPause",
            .State = &frmPause.Form,
            .Controls = {{"lblSecs", &frmPause.lblSecs, frmPause_lblSecs_Change, TakesNumber},
                         {"spn", &frmPause.spn, frmPause_spn_Change},
                         {"chkNoNumber", &frmPause.chkNoNumber, frmPause_chkNoNumber_Click},
                         {"cmdOK", &frmPause.cmdOK, HideForm<frmPause>}}};
}

void CompletePause(int box, const Box* former) {
    LoadForm(frmPause);
    if (former && former->BoxText.empty()) {
        frmPause.chkNoNumber.Value = 1;
        frmPause_chkNoNumber_Click();
    } else if (former) {
        frmPause.lblSecs.Text = former->BoxText;
    }
    desktop->ShowModal("frmPause");
    Boxes[box].BoxText = frmPause.chkNoNumber.Value ? "" : frmPause.lblSecs.Text;
    frmPause = {};
}

Form frmUserInput_Table() {
    return {.Name = "frmUserInput",
            .State = &frmUserInput.Form,
            .Controls = {{"txtPrompt", &frmUserInput.txtPrompt},
                         {"cmdOK", &frmUserInput.cmdOK, HideForm<frmUserInput>}}};
}

void CompleteUserInput(int box, const Box* former) {
    LoadForm(frmUserInput);
    frmUserInput.txtPrompt.Text = TextOf(former);
    desktop->ShowModal("frmUserInput");
    Boxes[box].BoxText = frmUserInput.txtPrompt.Text;
    frmUserInput = {};
}

void CompleteComment(int box, const Box* former) {
    LoadForm(frmComment);
    frmComment.txtComment.Text = TextOf(former);
    desktop->ShowModal("frmComment");
    Boxes[box].BoxText = frmComment.txtComment.Text;
    frmComment = {};
}

}  // namespace quorvane
