// SPDX-License-Identifier: MIT
#include "workbench/option_lines.h"

#include <algorithm>
#include <utility>

#include "catalogue/box_commands.h"
#include "catalogue/engine_refusals.h"
#include "check/check_rows.h"
#include "commands/option_list_dialog.h"
#include "diagram/box_table.h"
#include "generator/emission_chain.h"
#include "platform/numbers.h"
#include "platform/quiet_desktop.h"

namespace quorvane {

namespace {

/// Stands for a number that isn't typed yet.
constexpr std::string_view AnyNumber = "1";

/// Leaves the dialog's field as the open dialog of the list has it.
struct FieldDesktop : QuietDesktop {
    OptionListForm Open = frmOptionList;

    void ShowModal(std::string_view dialog) override {
        if (Open.List && Open.List->Dialog == dialog) {
            frmOptionList.Field.Text = Open.Field.Text;
            frmOptionList.chkElement.Value = Open.chkElement.Value;
        }
        auto& text = frmOptionList.Field.Text;
        if (frmOptionList.List->Field.Number && text.empty()) text = AnyNumber;
    }
};

/// Restores at the end of the scope what making an option's line changes. In between its dialog
/// answers by itself.
class KeptRecords {
public:
    explicit KeptRecords(const ListOption& option) {
        desktop = &answers_;
        pickedBeforehand = &option;
    }
    ~KeptRecords() {
        desktop = desktop_;
        pickedBeforehand = picked_;
        frmOptionList = std::move(answers_.Open);
        Boxes = std::move(boxes_);
    }
    KeptRecords(const KeptRecords&) = delete;
    KeptRecords& operator=(const KeptRecords&) = delete;

private:
    FieldDesktop answers_;
    Desktop* desktop_ = desktop;
    const ListOption* picked_ = pickedBeforehand;
    decltype(Boxes) boxes_ = Boxes;
};

/// The option that OK takes with this one selected: a button outside the array leaves the one that
/// was clicked before it.
const ListOption& TakenOption(const OptionList& list, const ListOption& option) {
    if (option.Index != NoIndex || !option.BoxType.empty()) return option;
    const bool isOpen = frmOptionList.List == &list;
    const std::string_view index = isOpen ? frmOptionList.txtOpn : list.FirstIndex;
    const auto taken =
        std::find_if(list.Options.begin(), list.Options.end(), [&](const ListOption& other) {
            return other.Index != NoIndex && NumberText(other.Index) == index;
        });
    return taken == list.Options.end() ? option : *taken;
}

/// The entries that get an arrow: those that the box's line needs where they are several, else all
/// open ones. A box may have more entries than its function takes.
std::string WiredEntries(const Box& box) {
    std::string open;
    for (const char entry : {'1', '2', '3'}) {
        if (box.BoxIn[entry - '0'] != LockedSlot) open += entry;
    }
    auto needed = NeededEntries(box);
    std::erase_if(needed, [&](char entry) { return open.find(entry) == std::string::npos; });
    return needed.size() > 1 ? needed : open;
}

}  // namespace

std::string LineOfOption(const OptionList& list, const ListOption& option) {
    const KeptRecords kept(TakenOption(list, option));
    Box box;
    if (const auto* command = FindCommandOfDialog(list.Dialog)) box.BoxType = command->BoxType;
    RunOptionList(list, box, nullptr);
    std::int16_t number = 1;
    for (const char entry : WiredEntries(box)) {
        Boxes[number] = {};
        MarkDone(Boxes[number]);
        box.BoxIn[entry - '0'] = number++;
    }
    Boxes[number] = box;
    Run run;
    EmitBox(run, number, 0);
    auto& line = run.scriptText;
    if (line.ends_with("\r\n")) line.resize(line.size() - 2);
    return std::move(line);
}

std::string TipOfOption(const OptionList& list, const ListOption& option) {
    auto tip = LineOfOption(list, option);
    if (tip.empty()) return "This box writes no line.";
    const auto refusal = EngineRefusal(list.Dialog, OptionName(list, TakenOption(list, option)));
    if (refusal.empty()) return tip;
    const bool lacks = refusal.ends_with("undefined");
    tip += lacks ? "\r\nGNU Octave doesn't know this: " : "\r\nGNU Octave can't run this: ";
    return tip + std::string(refusal);
}

}  // namespace quorvane
