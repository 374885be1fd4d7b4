// SPDX-License-Identifier: MIT
#include "workbench/option_lines.h"

#include "catalogue/catalogue_fixture.h"
#include "commands/option_list_dialog.h"

namespace quorvane::testing {

struct OptionLines : CatalogueTest {
    static std::string Tip(const char* dialog, std::size_t row) {
        const auto& list = *FindOptionList(dialog);
        return TipOfOption(list, list.Options[row]);
    }
};

TEST_F(OptionLines, TellWhatOkWouldWrite) {
    Draw({{"Sin", "", {0}, {2}}, {"Cos", "", {1}, {}}});
    const auto boxes = Boxes;
    EXPECT_EQ(Tip("frmBasic", 0), "box4=box1+box2+box3;");
    EXPECT_EQ(Tip("frmBasic", 1), "box3=box1-box2;") << "a third entry would be lost";
    EXPECT_EQ(Tip("frmLogic", 2), "box2=~box1;");
    EXPECT_EQ(Tip("frmConst", 5), "box1=1;") << "no number is typed yet";
    EXPECT_EQ(Tip("frmVec", 3), "This box writes no line.");
    EXPECT_EQ(Tip("frmCheck", 13), "box2=isstr(box1 );");
    EXPECT_EQ(Tip("frmSound", 6),
              "box2=mu2lin(box1,box-1 );\r\n );\r\nGNU Octave can't run this: parse error");

    // The dialog stands open.
    frmOptionList_Load(*FindOptionList("frmBasic"));
    frmOptionList.chkElement.Value = 1;
    EXPECT_EQ(Tip("frmBasic", 2), "box3=box1.*box2;");
    EXPECT_EQ(Tip("frmBessel", 0), "box2=besselj(0,box1);") << "another list's field doesn't count";
    EXPECT_EQ(frmOptionList.chkElement.Value, 1);
    frmOptionList_Load(*FindOptionList("frmCheck"));
    frmOptionList_Option_Click(8);
    EXPECT_EQ(Tip("frmCheck", 13),
              "box2=finite(box1 );\r\nGNU Octave doesn't know this: 'finite' undefined");
    EXPECT_EQ(frmOptionList.txtOpn, "8");
    EXPECT_TRUE(Boxes == boxes);
    EXPECT_EQ(desktop, &screen);
}

}  // namespace quorvane::testing
