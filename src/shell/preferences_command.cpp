// SPDX-License-Identifier: MIT
#include "shell/preferences_command.h"

#include "diagram/preferences.h"
#include "diagram/selection.h"
#include "files/settings.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "toolbox/toolbox.h"

namespace quorvane {

namespace {

void ApplyPreferences(Worksheet& sheet) {
    sheet.DrawWidth = TextToInt16(frmPrefs.txtLineWidth.Text);
    sheet.mnuOptionsCurrentToolbox.Caption = "Current Toolbox: " + frmPrefs.txtToolbox.Text;
    sheet.mnuOptionsBubbleShow.Checked = frmPrefs.chkShowBubbles.Value != 0;
    sheet.mnuOptionsToolbox.Checked = frmPrefs.chkShowToolbox.Value == 1;
    if (sheet.mnuOptionsToolbox.Checked) {
        ShowToolbox();
    } else {
        HideToolbox();
    }
}

}  // namespace

void mnuOptionsPrefs_Click(Worksheet& sheet) {
    desktop->ShowModal("frmPrefs");
    desktop->FocusWorksheet(DocumentNumber(sheet));
    ForEachOpenDocument([](Worksheet& open, int) { ApplyPreferences(open); });
    mnuEditRedraw_Click(sheet);
}

void frmPrefs_cmdOK_Click() {
    ReloadToolbox();
    frmPrefs.Form.Visible = false;
}

void frmPrefs_cmdSave_Click() { WriteSettings(); }

Form frmPrefs_Table() {
    return {.Name = "frmPrefs",
            .State = &frmPrefs.Form,
            .Controls = {{"sclWidth", &frmPrefs.sclWidth, frmPrefs_sclWidth_Change},
                         {"txtLineWidth", &frmPrefs.txtLineWidth, frmPrefs_txtLineWidth_Change,
                          TakesNumber},
                         {"chkShowBubbles", &frmPrefs.chkShowBubbles},
                         {"chkInput", &frmPrefs.chkInput},
                         {"chkShowToolbox", &frmPrefs.chkShowToolbox},
                         {"txtToolbox", &frmPrefs.txtToolbox},
                         {"lbltoolboxsize", &frmPrefs.lbltoolboxsize},
                         {"txtDrives", &frmPrefs.txtDrives},
                         {"cmdSave", &frmPrefs.cmdSave, frmPrefs_cmdSave_Click},
                         {"cmdOK", &frmPrefs.cmdOK, frmPrefs_cmdOK_Click},
                         {"cmdCancel", &frmPrefs.cmdCancel, frmPrefs_cmdCancel_Click}},
            .Activated = frmPrefs_Activate,
            .Surface = &frmPrefs.Surface};
}

}  // namespace quorvane
