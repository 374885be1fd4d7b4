// SPDX-License-Identifier: MIT
#include "commands/matrix_dialogs.h"

#include "commands/read_fields.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace quorvane {

MakeVectorForm frmMakeVector;
MakeMatForm frmMakeMat;
SplitForm frmSplit;

Form frmMakeVector_Table() {
    return {.Name = "frmMakeVector",
            .State = &frmMakeVector.Form,
            .Controls = {{"txtMin", &frmMakeVector.txtMin},
                         {"txtStep", &frmMakeVector.txtStep},
                         {"txtMax", &frmMakeVector.txtMax},
                         {"cmdOK", &frmMakeVector.cmdOK, HideForm<frmMakeVector>}}};
}

namespace {

using Fields = std::vector<std::string>;

void ShowVector(const Fields& fields) {
    if (fields.empty()) return;
    frmMakeVector.txtMin.Text = fields[0];
    frmMakeVector.txtStep.Text = fields[1];
    frmMakeVector.txtMax.Text = fields[2];
}

}  // namespace

void CompleteMakeVector(int box, const Box* former) {
    LoadForm(frmMakeVector);
    if (former) ShowVector(ReadFields(former->BoxText, "[{}:{}:{}];"));
    desktop->ShowModal("frmMakeVector");
    Boxes[box].BoxText = "[" + frmMakeVector.txtMin.Text + ":" + frmMakeVector.txtStep.Text + ":" +
                         frmMakeVector.txtMax.Text + "];";
    frmMakeVector = {};
}

namespace {

struct Contents {
    const char* Index;
    const char* Caption;
    const char* Word;
};
// Index, caption, function. No button sends the last index.
constexpr Contents contents[] = {
    {"0", "Ones", "ones"},    {"1", "Zeros", "zeros"},
    {"2", "Identity", "eye"}, {"3", "Uniformly Distibuted Random Numbers", "rand"},
    {"4", "", "randn"},
};

}  // namespace

void frmMakeMat_Load() {
    frmMakeMat = {};
    frmMakeMat.Form = {.Caption = "Create a Matrix", .Loaded = true};
    for (int i = 0; i <= 3; ++i) frmMakeMat.opn[i].Caption = contents[i].Caption;
    frmMakeMat.opn[0].Value = true;
}

void frmMakeMat_opn_Click(int Index) { frmMakeMat.txtOpn = NumberText(Index); }

Form frmMakeMat_Table() {
    Form form{.Name = "frmMakeMat",
              .State = &frmMakeMat.Form,
              .Controls = {{"txtRows", &frmMakeMat.txtRows},
                           {"txtCols", &frmMakeMat.txtCols},
                           {"Option1", &frmMakeMat.Option1},
                           {"cmdOK", &frmMakeMat.cmdOK, HideForm<frmMakeMat>}}};
    for (int i = 0; i <= 3; ++i) {
        form.Controls.push_back(
            {"opn(" + NumberText(i) + ")", &frmMakeMat.opn[i], [i] { frmMakeMat_opn_Click(i); }});
    }
    return form;
}

namespace {

/// Size and contents; the contents without a button of their own select Option1.
void ShowMatrix(const std::string& text) {
    for (const auto& row : contents) {
        const auto fields = ReadFields(text, std::string(row.Word) + "({},{})");
        if (fields.empty()) continue;
        frmMakeMat.txtRows.Text = fields[0];
        frmMakeMat.txtCols.Text = fields[1];
        frmMakeMat.txtOpn = row.Index;
        for (int i = 0; i <= 3; ++i) frmMakeMat.opn[i].Value = row.Index == NumberText(i);
        frmMakeMat.Option1.Value = *row.Caption == '\0';
    }
}

}  // namespace

void CompleteMakeMat(int box, const Box* former) {
    frmMakeMat_Load();
    if (former) ShowMatrix(former->BoxText);
    desktop->ShowModal("frmMakeMat");
    auto& text = Boxes[box].BoxText;
    for (const auto& row : contents) {
        if (frmMakeMat.txtOpn == row.Index) text = row.Word;
    }
    text += "(" + frmMakeMat.txtRows.Text + "," + frmMakeMat.txtCols.Text + ")";
    frmMakeMat = {};
}

void frmSplit_Load() {
    frmSplit = {};
    frmSplit.Form = {.Caption = "Matrix Split", .Loaded = true};
    frmSplit.Col.Value = true;
}

void frmSplit_txtTo_Change() {
    if (frmSplit.txtFrom.Text.empty()) frmSplit.txtFrom.Text = "1";
}

Form frmSplit_Table() {
    return {.Name = "frmSplit",
            .State = &frmSplit.Form,
            .Controls = {{"row", &frmSplit.row},
                         {"Col", &frmSplit.Col},
                         {"txtFrom", &frmSplit.txtFrom},
                         {"txtTo", &frmSplit.txtTo, frmSplit_txtTo_Change},
                         {"cmdOK", &frmSplit.cmdOK, HideForm<frmSplit>}}};
}

void CompleteSplit(int box, const Box* former) {
    frmSplit_Load();
    if (const auto fields = former ? ReadFields(former->BoxText, "Col{}:{}") : Fields();
        !fields.empty()) {
        frmSplit.txtFrom.Text = fields[0];
        frmSplit.txtTo.Text = fields[1];
    }
    desktop->ShowModal("frmSplit");
    // A selected option button reads -1 and "Row" is compared with 1, so that every split is by
    // columns. Existing diagrams rely on it.
    constexpr int Selected = -1;
    const int row = frmSplit.row.Value ? Selected : 0;
    std::string text = row == 1 ? "Row" : "Col";
    const auto& from = frmSplit.txtFrom.Text;
    const auto& to = frmSplit.txtTo.Text;
    text += (from.empty() ? "1" : from) + ":";
    text += to.empty() || to == "____" ? "1" : to;
    std::erase(text, '_');
    Boxes[box].BoxText = text;
    frmSplit = {};
}

}  // namespace quorvane
