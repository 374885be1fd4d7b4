// SPDX-License-Identifier: MIT
#include "commands/function_dialogs.h"

#include <string>

#include "commands/command_browser_door.h"
#include "commands/read_fields.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace quorvane {

MatlabFunctionForm frmMatlabFunction;
FuncForm frmFunc;

void (*OpenCommandBrowser)(std::string_view caller) = [](std::string_view) {};

namespace {

constexpr const char* MatlabFunctionCaption = "Matlab Function";
constexpr const char* FuncCaption = "Function Editor";

void BrowseCommands(FormState& form, const char* caption, std::string_view caller) {
    form.Caption = "Loading M-file panel";
    OpenCommandBrowser(caller);
    form.Caption = caption;
}

std::string Element(const char* array, int index) {
    return std::string(array) + "(" + NumberText(index) + ")";
}

}  // namespace

void frmMatlabFunction_Load() {
    frmMatlabFunction = {};
    frmMatlabFunction.Form = {.Caption = MatlabFunctionCaption, .Loaded = true};
}

void frmMatlabFunction_cmdShowFunc_Click() {
    BrowseCommands(frmMatlabFunction.Form, MatlabFunctionCaption, "mat");
}

Form frmMatlabFunction_Table() {
    auto& record = frmMatlabFunction;
    Form form{
        .Name = "frmMatlabFunction",
        .State = &record.Form,
        .Controls = {{"txtFunc", &record.txtFunc},
                     {"cmdShowFunc", &record.cmdShowFunc, frmMatlabFunction_cmdShowFunc_Click},
                     {"cmdOK", &record.cmdOK, HideForm<frmMatlabFunction>}}};
    for (int i = 1; i <= 3; ++i) {
        form.Controls.push_back({Element("chkInputs", i), &record.chkInputs[i]});
    }
    for (int i = 1; i <= 5; ++i) {
        form.Controls.push_back({Element("chkOutputs", i), &record.chkOutputs[i]});
    }
    return form;
}

namespace {

constexpr std::string_view OutputWord = "Output=";

void ShowMatlabCommand(const Box& former) {
    for (int i = 1; i <= 3; ++i) {
        frmMatlabFunction.chkInputs[i].Value = former.BoxIn[i] == LockedSlot ? 0 : 1;
    }
    for (int i = 1; i <= 5; ++i) {
        frmMatlabFunction.chkOutputs[i].Value = former.BoxOut[i] == LockedSlot ? 0 : 1;
    }
    if (former.BoxText.starts_with(OutputWord)) {
        frmMatlabFunction.txtFunc.Text = former.BoxText.substr(OutputWord.size());
    }
}

}  // namespace

void CompleteMatlabCommand(int box, const Box* former) {
    frmMatlabFunction_Load();
    if (former) ShowMatlabCommand(*former);
    desktop->ShowModal("frmMatlabFunction");
    const auto slot = [](const CheckBox& tick) {
        return tick.Value ? std::int16_t{0} : LockedSlot;
    };
    Box& record = Boxes[box];
    for (int i = 1; i <= 3; ++i) record.BoxIn[i] = slot(frmMatlabFunction.chkInputs[i]);
    for (int i = 1; i <= 5; ++i) record.BoxOut[i] = slot(frmMatlabFunction.chkOutputs[i]);
    record.BoxText = OutputWord;
    record.BoxText += LowerCase(frmMatlabFunction.txtFunc.Text);
    frmMatlabFunction = {};
}

void frmFunc_Load() {
    frmFunc = {};
    frmFunc.Form = {.Caption = FuncCaption, .Loaded = true};
}

void frmFunc_opnInput_Click(int Index) {
    auto& tick = frmFunc.opnInput[Index];
    if (!tick.Value) return;
    frmFunc.txtFunc.Text += "Input" + NumberText(Index);
    tick.Value = 0;
}

namespace {

/// Typing a row or a column selects the output of a single cell.
void CellChanged(TextBox& field) {
    frmFunc.chkcell.Value = 1;
    if (!IsNumeric(field.Text)) field.Text = "";
}

}  // namespace

void frmFunc_txtRow_Change() { CellChanged(frmFunc.txtRow); }

