// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "diagram/worksheet.h"
#include "platform/checked_array.h"
#include "platform/controls.h"

namespace quorvane {

/// A button with a face of the icon strip. Its place is in screen units, from the corner of what
/// holds it.
struct IconButton {
    Area Place;
    int Picture = 0;  ///< Cell of the icon strip, 1 to 146; 0 no picture
    bool Visible = false;
};

/// Width and height of a button: a cell of the strip at 15 units to a pixel.
constexpr double IconButtonSize = 480;
/// The greatest number of buttons; further keys have none.
constexpr int MostToolboxButtons = 24;
/// Name and pattern of toolbox files in file dialogs.
extern const std::string ToolboxFilter;

/// The toolbox: a floating window of the frame with a grid of buttons, each of which arms a box
/// type. The screen shows it while Form.Visible and owns it by the frame while Form.Loaded.
struct PicturesForm {
    PicturesForm();

    FormState Form = {.Caption = "Toolbox"};
    /// Element k is the box-type key of button k; element 0 is none. The upper bound is the toolbox
    /// count: 1, with an empty key, for a file without keys.
    GrowableArray<std::string> Keys;
    ControlArray<IconButton> cmd;  ///< Element 0 is the template, never visible
    std::int16_t Columns = 0;
    std::int16_t ReloadMarker = 0;  ///< -1 while the window is loaded anew: sizes don't count
    /// Of the whole window, 70 and 360 beyond the buttons. The design has room for the built-in
    /// ones.
    double Width = 1030;
    double Height = 1960;
};
extern PicturesForm frmPictures;

/// Loads the window hidden, with the buttons of the toolbox file that the preferences name, or that
/// the frame's menu names while there has been no document; "default.tlb" means the built-in
/// buttons. The file stays open. The columns are the first digit of the size in the preferences, 3
/// when it begins with none. Nothing happens when the window is loaded.
void LoadToolbox();
/// Closes the window, also for the user, and clears the frame's check mark. Nothing happens when
/// the window is not loaded.
void UnloadToolbox();
/// Unloads the window and loads it again, hidden, with the reload marker set.
void ReloadToolbox();
/// Brings the window to the screen; one that was closed is loaded first.
void ShowToolbox();
void HideToolbox();

/// A click on button `Index`, 1 or more. It ends an arrow mode.
void frmPictures_cmd_Click(int Index);
/// The user has given the window this size, measured as Width and Height are.
void frmPictures_Resize(double width, double height);
/// Runs after each change of the frame's txtEvent: the arrow tool needs no worksheet.
void txtEvent_Change();

/// Show or hide the toolbox. The check mark is the frame's, whichever menu is used.
void mnuOptionsToolbox_Click();
void mnuOptionsToolbox_Click(Worksheet& sheet);
/// Ask for a toolbox file and take it. Its name goes without a folder: toolboxes lie in the program
/// directory.
void mnuOptionsCurrentToolbox_Click();
void mnuOptionsCurrentToolbox_Click(Worksheet& sheet);
/// Copies what the frame's menu shows to a worksheet that becomes active.
void main_Activate(Worksheet& sheet);

}  // namespace quorvane
