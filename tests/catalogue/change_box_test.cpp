// SPDX-License-Identifier: MIT
#include "commands/change_box.h"

#include "catalogue/catalogue_fixture.h"
#include "catalogue/option_lists.h"
#include "commands/worksheet_events.h"

namespace quorvane::testing {

namespace {

/// Another box at the far end of every open slot.
template <class Slots>
void JoinAll(Slots& slots, auto&& join) {
    for (int i = 1; i <= Slots::UpperBound; ++i) {
        if (slots[i] == 0) slots[i] = static_cast<std::int16_t>(join());
    }
}

}  // namespace

struct ChangedBox : CatalogueTest {
    /// Makes box 1 by these steps, joins all its slots, and changes it by others: its record is
    /// that of a box made by those, but for the arrows of the slots that stay open.
    void Change(const std::string& dialog, const std::string& from, const std::string& to) {
        SCOPED_TRACE(dialog + " " + from + " to " + to);
        Restart();
        const Box wanted = Make(dialog, to);
        const int picture = Sheet().box[1].Picture;
        Restart();
        Make(dialog, from);
        main_MouseDown(Sheet(), LeftButton, 0, 300, 600);
        Boxes[1].BoxLineColor.Fill(77);
        JoinAll(Boxes[1].BoxIn, [this] { return Draw({{"Sin", "", {}, {1}}}); });
        JoinAll(Boxes[1].BoxOut, [this] { return Draw({{"Sin", "", {1}, {}}}); });
        const Box before = Boxes[1];
        const int others = NextBox;
        const auto ok = dialog == "frmForLoop" ? "|cmd" : "|cmdOK";
        screen.Forms[dialog] = [&] { Play(dialog, to + ok); };
        ASSERT_TRUE(ChangeBox(Sheet(), 1));
        EXPECT_EQ(Boxes[1].BoxType + "~" + Boxes[1].BoxText, wanted.BoxType + "~" + wanted.BoxText);
        EXPECT_EQ(Sheet().box[1].Picture, picture);
        EXPECT_EQ(DocumentStates[1].Modified, -1);
        EXPECT_EQ(NextBox, others);
        EXPECT_TRUE(Boxes[1].BoxLineColor == before.BoxLineColor);
        EXPECT_EQ(Boxes[1].BoxLeft, 300);
        EXPECT_EQ(Boxes[1].BoxTop, 600);
        int arrows = 0;
        const auto compare = [&](const auto& now, const auto& former, const auto& fresh) {
            for (int i = 1; i <= now.UpperBound; ++i) {
                const bool stays = former[i] > 0 && fresh[i] == 0;
                EXPECT_EQ(now[i], stays ? former[i] : fresh[i]) << "slot " << i;
                arrows += stays;
                const Box& peer = BoxOrFree(former[i]);
                EXPECT_EQ(peer.BoxIn[1] == 1 || peer.BoxOut[1] == 1, stays) << "far end " << i;
            }
        };
        compare(Boxes[1].BoxIn, before.BoxIn, wanted.BoxIn);
        compare(Boxes[1].BoxOut, before.BoxOut, wanted.BoxOut);
    }
};

TEST_F(ChangedBox, EachOptionBecomesTheNextOne) {
    for (const auto& list : optionLists) {
        std::string before;
        for (const auto& option : list.Options) {
            const auto name = OptionName(list, option);
            if (name.empty() || name == "Option1") continue;
            if (!before.empty()) {
                Change(std::string(list.Dialog), before, name);
                Change(std::string(list.Dialog), name, before);
            }
            before = name;
        }
    }
}

TEST_F(ChangedBox, SlotsFollowWhatIsTypedAndTicked) {
    Change("frmForLoop", "txtFrom=2", "txtFrom=1|txtUntil=n");
    Change("frmIf", "txtCondition=a", "txtCondition=b");
    Change("frmMakeMat", "opn(1)|txtRows=7", "opn(3)|txtRows=1");
    Change("frmPause", "lblSecs=3", "lblSecs=4");
    Change("frmFunc", "txtFunc=Input1+Input2", "txtFunc=Input3");
    Change("frmFunc", "txtFunc=Input1+Input2+Input3", "txtFunc=5");
    Change("frmMatlabFunction", "txtFunc=a|chkInputs(1)=1|chkOutputs(1)=1",
           "txtFunc=b|chkInputs(1)=0|chkInputs(3)|chkOutputs(1)=0");
    Change("frmPlot", "cmbType=2-D Plot|chkInput1(2)|chkInput2(2)",
           "cmbType=2-D Plot|chkInput1(2)=0|chkInput1(2)|chkInput2(2)=0");
}

}  // namespace quorvane::testing
