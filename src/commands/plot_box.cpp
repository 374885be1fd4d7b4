// SPDX-License-Identifier: MIT
#include "commands/plot_box.h"

#include <algorithm>

#include "catalogue/icon_table.h"
#include "commands/plot_reading.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"

namespace quorvane {

PlotForm frmPlot;
const GraphType* typeBeforehand = nullptr;

namespace {

constexpr int X = 1;
constexpr int Y = 2;
constexpr int Z = 3;

bool Marked(int input, int axis) {
    const auto& marks = input == 1   ? frmPlot.chkInput1
                        : input == 2 ? frmPlot.chkInput2
                                     : frmPlot.chkInput3;
    return marks[axis].Value != 0;
}

/// The input marked on an axis, 0 when there is none. The third test reads the marks of input 1
/// once more, so that input 3 is never found.
int MarkedInput(int axis) {
    if (Marked(1, axis)) return 1;
    if (Marked(2, axis)) return 2;
    if (Marked(1, axis)) return 3;
    return 0;
}

/// Only the Z axis finds input 3, and only in plots with three axes.
int MarkedOnZ() {
    for (int input = 1; input <= 3; ++input) {
        if (Marked(input, Z)) return input;
    }
    return 0;
}

std::string Input(int number) { return "Input" + NumberText(number); }

bool Refuse(const char* message) {
    Tell(message, Icon::Exclamation);
    return false;
}

constexpr const char* NoX = "No X axis to use, Please mark one input as X input";
constexpr const char* NoY = "No Y axis to use, Please mark one input as Y input";

/// An input on the Y axis with its style, if it is marked there.
void AppendLine(std::string& script, const std::string& names, int line) {
    if (Marked(line, Y)) script += names + "," + LineStyle(line) + ",";
}

bool ComposeLines(const GraphType&, std::string& script) {
    if (!Marked(1, Y) && !Marked(2, Y) && !Marked(3, Y)) {
        Tell("No variable marked for Y axis. Please mark at least one input as Y axis", Icon::None);
        return false;
    }
    if (Marked(1, X)) {
        // The style follows the X input itself, and the first pair has no Y.
        script += "Input1," + LineStyle(1) + ",";
        AppendLine(script, "Input2", 2);
        AppendLine(script, "Input1,Input3", 3);
    } else if (Marked(2, X)) {
        script += "Input2,";
        AppendLine(script, "Input1", 1);
        AppendLine(script, "Input2,Input3", 3);
    } else if (Marked(3, X)) {
        script += "Input3,";
        AppendLine(script, "Input1", 1);
        AppendLine(script, "Input3,Input2", 2);
    } else {
        for (int i = 1; i <= 3; ++i) {
            AppendLine(script, "[1:1:length(" + Input(i) + ")]," + Input(i), i);
        }
    }
    if (script.ends_with(",")) script.pop_back();
    script += ")";
    return true;
}

/// The marks are required, but only the style is written.
bool ComposeStyleAlone(const GraphType& type, std::string& script) {
    const int y = MarkedInput(Y);
    if (y == 0) return Refuse(NoY);
    if (MarkedInput(X) == 0) return Refuse(NoX);
    script += type.Name == "2-D Polar" ? LineStyle(y) : "'" + frmPlot.LineTypes[y] + "'";
    script += ")";
    return true;
}

bool ComposeErrorBars(const GraphType&, std::string& script) {
    const int e = MarkedInput(Z);
    if (e == 0) {
        return Refuse("No Error bar to use, Please mark at one input as an Error bar input");
    }
    const int y = MarkedInput(Y);
    if (y == 0) return Refuse("No Y axis to use, Please mark at least one input as Y input");
    if (const int x = MarkedInput(X)) script += Input(x) + ",";
    script += Input(y) + "," + Input(e) + ")";
    return true;
}

bool ComposeFlat(const GraphType& type, std::string& script) {
    const int y = MarkedInput(Y);
    const int x = MarkedInput(X);
    if (x == 0) return Refuse(NoX);
    script += Input(x) + ",";
    if (y != 0) script += Input(y) + ",";
    if (type.Name == "2-D Compass" || type.Name == "2-D Feather" || type.Name == "2-D Bar") {
        script += LineStyle(y);
    }
    script += ")";
    return true;
}

bool ComposeXOrAll(const GraphType& type, std::string& script) {
    const int z = MarkedInput(Z);
    const int y = MarkedInput(Y);
    const int x = MarkedInput(X);
    if (x != 0) script += Input(x) + ",";
    if (y != 0 && z != 0) {
        script += Input(y) + "," + Input(z) + ",";
    } else if (x == 0) {
        return Refuse("You must fill the X axis or all Axes");
    }
    if (type.Name == "2-D Contour Plot") script += LineStyle(y);
    script += ")";
    return true;
}

bool ComposeThreeAxes(const GraphType& type, std::string& script) {
    const int z = MarkedOnZ();
    if (z == 0) return Refuse("No Z axis to use, Please mark one input as Z input");
    const int y = MarkedInput(Y);
    if (y == 0) return Refuse(NoY);
    const int x = MarkedInput(X);
    if (x == 0) return Refuse(NoX);
    script += Input(x) + "," + Input(y) + "," + Input(z) + ",";
    if (type.Name == "3-D Plot") script += LineStyle(x);
    script += ")";
    return true;
}

bool ComposePseudocolor(const GraphType&, std::string& script) {
    const int x = MarkedInput(X);
    if (x == 0) return Refuse(NoX);
    script += Input(x) + ")";
    return true;
}

}  // namespace

using enum ZColumn;

// clang-format off
// Graph type, icon key, Z axis, line controls, command, rest of the command
const std::vector<GraphType> graphTypes = {
    {"2-D Plot", "Plot2d", Hidden, true, "plot(", ComposeLines},
    {"2-D Plot, X Log Scaled", "Plot2d", Hidden, true, "semilogx(", ComposeLines},
    {"2-D Plot, Y Log Scaled", "Plot2d", Hidden, true, "semilogy(", ComposeLines},
    {"2-D Plot, Axes Log Scaled", "Plot2d", Hidden, true, "loglog(", ComposeLines},
    {"2-D Polar", "Polar", Hidden, true, "polar(", ComposeStyleAlone},
    {"2-D Bar", "Bar", Hidden, true, "bar(", ComposeFlat},
    {"2-D Stem", "Stem", Hidden, true, "stem(", ComposeStyleAlone},
    {"2-D Error Bars", "Error Bar", ErrorBars, false, "errorbar(", ComposeErrorBars},
    {"2-D Histogram", "Bar", Hidden, false, "hist(", ComposeFlat},
    {"2-D Angle Histogram", "Polar", Hidden, false, "rose(", ComposeFlat},
    {"2-D Compass", "Polar", Hidden, true, "compass(", ComposeFlat},
    {"2-D Feather", "Polar", Hidden, true, "feather(", ComposeFlat},
    {"2-D Comet", "Plot2d", Hidden, true, "comet(", ComposeFlat},
    {"2-D Contour Plot", "Plot3d", Shown, false, "contour(", ComposeXOrAll},
    {"3-D Plot", "Plot3d", Shown, false, "plot3(", ComposeThreeAxes},
    {"3-D Comet", "Plot3d", Shown, false, "plot3(", ComposeXOrAll},
    {"3-D Contour Plot", "Plot3d", Shown, false, "contour3(", ComposeXOrAll},
    {"Pseudocolor", "Pscolor", Hidden, false, "pcolor(", ComposePseudocolor},
    {"3-D Mesh", "Plot3d", Shown, false, "mesh(", ComposeThreeAxes},
    {"3-D Mesh/Contour Combi", "Plot3d", Shown, false, "meshc(", ComposeThreeAxes},
    {"3-D Shaded Surface", "Plot3d", Shown, false, "surf(", ComposeThreeAxes},
    {"3-D Shaded Surface w/Lighting", "Plot3d", Shown, false, "surfl(", ComposeXOrAll},
    {"3-D Shaded/Contour Combi", "Plot3d", Shown, false, "surfc(", ComposeThreeAxes},
};
// clang-format on

namespace {

const GraphType* FindGraphType(std::string_view name) {
    const auto type =
        std::find_if(graphTypes.begin(), graphTypes.end(),
                     [&](const GraphType& candidate) { return candidate.Name == name; });
    return type == graphTypes.end() ? nullptr : &*type;
}

void SetZAxisVisible(bool visible) {
    frmPlot.lblZAxis.Visible = visible;
    frmPlot.chkInput1[Z].Visible = visible;
    frmPlot.chkInput2[Z].Visible = visible;
    frmPlot.chkInput3[Z].Visible = visible;
    frmPlot.txtZLabel.Visible = visible;
    frmPlot.lblZLabel.Visible = visible;
}

void HideZAxis() { SetZAxisVisible(false); }

void ShowZAxis() {
    SetZAxisVisible(true);
    frmPlot.lblZAxis.Caption = "Z Axis";
}

void SetLineControlsEnabled(bool enabled) {
    frmPlot.cmbLineColor.Enabled = enabled;
    frmPlot.cmbLineType.Enabled = enabled;
    frmPlot.cmbPoints.Enabled = enabled;
    frmPlot.sclLinenum.Enabled = enabled;
}

/// Title and axis labels go in as typed: a quote in them is not doubled.
void AppendLabel(std::string& script, const char* command, const std::string& text) {
    if (!text.empty()) script += std::string("\r\n") + command + "('" + text + "')";
}

void AppendRest(std::string& script) {
    if (script.ends_with(",)")) script.replace(script.size() - 2, 2, ")");
    AppendLabel(script, "title", frmPlot.txtTitle.Text);
    AppendLabel(script, "xlabel", frmPlot.txtXLabel.Text);
    AppendLabel(script, "ylabel", frmPlot.txtYLabel.Text);
    if (frmPlot.chkInput1[Z].Visible) AppendLabel(script, "zlabel", frmPlot.txtZLabel.Text);
    if (frmPlot.chkGrid.Value) script += "\r\ngrid;";
    if (frmPlot.chkHold.Value) script += "\r\nhold;";
}

}  // namespace

std::string LineStyle(int line) {
    std::string style = "'" + LowerCase(frmPlot.LineColors[line].substr(0, 1));
    const auto& mark = frmPlot.cmbPoints.Text;
    const auto& type = frmPlot.cmbLineType.Text;
    if (mark.empty()) {
        if (type == "Solid") style += "-";
        if (type == "Dotted") style += ":";
        if (type == "Dashed") style += "--";
        if (type == "Dot-Dash") style += "-.";
        if (type == "Points") style += ".";
    } else if (mark == "o" || mark == "*" || mark == "+") {
        style += mark;
    }
    return style + "'";
}

void frmPlot_Load() {
    frmPlot = {};
    frmPlot.Form = {.Caption = "Plot Options", .Loaded = true};
    for (const auto& type : graphTypes) frmPlot.cmbType.List.emplace_back(type.Name);
    frmPlot.cmbLineColor.List = {"Yellow", "Magenta", "Cyan",  "Red",
                                 "Green",  "Blue",    "White", "Black"};
    frmPlot.cmbLineType.List = {"Solid", "Points", "Dotted", "Dashed", "Dot-Dash"};
    frmPlot.cmbPoints.List = {"o", "x", "+", "*"};
    for (int i = 1; i <= 3; ++i) {
        frmPlot.LineColors[i] = frmPlot.cmbLineColor.List[static_cast<std::size_t>(i) - 1];
        frmPlot.LineTypes[i] = "Solid";
    }
}

void frmPlot_cmbType_Change() {
    const auto* type = FindGraphType(frmPlot.cmbType.Text);
    if (!type) return;
    frmPlot.lblIcon = type->Icon;
    frmPlot.pctType.Picture = IconCell(frmPlot.lblIcon);
    if (type->Z == Hidden) {
        HideZAxis();
    } else {
        ShowZAxis();
    }
    if (type->Z == ErrorBars) frmPlot.lblZAxis.Caption = "Err Bar";
    SetLineControlsEnabled(type->LineControls);
}

void frmPlot_cmbLineColor_Change() {
    frmPlot.LineColors[frmPlot.sclLinenum.Value] = frmPlot.cmbLineColor.Text;
}

void frmPlot_cmbLineType_Change() {
    frmPlot.LineTypes[frmPlot.sclLinenum.Value] = frmPlot.cmbLineType.Text;
}

void frmPlot_cmbPoints_Change() {
    frmPlot.LinePoints[frmPlot.sclLinenum.Value] = frmPlot.cmbPoints.Text;
}

void frmPlot_sclLinenum_Change() {
    const int line = frmPlot.sclLinenum.Value;
    frmPlot.cmbLineColor.Text = frmPlot.LineColors[line];
    frmPlot.cmbLineType.Text = frmPlot.LineTypes[line];
    frmPlot.cmbPoints.Text = frmPlot.LinePoints[line];
    auto& caption = frmPlot.lblLineNum.Caption;
    caption.pop_back();
    AppendNumber(caption, line);
}

void frmPlot_cmdOK_Click() {
    const auto* type = FindGraphType(frmPlot.cmbType.Text);
    if (!type) {
        Refuse("Graph type unknown. Please try again");
        return;
    }
    std::string script = frmPlot.chkFigure.Value ? "figure;\r\n" : "";
    script += type->Command;
    try {
        if (!type->Compose(*type, script)) return;
    } catch (const RuntimeError& error) {
        // The style of a line that no input is marked for.
        Tell(error.Description, Icon::Exclamation);
        return;
    }
    AppendRest(script);
    frmPlot.commands = frmPlot.lblIcon + ";" + script + "\r\n";
    frmPlot.Form.Visible = false;
}

Form frmPlot_Table() {
    Form form;
    form.Name = "frmPlot";
    form.State = &frmPlot.Form;
    form.Controls = {
        {"cmbType", &frmPlot.cmbType, frmPlot_cmbType_Change},
        {"pctType", &frmPlot.pctType},
        {"lblZAxis", &frmPlot.lblZAxis},
        {"chkFigure", &frmPlot.chkFigure},
        {"chkGrid", &frmPlot.chkGrid},
        {"chkHold", &frmPlot.chkHold},
        {"sclLinenum", &frmPlot.sclLinenum, frmPlot_sclLinenum_Change},
        {"lblLineNum", &frmPlot.lblLineNum},
        {"cmbLineColor", &frmPlot.cmbLineColor, frmPlot_cmbLineColor_Change},
        {"cmbLineType", &frmPlot.cmbLineType, frmPlot_cmbLineType_Change},
        {"cmbPoints", &frmPlot.cmbPoints, frmPlot_cmbPoints_Change},
        {"txtTitle", &frmPlot.txtTitle},
        {"txtXLabel", &frmPlot.txtXLabel},
        {"txtYLabel", &frmPlot.txtYLabel},
        {"txtZLabel", &frmPlot.txtZLabel},
        {"lblZLabel", &frmPlot.lblZLabel},
        {"cmdOK", &frmPlot.cmdOK, frmPlot_cmdOK_Click},
    };
    for (int i = 1; i <= 3; ++i) {
        const auto index = "(" + NumberText(i) + ")";
        form.Controls.push_back({"chkInput1" + index, &frmPlot.chkInput1[i]});
        form.Controls.push_back({"chkInput2" + index, &frmPlot.chkInput2[i]});
        form.Controls.push_back({"chkInput3" + index, &frmPlot.chkInput3[i]});
    }
    return form;
}

void CompletePlot(int box, const Box* former) {
    frmPlot_Load();
    if (former) ShowPlot(*former);
    if (typeBeforehand) {
        frmPlot.cmbType.Text = typeBeforehand->Name;
        frmPlot_cmbType_Change();
    }
    desktop->ShowModal("frmPlot");
    Box& record = Boxes[box];
    record.BoxText = frmPlot.commands;
    for (int input = 1; input <= 3; ++input) {
        if (!Marked(input, X) && !Marked(input, Y) && !Marked(input, Z)) {
            record.BoxIn[input] = LockedSlot;
        }
    }
    frmPlot = {};
}

}  // namespace quorvane
