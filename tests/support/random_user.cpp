// SPDX-License-Identifier: MIT
#include "support/random_user.h"

#include <algorithm>
#include <filesystem>

#include "catalogue/box_commands.h"
#include "commands/run_command.h"
#include "commands/worksheet_events.h"
#include "diagram/box_table.h"
#include "diagram/connections.h"
#include "diagram/layout.h"
#include "diagram/selection.h"
#include "files/close_document.h"
#include "files/document_file.h"
#include "shell/forms.h"

namespace quorvane::testing {

namespace {

const char* const texts[] = {"1", "box1", "x", "box2>box1", "-.5", ""};
const char* const files[] = {"a.qvm", "b.qvm"};

}  // namespace

Answer RandomUser::MsgBox(const Message& message) {
    // A closing that is cancelled gives its document's number away, by design.
    return message.Choice == Buttons::YesNoCancel && Any(2) == 0 ? Answer::No : Answer::Yes;
}

std::string RandomUser::InputBox(const std::string&, const std::string&, const std::string&) {
    return texts[Any(6)];
}

std::string RandomUser::OpenFileDialog(const std::string&, const std::string&) {
    std::string file = files[Any(2)];
    if (!std::filesystem::exists(file)) throw RuntimeError(32755);
    return file;
}

std::string RandomUser::SaveFileDialog(const std::string&, const std::string&) {
    return files[Any(2)];
}

std::int32_t RandomUser::ColorDialog(std::int32_t) { return Any(1 << 24); }

void RandomUser::ShowModal(std::string_view name) {
    const auto* form = FindForm(name);
    if (!form) return;
    for (int i = 0; i < 6; ++i) {
        const auto& row =
            form->Controls[static_cast<std::size_t>(Any(static_cast<int>(form->Controls.size())))];
        if (auto* const* text = std::get_if<TextBox*>(&row.Record)) {
            if (!(*text)->Visible || !(*text)->Enabled) continue;
            (*text)->Text = texts[Any(6)];
        } else if (auto* const* check = std::get_if<CheckBox*>(&row.Record)) {
            (*check)->Value = 1 - (*check)->Value;
        } else if (!std::holds_alternative<OptionButton*>(row.Record) &&
                   !row.Name.starts_with("cmdColor")) {
            continue;
        }
        if (row.Event) row.Event();
    }
    for (const auto& row : form->Controls) {
        if (row.Name == "cmdOK" && row.Event) row.Event();
    }
}

std::string RandomUser::Operate() {
    std::vector<int> open;
    ForEachOpenDocument([&](Worksheet&, int number) { open.push_back(number); });
    if (open.empty() || (open.size() < 3 && Any(60) == 0)) return NewDocument(), "new";
    return OperateOn(open[static_cast<std::size_t>(Any(static_cast<int>(open.size())))]);
}

/// A group that is moved to another worksheet ends the program.
bool WouldEndTheProgram(int document) {
    for (int i = 1; i <= SelectedBoxes.UpperBound(); ++i) {
        if (EditMode == 5 && BoxOrFree(SelectedBoxes[i]).BoxDocument != document) return true;
    }
    return false;
}

/// A command now would write over boxes that are there.
bool CommandCountsNoBox() { return EditMode == 0 || (EditMode >= 3 && EditMode <= 5); }

/// The copy of a box by itself names the model's peers, which don't know of it.
bool CopyHasArrows(const Box& box) {
    return EditMode == 6 && (*std::max_element(box.BoxIn.begin(), box.BoxIn.end()) > 0 ||
                             *std::max_element(box.BoxOut.begin(), box.BoxOut.end()) > 0);
}

/// Breaking one of two arrows from the same box takes both off there, and leaves one here.
bool IsFedTwice(const Box& box) {
    const auto& in = box.BoxIn;
    return (in[1] > 0 && (in[1] == in[2] || in[1] == in[3])) || (in[2] > 0 && in[2] == in[3]);
}

std::string RandomUser::OperateOn(int document) {
    auto& sheet = *Documents[document];
    const double x = 15.0 * Any(600), y = 15.0 * Any(450);
    const int box = NextBox > 1 ? 1 + Any(NextBox - 1) : 0;
    const bool isOwn = sheet.box.Has(box) && box > 0;
    const auto click = [&] {
        main_MouseDown(sheet, LeftButton, 0, x, y);
        main_MouseUp(sheet, LeftButton, 0, x, y);
    };
    switch (Any(isOwn ? 24 : 10)) {
        case 0:
        case 1: {
            if (Careful && CommandCountsNoBox()) return "nothing";
            const auto& row =
                boxCommands[static_cast<std::size_t>(Any(static_cast<int>(boxCommands.size())))];
            return RunBoxCommand(sheet, row.Control), "command " + std::string(row.Control);
        }
        case 2:
        case 3:
        case 4: return WouldEndTheProgram(document) ? void() : click(), "click";
        case 5:
            main_MouseMove(sheet, LeftButton, 0, x, y);
            main_MouseMove(sheet, LeftButton, 0, 15.0 * Any(600), 15.0 * Any(450));
            return EndSelection(sheet), "band";
        case 6: return Any(2) ? mnuEditMove_Click(sheet) : mnueditcopy_Click(sheet), "move or copy";
        case 7: return Any(3) ? scrH_Change(sheet) : mnuEditRedraw_Click(sheet), "redraw";
        case 8:
            sheet.scrH.Value = static_cast<std::int16_t>(Any(4000));
            return scrH_Change(sheet), "scroll";
        case 9:
            switch (Any(12)) {
                case 0: return mnuFileClose_Click(sheet), "close";
                case 1: return SaveDocument(static_cast<std::int16_t>(document), 1), "save";
                case 2: return NextBox < 200 ? LoadDocument("") : void(), "open";
                case 3: return mnuEditLineColor_Click(sheet), "line colour";
                case 4: return mnuMultipleArrows_Click(sheet), "multiple arrows";
                default: return mnuEditClear_Click(sheet), "clear";
            }
        case 10:
            if (Careful && IsFedTwice(Boxes[box])) return "nothing";
            return box_MouseDown(sheet, box, MiddleButton, 0), "information";
        case 11: return box_MouseDown(sheet, box, RightButton, 0), "drag mode";
        case 12: return main_DragDrop(sheet, box, x, y), "drop";
        case 13: return BeginArrow(), "arrow";
        default:
            if (Careful && CopyHasArrows(Boxes[box])) return "nothing";
            return box_Click(sheet, box), "click a box";
    }
}

}  // namespace quorvane::testing
