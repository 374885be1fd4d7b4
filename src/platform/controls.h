// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quorvane {

/// The records of the controls that windows and dialogs are made of. What the user does is written
/// here, and what stands here is what the screen shows. Positions are screen units of 1/1440 inch.

/// Mouse pointer shapes.
enum MousePointer : int {
    PointerDefault = 0,
    PointerArrow = 1,
    PointerCross = 2,
    PointerHourglass = 11,
    PointerNoDrop = 12,
};

/// Where a control lies in its window's client area.
struct Area {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;

    friend bool operator==(const Area&, const Area&) = default;
};

struct Label {
    std::string Caption;
    bool Visible = true;
};

struct TextBox {
    std::string Text;
    bool Visible = true;
    bool Enabled = true;
};

struct Button {
    std::string Caption;
    bool Visible = true;
    bool Enabled = true;
};

struct CheckBox {
    int Value = 0;  ///< 0 empty, 1 ticked
    bool Visible = true;
    bool Enabled = true;
};

struct OptionButton {
    bool Value = false;  ///< Selected
    std::string Caption;
    bool Enabled = true;
};

struct ComboBox {
    std::string Text;
    std::vector<std::string> List;
    bool Enabled = true;
};

/// A list of one column.
struct ListBox {
    std::vector<std::string> List;
    int ListIndex = -1;  ///< The selected entry, from 0; -1 for none
    bool Visible = true;
    bool Needed = true;  ///< While nothing is selected Enter doesn't press OK
};

struct PictureBox {
    int Picture = 0;  ///< Cell of the icon strip, 1 to 146; 0 no picture
};

/// A scroll bar; its values are screen units on a worksheet.
struct ScrollBar {
    std::int16_t Value = 0;
    std::int16_t Min = 0;
    std::int16_t Max = 32767;
    std::int16_t SmallChange = 1;
    std::int16_t LargeChange = 1;
    bool Enabled = true;
};

struct MenuItem {
    std::string Caption;
    bool Checked = false;
    bool Visible = true;
};

/// What every form has: its caption, and whether it is on the screen. A form that has hidden itself
/// ends the wait of whoever showed it.
struct FormState {
    std::string Caption;
    bool Visible = false;
    bool Loaded = false;
    int MousePointer = PointerDefault;
};

}  // namespace quorvane
