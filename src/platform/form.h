// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "platform/controls.h"
#include "platform/drawing.h"

namespace quorvane {

/// The record of a control, of whatever kind.
using ControlRecord = std::variant<Label*, TextBox*, Button*, CheckBox*, OptionButton*, ComboBox*,
                                   ListBox*, PictureBox*, ScrollBar*>;

/// A control of a form by its name in the layout ("txtTitle", "chkFrom(1)"), its record, and the
/// handler of its event: a click of a button, check box or option button, a change of a text box,
/// combo box or scroll bar, the selection in a list. The record holds what the user did when the
/// handler runs.
struct ControlRow {
    std::string Name;
    ControlRecord Record;
    std::function<void()> Event = nullptr;
    /// TakesNumber for a text box of a number: its event waits while only the beginning of a number
    /// is typed, until it is one or can't become one, or the user moves to another control.
    bool Number = false;
};
constexpr bool TakesNumber = true;

/// A timer that runs while its form is on the screen.
struct FormTimer {
    int Interval = 0;  ///< Milliseconds between two ticks, 0 for no timer
    std::function<void()> Tick = nullptr;
};

/// A form as the screen sees it: its state and its controls. The screen copies what the user did
/// into a record, calls the handler, and shows the records again.
struct Form {
    std::string Name;  ///< Also the name of its layout and of its window
    FormState* State = nullptr;
    std::vector<ControlRow> Controls;
    std::function<void()> Activated = nullptr;  ///< Runs when the form has come to the screen
    /// Runs when the user closes the window; without it the form can't be closed by the user.
    std::function<void()> Closed = nullptr;
    FormTimer Timer = {};
    /// What is painted on the form itself, in the colour of its texts; nullptr for nothing.
    const std::vector<DrawnShape>* Surface = nullptr;
};

/// Loads a form: its controls are as designed, and it is not on the screen yet.
template <class FormRecord>
void LoadForm(FormRecord& form) {
    form = {};
    form.Form.Loaded = true;
}

/// The handler of an OK button that does no more than end its form.
template <auto& form>
void HideForm() {
    form.Form.Visible = false;
}

}  // namespace quorvane
