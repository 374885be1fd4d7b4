// SPDX-License-Identifier: MIT
#include "commands/run_command.h"

#include <string>

#include "catalogue/box_commands.h"
#include "commands/flow_dialogs.h"
#include "commands/function_dialogs.h"
#include "commands/matrix_dialogs.h"
#include "commands/option_list_dialog.h"
#include "commands/plot_box.h"
#include "diagram/box_table.h"
#include "diagram/connections.h"
#include "diagram/placement.h"
#include "platform/desktop.h"

namespace quorvane {

namespace {

using enum IconSource;

/// What a command asks that has more than an option list.
struct Questions {
    std::string_view Control;
    /// Runs the dialog for the box of this number.
    void (*Complete)(int box, const Box* former) = nullptr;
    /// Asks for the type before there is a box.
    std::string (*AskType)(const Box* former) = nullptr;
};
constexpr Questions questionsOfCommands[] = {
    {"mnuInputUser", CompleteUserInput},
    {"mnuInputPause", CompletePause},
    {"mnuOutputPlot", CompletePlot},
    {"mnuOperatorsFunc", CompleteFunction},
    {"mnuMatMakeVec", CompleteMakeVector},
    {"mnuMatMake", CompleteMakeMat},
    {"mnuMatSplit", CompleteSplit},
    {"mnuLoopFor", CompleteFor},
    {"mnuLoopWhile", CompleteWhile},
    {"mnuCondIf", CompleteIf},
    {"mnuSpecMatlab", CompleteMatlabCommand},
    {"mnuSpecComment", CompleteComment},
    {"mnuSpecPickup", CompletePickup},
    {"mnuSpecSubInsert", nullptr, AskInsertedSubroutine},
    {"mnuSpecSubStart", nullptr, AskStartedSubroutine},
};

Questions QuestionsOf(std::string_view control) {
    for (const auto& row : questionsOfCommands) {
        if (row.Control == control) return row;
    }
    return {};
}

void Lock(const BoxCommand& command, Box& box) {
    for (int i = command.Entries + 1; i <= 3; ++i) box.BoxIn[i] = LockedSlot;
    for (int i = command.Exits + 1; i <= 5; ++i) box.BoxOut[i] = LockedSlot;
}

std::string IconKey(const BoxCommand& command, const Box& box) {
    switch (command.Icon) {
        case Text: return box.BoxText;
        case TextOrDiag: return box.BoxText.starts_with("Diag") ? "Diag" : box.BoxText;
        case PlotKind: return box.BoxText.substr(0, box.BoxText.find(';'));
        case Type: break;
    }
    return box.BoxType;
}

/// Nothing happens for a worksheet without a document, or without this box.
void SetBoxPicture(const Worksheet& sheet, int box, const std::string& key) {
    Attempt([&] { GiveIcon(DocumentWindow(DocumentNumber(sheet)).box[box], key); });
}

}  // namespace

std::string TypeForBox(const BoxCommand& command, const Box* former) {
    const auto questions = QuestionsOf(command.Control);
    return questions.AskType ? questions.AskType(former) : std::string(command.BoxType);
}

std::string CompleteBox(const Worksheet& sheet, const BoxCommand& command, int number,
                        const std::string& type, const Box* former) {
    Box& box = Boxes[number];
    if (!type.empty()) box.BoxType = type;
    if (command.BoxText) box.BoxText = command.BoxText;
    Lock(command, box);
    bool picked = true;
    if (const auto* list = FindOptionList(command.Dialog)) {
        picked = RunOptionList(*list, box, former);
    } else if (const auto complete = QuestionsOf(command.Control).Complete) {
        complete(number, former);
    }
    if (!command.Dialog.empty()) {
        Attempt([&] { desktop->FocusWorksheet(DocumentNumber(sheet)); });
    }
    return picked ? IconKey(command, box) : "";
}

void RunBoxCommand(Worksheet& sheet, std::string_view control) {
    const auto* command = FindBoxCommand(control);
    if (!command) return;
    const auto type = TypeForBox(*command, nullptr);
    AddBox(sheet);
    const int number = NextBox - 1;
    // With a pending arrow and no box at all, arming takes back a record that isn't there.
    if (number < 0) return;
    const auto key = CompleteBox(sheet, *command, number, type, nullptr);
    if (!key.empty()) SetBoxPicture(sheet, number, key);
}

void cmdEventFire_Click(Worksheet& sheet) {
    const auto control = ToolboxCommand(sheet.cmdEventFire);
    if (control == "mnuArrow") {
        mnuArrow_Click(sheet);
    } else if (control == "mnuSpecSub") {
        desktop->PopupMenu(control, DocumentNumber(sheet));
    } else {
        RunBoxCommand(sheet, control);
    }
}

}  // namespace quorvane
