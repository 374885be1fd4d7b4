// SPDX-License-Identifier: MIT
#include "commands/option_list_dialog.h"

#include <algorithm>

#include "commands/read_fields.h"
#include "platform/desktop.h"
#include "platform/numbers.h"

namespace quorvane {

OptionListForm frmOptionList;
const ListOption* pickedBeforehand = nullptr;

namespace {

/// The option of frmConst that takes its constant from the field.
constexpr std::string_view ConstantIndex = "5";
/// Where the text of an option takes in the field.
constexpr std::string_view FieldHole = "{field}";

int RowOf(const OptionList& list, std::string_view index) {
    int row = 0;
    for (const auto& option : list.Options) {
        if (option.Index != NoIndex && NumberText(option.Index) == index) return row;
        ++row;
    }
    return -1;
}

/// The option that was picked: by the remembered index, or in frmBasic by the first button that is
/// on.
const ListOption* PickedOption(const OptionList& list) {
    int row = RowOf(list, frmOptionList.txtOpn);
    if (list.Dialog == "frmBasic") {
        const auto& options = frmOptionList.Options;
        row =
            static_cast<int>(std::find_if(options.begin(), options.end(),
                                          [](const OptionButton& button) { return button.Value; }) -
                             options.begin());
    }
    if (row < 0 || row >= static_cast<int>(list.Options.size())) return nullptr;
    return &list.Options[static_cast<std::size_t>(row)];
}

std::string FieldText(const ListField& field) {
    if (field.What == ListField::Kind::Check) return frmOptionList.chkElement.Value ? "." : "";
    return frmOptionList.Field.Text;
}

bool IsOpen(std::string_view entries, int entry) {
    return entries.find(static_cast<char>('0' + entry)) != std::string_view::npos;
}

/// Locks or opens the entries in which an option differs from its list; the others stay as they
/// are.
void WriteEntries(const OptionList& list, const ListOption& option, Box& box) {
    if (!option.Entries) return;
    for (int i = 1; i <= 3; ++i) {
        const bool open = IsOpen(option.Entries, i);
        if (open != IsOpen(list.Entries, i)) box.BoxIn[i] = open ? std::int16_t{0} : LockedSlot;
    }
}

void WriteText(const OptionList& list, const ListOption& option, Box& box) {
    if (!option.BoxText) return;
    std::string text = option.BoxText;
    const auto place = text.find(FieldHole);
    if (place != std::string::npos) {
        const auto field = FieldText(list.Field);
        if (field.empty() && list.Field.SkipEmpty) return;
        text.replace(place, FieldHole.size(), field);
    }
    box.BoxText = text;
}

}  // namespace

void frmOptionList_Load(const OptionList& list) {
    frmOptionList = {};
    frmOptionList.List = &list;
    frmOptionList.Form = {.Caption = std::string(list.Caption), .Loaded = true};
    int row = 0;
    for (const auto& option : list.Options) {
        auto& button = frmOptionList.Options[row++];
        button.Caption = option.Caption;
        // The option that OK would take is shown as selected.
        button.Value = option.Index != NoIndex && NumberText(option.Index) == list.FirstIndex;
    }
    frmOptionList.txtOpn = list.FirstIndex;
    frmOptionList.Field.Text = list.Field.Default;
    frmOptionList.cmdOK.Caption = "OK";
}

void frmOptionList_Option_Click(int row) {
    for (auto& button : frmOptionList.Options) button.Value = false;
    frmOptionList.Options[row].Value = true;
    const int index = frmOptionList.List->Options[static_cast<std::size_t>(row)].Index;
    if (index != NoIndex) frmOptionList.txtOpn = NumberText(index);
}

void frmOptionList_Field_Change() {
    if (frmOptionList.List->Dialog != "frmConst") return;
    frmOptionList_Option_Click(RowOf(*frmOptionList.List, ConstantIndex));
    if (!IsNumeric(frmOptionList.Field.Text)) frmOptionList.Field.Text = "";
}

void frmOptionList_cmdOK_Click() {
    if (frmOptionList.List->Dialog == "frmConst" && frmOptionList.txtOpn == ConstantIndex &&
        frmOptionList.Field.Text.empty()) {
        Tell("Please enter a value for the constant.", Icon::Exclamation);
        return;
    }
    frmOptionList.Form.Visible = false;
}

Form OptionList_Table(const OptionList& list) {
    Form form;
    form.Name = list.Dialog;
    form.State = &frmOptionList.Form;
    int row = 0;
    for (const auto& option : list.Options) {
        const auto name = OptionName(list, option);
        if (!name.empty()) {
            form.Controls.push_back(
                {name, &frmOptionList.Options[row], [row] { frmOptionList_Option_Click(row); }});
        }
        ++row;
    }
    const std::string field(list.Field.Control);
    if (list.Field.What == ListField::Kind::Text) {
        form.Controls.push_back(
            {field, &frmOptionList.Field, frmOptionList_Field_Change, list.Field.Number});
    } else if (list.Field.What == ListField::Kind::Check) {
        form.Controls.push_back({field, &frmOptionList.chkElement});
    }
    form.Controls.push_back({"cmdOK", &frmOptionList.cmdOK, frmOptionList_cmdOK_Click});
    return form;
}

namespace {

/// The field's text of a box that this option has made; false for another option's box.
bool ReadOption(const ListOption& option, const Box& box, std::string& field) {
    if (!option.BoxType.empty() && option.BoxType != box.BoxType) return false;
    std::string pattern = option.BoxText ? option.BoxText : "";
    const auto hole = pattern.find(FieldHole);
    if (hole == std::string::npos) return pattern == box.BoxText;
    pattern.replace(hole, FieldHole.size(), "{}");
    const auto fields = ReadFields(box.BoxText, pattern);
    if (!fields.empty()) field = fields[0];
    return !fields.empty();
}

/// Selects the option that made the box, with what stood in the field.
void ShowOption(const OptionList& list, const Box& former) {
    int row = 0;
    for (const auto& option : list.Options) {
        std::string field = frmOptionList.Field.Text;
        if (ReadOption(option, former, field)) {
            frmOptionList_Option_Click(row);
            frmOptionList.Field.Text = field;
            frmOptionList.chkElement.Value = former.BoxText == "." ? 1 : 0;
            return;
        }
        ++row;
    }
}

}  // namespace

namespace {

/// Lets the user pick an option, unless one was picked beforehand that needs nothing more.
void ShowList(const OptionList& list) {
    bool asks = true;
    for (int row = 0; row < static_cast<int>(list.Options.size()); ++row) {
        const auto& option = list.Options[static_cast<std::size_t>(row)];
        if (&option != pickedBeforehand) continue;
        frmOptionList_Option_Click(row);
        asks =
            option.BoxText && std::string_view(option.BoxText).find(FieldHole) != std::string::npos;
    }
    if (asks) desktop->ShowModal(list.Dialog);
}

}  // namespace

bool RunOptionList(const OptionList& list, Box& box, const Box* former) {
    for (int i = 1; i <= 3; ++i) {
        if (!IsOpen(list.Entries, i)) box.BoxIn[i] = LockedSlot;
    }
    frmOptionList_Load(list);
    if (former) ShowOption(list, *former);
    ShowList(list);
    const auto* option = PickedOption(list);
    if (option) {
        if (!option->BoxType.empty()) box.BoxType = option->BoxType;
        WriteText(list, *option, box);
        WriteEntries(list, *option, box);
    } else if (list.Field.What == ListField::Kind::Check) {
        box.BoxText = FieldText(list.Field);
    }
    frmOptionList = {};
    return option != nullptr;
}

}  // namespace quorvane
