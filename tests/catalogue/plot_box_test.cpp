// SPDX-License-Identifier: MIT
#include "commands/plot_box.h"

#include <set>

#include "catalogue/catalogue_fixture.h"
#include "catalogue/icon_table.h"

namespace quorvane::testing {

using PlotBox = CatalogueTest;

TEST_F(PlotBox, EachTypeComposesItsCommand) {
    for (const auto& row : ReadTable("catalogue/plots.tsv")) {
        SCOPED_TRACE(row.back());
        std::string steps;
        std::set<char> marked;  // A mark opens its input, one in a hidden column or out of use too.
        for (const auto& mark : Split(row[1], ' ')) {
            steps += std::string("chkInput") + mark[0] + "(" + NumberText(mark[1] - 'X' + 1) + ")|";
            marked.insert(mark[0]);
        }
        Restart();
        steps += "cmbType=" + row[0] + (row[3].empty() ? "" : "|") + row[3];
        const auto& box = Make("frmPlot", steps);
        EXPECT_EQ(Stands, !screen.Messages.empty());
        EXPECT_EQ(TakeTold() + box.BoxText, row[2] + (Stands ? "" : "\r\n"));
        EXPECT_EQ(Open(box.BoxIn), std::string(marked.begin(), marked.end()));
        EXPECT_EQ(Open(box.BoxOut), "");
        if (!Stands) Reopen("frmPlot");
    }
}

TEST_F(PlotBox, EachTypeAdaptsTheDialog) {
    for (int i = 1; i <= 2; ++i) frmPlot_Load();  // Each load starts from empty lists.
    Texts names;
    for (const auto& type : graphTypes) {
        SCOPED_TRACE(type.Name);
        names.emplace_back(type.Name);
        Play("frmPlot", "cmbType=" + names.back() + "|cmbType=no such type");  // changes nothing
        EXPECT_EQ(frmPlot.lblIcon, type.Icon);
        EXPECT_EQ(frmPlot.pctType.Picture, IconCell(type.Icon));
        for (const bool visible :
             {frmPlot.lblZAxis.Visible, frmPlot.chkInput1[3].Visible, frmPlot.chkInput2[3].Visible,
              frmPlot.chkInput3[3].Visible, frmPlot.txtZLabel.Visible, frmPlot.lblZLabel.Visible}) {
            EXPECT_EQ(visible, type.Z != ZColumn::Hidden);
        }
        const bool errors = type.Name == "2-D Error Bars", flat = type.Name.starts_with("2-D");
        if (type.Z != ZColumn::Hidden) {
            EXPECT_TRUE(errors || !flat || type.Name == "2-D Contour Plot");
            EXPECT_EQ(frmPlot.lblZAxis.Caption, errors ? "Err Bar" : "Z Axis");
        }
        for (const bool enabled : {frmPlot.cmbLineColor.Enabled, frmPlot.cmbLineType.Enabled,
                                   frmPlot.cmbPoints.Enabled, frmPlot.sclLinenum.Enabled}) {
            EXPECT_EQ(enabled, type.LineControls);
        }
    }
    EXPECT_EQ(frmPlot.cmbType.List, names);
    EXPECT_EQ(frmPlot.cmbLineColor.List,
              Split("Yellow|Magenta|Cyan|Red|Green|Blue|White|Black", '|'));
    EXPECT_EQ(frmPlot.cmbLineType.List, Split("Solid|Points|Dotted|Dashed|Dot-Dash", '|'));
    EXPECT_EQ(frmPlot.cmbPoints.List, Split("o|x|+|*", '|'));
}

}  // namespace quorvane::testing
