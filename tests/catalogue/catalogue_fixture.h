// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <stdexcept>
#include <type_traits>
#include <variant>

#include "catalogue/box_commands.h"
#include "commands/change_box.h"
#include "commands/run_command.h"
#include "platform/numbers.h"
#include "shell/forms.h"
#include "support/diagram_fixture.h"
#include "support/table_file.h"

namespace quorvane::testing {

using Texts = std::vector<std::string>;

/// What a control shows: its value, its text or its caption, and "-" behind it while it is
/// disabled.
inline std::string Shown(const ControlRecord& record) {
    const auto shown = [](const auto* control) {
        std::string text;
        if constexpr (requires { control->Value; }) text = NumberText(control->Value);
        if constexpr (requires { control->Text; }) text = control->Text;
        if constexpr (requires { control->Caption; }) text = control->Caption;
        if constexpr (requires { control->Enabled; }) text += control->Enabled ? "" : "-";
        return text;
    };
    return std::visit(shown, record);
}

/// What a user does to a control: types, moves, ticks or clears ("0" finds it cleared), selects.
template <class T>
void Put(T& control, const std::string& value) {
    if constexpr (requires { control.Text; }) control.Text = value;
    if constexpr (std::is_same_v<T, ScrollBar>) control.Value = TextToInt16(value);
    if constexpr (std::is_same_v<T, CheckBox>) control.Value = value == "0" ? 0 : 1 - control.Value;
    if constexpr (std::is_same_v<T, OptionButton>) control.Value = true;
}

/// Plays steps, separated by "|", in a dialog that has come up: "txtFrom=2" types, "spn=-1" moves,
/// "chkGrid", "opn(3)" and "cmdOK" click, "lblSecs?0" looks at what is shown. Tells whether the
/// dialog still stands at the end; throws for a step behind the one that has hidden it.
inline bool Play(std::string_view dialog, const std::string& steps) {
    const Form& form = *FindForm(dialog);
    form.State->Visible = true;
    for (const auto& step : Split(steps, '|')) {
        const auto name = step.substr(0, step.find_first_of("=?"));
        const auto rest = step.substr(std::min(name.size() + 1, step.size()));
        const auto row = std::find_if(form.Controls.begin(), form.Controls.end(),
                                      [&](const ControlRow& known) { return known.Name == name; });
        if (row == form.Controls.end()) throw std::runtime_error("no control for " + step);
        if (!form.State->Visible) throw std::runtime_error("hidden before " + step);
        if (step[name.size()] == '?') {
            EXPECT_EQ(Shown(row->Record), rest) << step;
            continue;
        }
        std::visit([&](auto* control) { Put(*control, rest); }, row->Record);
        if (row->Event) row->Event();
    }
    return form.State->Visible;
}

/// The numbers of the open slots.
std::string Open(const auto& slots) {
    std::string open;
    for (char number = '1'; const auto slot : slots) {
        if (slot == 0) open += number;
        ++number;
    }
    return open;
}

/// A box as the tables write it: type (and mark, which no command writes), text, open entries, open
/// exits.
inline Texts BoxRow(const Box& box) {
    return {box.BoxType + box.BoxMark, box.BoxText, Open(box.BoxIn), Open(box.BoxOut)};
}

struct CatalogueTest : DiagramTest {
    int ModeInDialog = -1;  ///< EditMode while the dialog stood
    bool Stands = false;    ///< Whether the dialog still stood when the user had done

    /// Runs the command that opens a dialog, with these steps and OK in it, and returns the box.
    const Box& Make(const std::string& dialog, std::string steps = "") {
        steps += steps.empty() ? "" : "|";
        steps += dialog == "frmForLoop" ? "cmd" : "cmdOK";
        screen.Forms[dialog] = [=, this] {
            ModeInDialog = EditMode;
            Stands = Play(dialog, steps);
        };
        for (const auto& command : boxCommands) {
            if (command.Dialog == dialog) RunBoxCommand(Sheet(), command.Control);
        }

        return Boxes[NextBox - 1];
    }
    /// The dialog of a box, opened for a change and left by OK alone, leaves the box as it was,
    /// also when it was saved and loaded.
    void Reopen(const std::string& dialog) {
        screen.Forms[dialog] = [=] { Play(dialog, dialog == "frmForLoop" ? "cmd" : "cmdOK"); };
        Box& box = Boxes[NextBox - 1];
        for (const bool loaded : {false, true}) {
            auto& text = box.BoxText;
            for (auto at = text.find("\r\n"); loaded && at != text.npos; at = text.find("\r\n")) {
                text.replace(at, 2, ";;");
            }
            const Box before = box;
            EXPECT_TRUE(ChangeBox(Sheet(), NextBox - 1)) << dialog;
            EXPECT_TRUE(box == before) << before.BoxText << " became " << box.BoxText;
        }
    }
    /// Those cells of a table's row from this one on.
    static Texts RowAt(const Texts& row, int first) {
        return {row.begin() + first, row.begin() + first + 4};
    }
};

}  // namespace quorvane::testing
