// SPDX-License-Identifier: MIT
#include "catalogue/plot_box.h"

#include "catalogue/box_commands.h"
#include "support/diagram_fixture.h"

namespace quorvane::testing {

namespace {

void Type(const std::string& type) {
    frmPlot.cmbType.Text = type;
    frmPlot_cmbType_Change();
}

/// Ticks marks written as input and axis: "1X 2Y 3Z".
void Mark(const std::string& marks) {
    AxisMarks* rows[] = {&frmPlot.chkInput1, &frmPlot.chkInput2, &frmPlot.chkInput3};
    for (std::size_t i = 0; i + 1 < marks.size(); i += 3) {
        (*rows[marks[i] - '1'])[marks[i + 1] - 'X' + 1].Value = 1;
    }
}

const std::string NoX = "!No X axis to use, Please mark one input as X input";
const std::string NoY = "!No Y axis to use, Please mark one input as Y input";
const std::string NoZ = "!No Z axis to use, Please mark one input as Z input";
const std::string NoVariable =
    "No variable marked for Y axis. Please mark at least one input as Y axis";
const std::string NoErrorBar =
    "!No Error bar to use, Please mark at one input as an Error bar input";
const std::string NoYAtLeast = "!No Y axis to use, Please mark at least one input as Y input";
const std::string FillX = "!You must fill the X axis or all Axes";
const std::string Subscript = "!Subscript out of range";

struct PlotCase {
    std::string Type;
    std::string Marks;
    /// Icon key and first line; or the message, with "!" for the exclamation icon.
    std::string Expected;
};

// clang-format off
const std::vector<PlotCase> plotCases = {
    {"2-D Plot", "1Y 2X", "Plot2d;plot(Input2,Input1,'y')"},
    {"2-D Plot", "1X 1Y 2Y", "Plot2d;plot(Input1,'y',Input2,'m')"},
    {"2-D Plot", "1X 2Y 3Y", "Plot2d;plot(Input1,'y',Input2,'m',Input1,Input3,'c')"},
    {"2-D Plot", "1X 1Y", "Plot2d;plot(Input1,'y')"},
    {"2-D Plot", "2X 2Y", "Plot2d;plot(Input2)"},
    {"2-D Plot", "2X 3X 1Y 2Y 3Y", "Plot2d;plot(Input2,Input1,'y',Input2,Input3,'c')"},
    {"2-D Plot", "3X 1Y 2Y 3Y", "Plot2d;plot(Input3,Input1,'y',Input3,Input2,'m')"},
    {"2-D Plot", "3Y", "Plot2d;plot([1:1:length(Input3)],Input3,'c')"},
    {"2-D Plot", "1Y 2Y", "Plot2d;plot([1:1:length(Input1)],Input1,'y',[1:1:length(Input2)],Input2,'m')"},
    {"2-D Plot", "1X 2X 3X", NoVariable},
    {"2-D Plot", "1Z", NoVariable},
    {"2-D Plot, X Log Scaled", "2X 1Y", "Plot2d;semilogx(Input2,Input1,'y')"},
    {"2-D Plot, Y Log Scaled", "2X 1Y", "Plot2d;semilogy(Input2,Input1,'y')"},
    {"2-D Plot, Axes Log Scaled", "2X 1Y", "Plot2d;loglog(Input2,Input1,'y')"},
    {"2-D Polar", "1X 2Y", "Polar;polar('m')"},
    {"2-D Polar", "1X 3Y", NoY},
    {"2-D Polar", "1Y 3X", NoX},
    {"2-D Stem", "1X 2Y", "Stem;stem('Solid')"},
    {"2-D Stem", "3Y", NoY},
    {"2-D Stem", "2Y", NoX},
    {"2-D Error Bars", "1X 2Y 1Z", "Error Bar;errorbar(Input1,Input2,Input1)"},
    {"2-D Error Bars", "3X 1Y 2Z", "Error Bar;errorbar(Input1,Input2)"},
    {"2-D Error Bars", "1X 2Y 3Z", NoErrorBar},
    {"2-D Error Bars", "1X 3Y 2Z", NoYAtLeast},
    {"2-D Bar", "1X 2Y", "Bar;bar(Input1,Input2,'m')"},
    {"2-D Bar", "1Y", NoX},
    {"2-D Bar", "1X", Subscript},
    {"2-D Histogram", "1X", "Bar;hist(Input1)"},
    {"2-D Histogram", "2X 1Y", "Bar;hist(Input2,Input1)"},
    {"2-D Histogram", "3X", NoX},
    {"2-D Angle Histogram", "2X", "Polar;rose(Input2)"},
    {"2-D Compass", "2X 1Y", "Polar;compass(Input2,Input1,'y')"},
    {"2-D Compass", "2X 3Y", Subscript},
    {"2-D Feather", "1X 1Y", "Polar;feather(Input1,Input1,'y')"},
    {"2-D Feather", "1X", Subscript},
    {"2-D Comet", "1X 2Y", "Plot2d;comet(Input1,Input2)"},
    {"2-D Contour Plot", "1X 2Y 2Z", "Plot3d;contour(Input1,Input2,Input2,'m')"},
    {"2-D Contour Plot", "1Y 2Z", "Plot3d;contour(Input1,Input2,'y')"},
    {"2-D Contour Plot", "1X 1Y", "Plot3d;contour(Input1,'y')"},
    {"2-D Contour Plot", "1X 3Y 2Z", Subscript},
    {"2-D Contour Plot", "3X 1Y", FillX},
    {"3-D Comet", "1X 2Y 1Z", "Plot3d;plot3(Input1,Input2,Input1)"},
    {"3-D Comet", "1X 2Y 3Z", "Plot3d;plot3(Input1)"},
    {"3-D Comet", "1Y 2Z", "Plot3d;plot3(Input1,Input2)"},
    {"3-D Contour Plot", "2X", "Plot3d;contour3(Input2)"},
    {"3-D Shaded Surface w/Lighting", "1X 2Y 2Z", "Plot3d;surfl(Input1,Input2,Input2)"},
    {"3-D Shaded Surface w/Lighting", "3X 3Y 3Z", FillX},
    {"3-D Plot", "1X 2Y 3Z", "Plot3d;plot3(Input1,Input2,Input3,'y')"},
    {"3-D Plot", "2X 1Y 1Z", "Plot3d;plot3(Input2,Input1,Input1,'m')"},
    {"3-D Mesh", "1X 2Y 3Z", "Plot3d;mesh(Input1,Input2,Input3)"},
    {"3-D Mesh", "1X 2Y", NoZ},
    {"3-D Mesh", "1X 3Y 2Z", NoY},
    {"3-D Mesh", "3X 1Y 2Z", NoX},
    {"3-D Mesh/Contour Combi", "1X 2Y 3Z", "Plot3d;meshc(Input1,Input2,Input3)"},
    {"3-D Shaded Surface", "1X 2Y 3Z", "Plot3d;surf(Input1,Input2,Input3)"},
    {"3-D Shaded/Contour Combi", "1X 2Y 3Z", "Plot3d;surfc(Input1,Input2,Input3)"},
    {"Pseudocolor", "2X", "Pscolor;pcolor(Input2)"},
    {"Pseudocolor", "1Y 3X", NoX},
    {"", "1X 1Y", "!Graph type unknown. Please try again"},
    {"2-d plot", "1X 1Y", "!Graph type unknown. Please try again"},
};

struct TypeCase {
    std::string Type, Icon, ZCaption;  ///< "" where the Z column is hidden
    bool LineControls;
    int Cell;
};
const std::vector<TypeCase> typeCases = {
    {"2-D Plot", "Plot2d", "", true, 94},
    {"2-D Plot, X Log Scaled", "Plot2d", "", true, 94},
    {"2-D Plot, Y Log Scaled", "Plot2d", "", true, 94},
    {"2-D Plot, Axes Log Scaled", "Plot2d", "", true, 94},
    {"2-D Polar", "Polar", "", true, 96},
    {"2-D Bar", "Bar", "", true, 9},
    {"2-D Stem", "Stem", "", true, 126},
    {"2-D Error Bars", "Error Bar", "Err Bar", false, 45},
    {"2-D Histogram", "Bar", "", false, 9},
    {"2-D Angle Histogram", "Polar", "", false, 96},
    {"2-D Compass", "Polar", "", true, 96},
    {"2-D Feather", "Polar", "", true, 96},
    {"2-D Comet", "Plot2d", "", true, 94},
    {"2-D Contour Plot", "Plot3d", "Z Axis", false, 95},
    {"3-D Plot", "Plot3d", "Z Axis", false, 95},
    {"3-D Comet", "Plot3d", "Z Axis", false, 95},
    {"3-D Contour Plot", "Plot3d", "Z Axis", false, 95},
    {"Pseudocolor", "Pscolor", "", false, 103},
    {"3-D Mesh", "Plot3d", "Z Axis", false, 95},
    {"3-D Mesh/Contour Combi", "Plot3d", "Z Axis", false, 95},
    {"3-D Shaded Surface", "Plot3d", "Z Axis", false, 95},
    {"3-D Shaded Surface w/Lighting", "Plot3d", "Z Axis", false, 95},
    {"3-D Shaded/Contour Combi", "Plot3d", "Z Axis", false, 95},
};
// clang-format on

}  // namespace

using PlotBox = DiagramTest;

TEST_F(PlotBox, EachTypeComposesItsCommand) {
    for (const auto& row : plotCases) {
        SCOPED_TRACE(row.Type + " " + row.Marks);
        screen.Messages.clear();
        frmPlot_Load();
        frmPlot.Form.Visible = true;
        Type(row.Type);
        Mark(row.Marks);
        frmPlot_cmdOK_Click();
        const bool refused = frmPlot.commands.empty();
        EXPECT_EQ(frmPlot.Form.Visible, refused);
        ASSERT_EQ(screen.Messages.size(), refused ? 1u : 0u);
        if (refused) {
            const auto& message = screen.Messages[0];
            EXPECT_EQ((message.Picture == Icon::Exclamation ? "!" : "") + message.Text,
                      row.Expected);
            EXPECT_EQ(message.Title, "Quorvane");
        } else {
            EXPECT_EQ(frmPlot.commands, row.Expected + "\r\n");
        }
    }
}

TEST_F(PlotBox, EachTypeAdaptsTheDialog) {
    frmPlot_Load();
    std::vector<std::string> names;
    for (const auto& row : typeCases) {
        SCOPED_TRACE(row.Type);
        names.push_back(row.Type);
        Type(row.Type);
        Type("no such type");  // changes nothing
        EXPECT_EQ(frmPlot.lblIcon, row.Icon);
        EXPECT_EQ(frmPlot.pctType.Picture, row.Cell);
        const bool shown = !row.ZCaption.empty();
        for (const bool visible :
             {frmPlot.lblZAxis.Visible, frmPlot.chkInput1[3].Visible, frmPlot.chkInput2[3].Visible,
              frmPlot.chkInput3[3].Visible, frmPlot.txtZLabel.Visible, frmPlot.lblZLabel.Visible}) {
            EXPECT_EQ(visible, shown);
        }
        EXPECT_EQ(shown ? frmPlot.lblZAxis.Caption : "", row.ZCaption);
        for (const bool enabled : {frmPlot.cmbLineColor.Enabled, frmPlot.cmbLineType.Enabled,
                                   frmPlot.cmbPoints.Enabled, frmPlot.sclLinenum.Enabled}) {
            EXPECT_EQ(enabled, row.LineControls);
        }
    }
    EXPECT_EQ(frmPlot.cmbType.List, names);
}

TEST_F(PlotBox, OnlyTheColorIsPerLine) {
    struct StyleCase {
        std::string Color, LineType, Points, Expected;
    };
    const std::vector<StyleCase> cases = {
        {"Yellow", "", "", "'y'"},         {"Black", "Solid", "", "'b-'"},
        {"Blue", "Dotted", "", "'b:'"},    {"Red", "Dashed", "", "'r--'"},
        {"Cyan", "Dot-Dash", "", "'c-.'"}, {"Green", "Points", "", "'g.'"},
        {"White", "solid", "", "'w'"},     {"Magenta", "Solid", "o", "'mo'"},
        {"Red", "Solid", "*", "'r*'"},     {"Red", "Solid", "+", "'r+'"},
        {"Yellow", "Solid", "x", "'y'"},   {"", "", "", "''"},
    };
    for (const auto& row : cases) {
        frmPlot_Load();
        frmPlot.sclLinenum.Value = 2;
        frmPlot_sclLinenum_Change();
        frmPlot.cmbLineColor.Text = row.Color;
        frmPlot_cmbLineColor_Change();
        frmPlot.cmbLineType.Text = row.LineType;
        frmPlot_cmbLineType_Change();
        frmPlot.cmbPoints.Text = row.Points;
        frmPlot_cmbPoints_Change();
        EXPECT_EQ(LineStyle(2), row.Expected);
        EXPECT_EQ(LineStyle(1), "'y" + row.Expected.substr(row.Color.empty() ? 1 : 2));
    }
}

TEST_F(PlotBox, TheScrollBarBringsEachLinesStyle) {
    frmPlot_Load();
    frmPlot.cmbPoints.Text = "x";
    frmPlot_cmbPoints_Change();
    EXPECT_EQ(frmPlot.lblLineNum.Caption, "Line #1");
    frmPlot.sclLinenum.Value = 3;
    frmPlot_sclLinenum_Change();
    EXPECT_EQ(frmPlot.lblLineNum.Caption, "Line #3");
    EXPECT_EQ(frmPlot.cmbLineColor.Text, "Cyan");
    EXPECT_EQ(frmPlot.cmbLineType.Text, "Solid");
    EXPECT_EQ(frmPlot.cmbPoints.Text, "");
    frmPlot.sclLinenum.Value = 1;
    frmPlot_sclLinenum_Change();
    EXPECT_EQ(frmPlot.cmbLineColor.Text, "Yellow");
    EXPECT_EQ(frmPlot.cmbPoints.Text, "x");
    // A stem takes the line type by its name.
    frmPlot.cmbLineType.Text = "Dashed";
    frmPlot_cmbLineType_Change();
    Type("2-D Stem");
    Mark("1X 1Y");
    frmPlot_cmdOK_Click();
    EXPECT_EQ(frmPlot.commands, "Stem;stem('Dashed')\r\n");
}

TEST_F(PlotBox, TitlesAndSwitchesFollow) {
    const auto fill = [] {
        frmPlot.txtTitle.Text = "it's";
        frmPlot.txtXLabel.Text = "x";
        frmPlot.txtYLabel.Text = "y";
        frmPlot.txtZLabel.Text = "z";
        frmPlot.chkFigure.Value = 1;
        frmPlot.chkGrid.Value = 1;
        frmPlot.chkHold.Value = 1;
        Mark("1X 2Y 3Z");
        frmPlot_cmdOK_Click();
    };
    const std::string labels = "\r\ntitle('it's')\r\nxlabel('x')\r\nylabel('y')";
    frmPlot_Load();
    Type("3-D Mesh");
    fill();
    EXPECT_EQ(frmPlot.commands, "Plot3d;figure;\r\nmesh(Input1,Input2,Input3)" + labels +
                                    "\r\nzlabel('z')\r\ngrid;\r\nhold;\r\n");
    // The Z label of a hidden field stays away.
    frmPlot_Load();
    Type("2-D Comet");
    fill();
    EXPECT_EQ(frmPlot.commands,
              "Plot2d;figure;\r\ncomet(Input1,Input2)" + labels + "\r\ngrid;\r\nhold;\r\n");
}

TEST_F(PlotBox, TheBoxHasTheEntriesThatTheDialogUses) {
    struct EntryCase {
        std::string Type, Marks, Text;
        int In1, In2, In3, Cell;
    };
    const std::vector<EntryCase> cases = {
        {"2-D Plot", "1Y 2X", "Plot2d;plot(Input2,Input1,'y')\r\n", 0, 0, -1, 94},
        {"2-D Histogram", "2X", "Bar;hist(Input2)\r\n", -1, 0, -1, 9},
        // A mark that the text does not use, in a hidden column too, counts all the same.
        {"Pseudocolor", "1X 3Z", "Pscolor;pcolor(Input1)\r\n", 0, -1, 0, 103},
    };
    for (const auto& row : cases) {
        SetUp();
        screen.Forms["frmPlot"] = [&] {
            Mark(row.Marks);
            Type(row.Type);
            frmPlot_cmdOK_Click();
        };
        RunBoxCommand(*Documents[1], "mnuOutputPlot");
        EXPECT_EQ(Boxes[1].BoxText, row.Text);
        EXPECT_EQ(Boxes[1].BoxIn[1], row.In1);
        EXPECT_EQ(Boxes[1].BoxIn[2], row.In2);
        EXPECT_EQ(Boxes[1].BoxIn[3], row.In3);
        EXPECT_EQ(Boxes[1].BoxOut[1], -1);
        EXPECT_EQ(Documents[1]->box[1].Picture, row.Cell);
    }
}

}  // namespace quorvane::testing
