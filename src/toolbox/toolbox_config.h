// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "platform/checked_array.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "toolbox/toolbox.h"

namespace quorvane {

/// The keys that a toolbox can be built from, in the order of the catalogue pages.
extern const std::vector<std::string_view> toolboxCatalogue;

/// The dialog in which a toolbox is built by dragging icons of the catalogue into a panel. The
/// buttons of the panel and of the catalogue page have their places in what holds them.
struct ConfigToolboxForm {
    ConfigToolboxForm();

    FormState Form = {.Caption = "Configure Toolbox"};
    CheckedArray<IconButton, 1, 18> cmdPict;          ///< The page: 3 rows of 6; no picture, no key
    ScrollBar scroll = {.Max = 8, .LargeChange = 3};  ///< A step moves the page by one row
    Label lblFunction;                                ///< The key under the pointer
    ControlArray<IconButton> cmdButton;     ///< The panel's icons; element 0 is the template
    Label lbltoolbox = {.Visible = false};  ///< All keys of the panel, each followed by CR LF
    CheckBox chkClear;
    CheckBox chkReload;
    OptionButton opnFileName = {.Value = true, .Caption = "my_box.tlb"};  ///< The file to save to
    Button cmdOK{"OK"};
    Button cmdCancel{"Cancel"};
    /// The highest index in use in cmdButton after a file was loaded; 1 for a panel that was opened
    /// or cleared empty, whose first icon is element 2.
    int Count = 0;
    Area Dragged;  ///< Where the icon under the pointer stood
};
extern ConfigToolboxForm frmConfigToolbox;

/// Also puts "my_box.tlb" of the current folder into the panel, where there is one.
void frmConfigToolbox_Load();
void frmConfigToolbox_scroll_Change();
/// The pointer moves over element `Index` of the page, 1 to 18.
void frmConfigToolbox_cmdPict_MouseMove(int Index);
/// Element `Index` of the page was dropped into the panel; one without a key adds nothing.
void frmConfigToolbox_pnlToolbox_DragDrop(int Index);
/// A mouse button went down on an icon of the panel; the right one (RightButton) removes it.
void frmConfigToolbox_cmdButton_MouseDown(int Index, int Button);
void frmConfigToolbox_chkClear_Click();
void frmConfigToolbox_chkReload_Click();
void frmConfigToolbox_opnFileName_Click();
/// Saves the panel and reloads the toolbox. A failure is tried once more with all files closed;
/// when that fails too, the user is told and the dialog stays.
void frmConfigToolbox_cmdOK_Click();
void frmConfigToolbox_cmdCancel_Click();
/// Without cmdPict, pnlToolbox and cmdButton, which has a view of its own.
Form frmConfigToolbox_Table();

void mnuOptionsConfigureToolbox_Click(Worksheet& sheet);

}  // namespace quorvane
