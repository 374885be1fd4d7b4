// SPDX-License-Identifier: MIT
#include "commands/plot_box.h"

#include <set>

#include "catalogue/catalogue_fixture.h"

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
    }
}

TEST_F(PlotBox, EachTypeAdaptsTheDialog) {
    for (int i = 1; i <= 2; ++i) frmPlot_Load();  // Each load starts from empty lists.
    Texts names;
    for (const auto& row : ReadTable("catalogue/graph_types.tsv")) {
        SCOPED_TRACE(row.back());
        names.push_back(row[0]);
        Play("frmPlot", "cmbType=" + row[0] + "|cmbType=no such type");  // which changes nothing
        EXPECT_EQ(frmPlot.lblIcon, row[1]);
        EXPECT_EQ(NumberText(frmPlot.pctType.Picture), row[4]);
        for (const bool visible :
             {frmPlot.lblZAxis.Visible, frmPlot.chkInput1[3].Visible, frmPlot.chkInput2[3].Visible,
              frmPlot.chkInput3[3].Visible, frmPlot.txtZLabel.Visible, frmPlot.lblZLabel.Visible}) {
            EXPECT_EQ(visible, !row[2].empty());
        }
        EXPECT_EQ(row[2].empty() ? "" : frmPlot.lblZAxis.Caption, row[2]);
        for (const bool enabled : {frmPlot.cmbLineColor.Enabled, frmPlot.cmbLineType.Enabled,
                                   frmPlot.cmbPoints.Enabled, frmPlot.sclLinenum.Enabled}) {
            EXPECT_EQ(enabled, row[3] == "enabled");
        }
    }
    EXPECT_EQ(frmPlot.cmbType.List, names);
    EXPECT_EQ(frmPlot.cmbLineColor.List,
              Split("Yellow|Magenta|Cyan|Red|Green|Blue|White|Black", '|'));
    EXPECT_EQ(frmPlot.cmbLineType.List, Split("Solid|Points|Dotted|Dashed|Dot-Dash", '|'));
    EXPECT_EQ(frmPlot.cmbPoints.List, Split("o|x|+|*", '|'));
}

}  // namespace quorvane::testing
