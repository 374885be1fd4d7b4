// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "diagram/box_table.h"
#include "platform/checked_array.h"
#include "platform/form.h"

namespace quorvane {

/// How choosing a graph type changes the Z axis of the dialog.
enum class ZColumn { Hidden, Shown, ErrorBars };

/// A graph type: how the dialog changes for it, and how its command is put together.
struct GraphType {
    std::string_view Name;
    std::string_view Icon;
    ZColumn Z;                 ///< How the type shows that axis
    bool LineControls;         ///< Colour, line type and mark can be chosen
    std::string_view Command;  ///< The MATLAB function that draws it
    /// Appends the rest of the command; false when a message has refused the marks.
    bool (*Compose)(const GraphType& type, std::string& script);
};
extern const std::vector<GraphType> graphTypes;

using AxisMarks = CheckedArray<CheckBox, 1, 3>;  ///< By axis: 1 X, 2 Y, 3 Z

/// The dialog that composes the commands of a plot. The names Input1 to Input3 in them stand for
/// the entries of the box.
struct PlotForm {
    FormState Form;
    ComboBox cmbType;
    PictureBox pctType;   ///< The icon of the type
    std::string lblIcon;  ///< Icon key of the type last recognised; "" before
    AxisMarks chkInput1;
    AxisMarks chkInput2;
    AxisMarks chkInput3;
    Label lblZAxis{"Z axis"};
    CheckBox chkFigure;  ///< Opens a new figure first
    CheckBox chkGrid;    ///< Toggles the grid
    CheckBox chkHold;    ///< Toggles the holding of the figure
    ScrollBar sclLinenum{.Value = 1, .Min = 1, .Max = 3};
    Label lblLineNum{"Line #1"};
    ComboBox cmbLineColor;
    ComboBox cmbLineType;
    ComboBox cmbPoints;
    TextBox txtTitle;
    TextBox txtXLabel;
    TextBox txtYLabel;
    TextBox txtZLabel;
    Label lblZLabel{"Z Label:"};
    Button cmdOK{"OK"};
    std::string commands;  ///< The result: icon key, ";", the lines of the script
    /// Style of each line as it was last chosen.
    CheckedArray<std::string, 1, 3> LineColors;
    CheckedArray<std::string, 1, 3> LineTypes;
    CheckedArray<std::string, 1, 3> LinePoints;
};
extern PlotForm frmPlot;

void frmPlot_Load();
/// Shows the icon and the axes of the chosen graph type.
void frmPlot_cmbType_Change();
/// Note the style for the line that sclLinenum selects.
void frmPlot_cmbLineColor_Change();
void frmPlot_cmbLineType_Change();
void frmPlot_cmbPoints_Change();
/// Shows the style of the line with this number, 1 to 3.
void frmPlot_sclLinenum_Change();
/// Composes the commands and hides the dialog, or says what is missing and leaves it open.
void frmPlot_cmdOK_Click();
Form frmPlot_Table();

/// The style text of a line: its own colour, with the mark or line type that the dialog shows.
/// Error 9 for a line outside 1 to 3.
std::string LineStyle(int line);

/// A graph type that was chosen before the dialog opens, nullptr for none.
extern const GraphType* typeBeforehand;

/// Runs the dialog for a "Plot Output" box: its text, and a lock on each entry without a mark.
void CompletePlot(int box, const Box* former);

}  // namespace quorvane