void frmFunc_txtCol_Change() { CellChanged(frmFunc.txtCol); }

void frmFunc_cmdMatlab_Click() { BrowseCommands(frmFunc.Form, FuncCaption, "func"); }

void frmFunc_cmdOK_Click() {
    if (frmFunc.chkcell.Value && (frmFunc.txtRow.Text.empty() || frmFunc.txtCol.Text.empty())) {
        Tell("Please enter which cell to change.", Icon::Exclamation);
    }
    frmFunc.Form.Visible = false;
}

Form frmFunc_Table() {
    auto& record = frmFunc;
    Form form{.Name = "frmFunc",
              .State = &record.Form,
              .Controls = {{"txtoutput", &record.txtoutput},
                           {"txtFunc", &record.txtFunc},
                           {"chkcell", &record.chkcell},
                           {"txtRow", &record.txtRow, frmFunc_txtRow_Change, TakesNumber},
                           {"txtCol", &record.txtCol, frmFunc_txtCol_Change, TakesNumber},
                           {"cmdMatlab", &record.cmdMatlab, frmFunc_cmdMatlab_Click},
                           {"cmdOK", &record.cmdOK, frmFunc_cmdOK_Click}}};
    for (int i = 1; i <= 3; ++i) {
        form.Controls.push_back(
            {Element("opnInput", i), &record.opnInput[i], [i] { frmFunc_opnInput_Click(i); }});
    }
    return form;
}

namespace {

/// Locks the inputs that the formula doesn't name; true when it names none.
bool LockUnusedInputs(Box& box) {
    bool none = true;
    for (int i = 1; i <= 3; ++i) {
        const bool used = frmFunc.txtFunc.Text.find("Input" + NumberText(i)) != std::string::npos;
        if (used) {
            none = false;
        } else {
            box.BoxIn[i] = LockedSlot;
        }
    }
    return none;
}

}  // namespace

namespace {

/// The statement that opens entry 1 for a formula without inputs is no part of the formula. A text
/// that was saved and loaded has ";;" for the line end.
std::string WithoutFirstInput(const std::string& text, const std::string& name) {
    for (const char* end : {"\r\n", ";;"}) {
        const auto statement = name + "=Input1;" + end;
        if (text.starts_with(statement)) return text.substr(statement.size());
    }
    return text;
}

void ShowFunction(const std::string& text, const std::string& name) {
    const auto formula = WithoutFirstInput(text, name);
    const auto equals = formula.find('=');
    if (equals == std::string::npos || !formula.ends_with(';')) return;
    const auto output = formula.substr(0, equals);
    const auto cell = ReadFields(output, "{}({},{})");
    frmFunc.txtoutput.Text = cell.empty() ? output : cell[0];
    frmFunc.txtRow.Text = cell.empty() ? "1" : cell[1];
    frmFunc.txtCol.Text = cell.empty() ? "1" : cell[2];
    frmFunc.chkcell.Value = cell.empty() ? 0 : 1;
    frmFunc.txtFunc.Text = formula.substr(equals + 1, formula.size() - equals - 2);
}

}  // namespace

void CompleteFunction(int box, const Box* former) {
    frmFunc_Load();
    // The dialog starts with a cell selected: setting its row and column counts as a change.
    frmFunc.txtRow.Text = "1";
    frmFunc_txtRow_Change();
    frmFunc.txtCol.Text = "1";
    frmFunc_txtCol_Change();
    if (former) ShowFunction(former->BoxText, BoxName(box));
    desktop->ShowModal("frmFunc");
    Box& record = Boxes[box];
    record.BoxText = "";
    if (LockUnusedInputs(record)) {
        record.BoxIn[1] = 0;
        record.BoxText = BoxName(box) + "=Input1;\r\n";
    }
    record.BoxText += frmFunc.txtoutput.Text;
    if (frmFunc.chkcell.Value) {
        record.BoxText += "(" + frmFunc.txtRow.Text + "," + frmFunc.txtCol.Text + ")";
    }
    record.BoxText += "=" + frmFunc.txtFunc.Text + ";";
    frmFunc = {};
}

}  // namespace quorvane
