// SPDX-License-Identifier: MIT
#include "diagram/preferences.h"

#include "platform/numbers.h"
#include "platform/runtime_error.h"

namespace quorvane {

std::string ProgramDirectory;
PreferencesForm frmPrefs;

namespace {

void DrawSampleLine() {
    DrawnShape line;
    line.Width = frmPrefs.DrawWidth;
    line.X1 = 3100;
    line.X2 = 4200;
    line.Y1 = line.Y2 = 480;
    frmPrefs.Surface = {line};
}

}  // namespace

void frmPrefs_Activate() {
    frmPrefs.RememberedWidth = TextToInt16(frmPrefs.txtLineWidth.Text);
    frmPrefs.RememberedBubbles = frmPrefs.chkShowBubbles.Value;
    DrawSampleLine();
}

void frmPrefs_sclWidth_Change() {
    frmPrefs.txtLineWidth.Text = NumberText(frmPrefs.sclWidth.Value);
    frmPrefs_txtLineWidth_Change();
}

void frmPrefs_txtLineWidth_Change() {
    auto& text = frmPrefs.txtLineWidth.Text;
    const auto width =
        AttemptValue<double>(ErrorPolicy::Ignore, 0, [&] { return TextToNumber(text); });
    if (width < frmPrefs.sclWidth.Min) text = NumberText(frmPrefs.sclWidth.Min);
    if (width > frmPrefs.sclWidth.Max) text = NumberText(frmPrefs.sclWidth.Max);
    frmPrefs.DrawWidth = TextToInt16(text);
    DrawSampleLine();
}

void frmPrefs_cmdCancel_Click() {
    frmPrefs.sclWidth.Value = frmPrefs.RememberedWidth;
    frmPrefs_sclWidth_Change();
    frmPrefs.chkShowBubbles.Value = frmPrefs.RememberedBubbles;
    frmPrefs.Form.Visible = false;
}

}  // namespace quorvane
