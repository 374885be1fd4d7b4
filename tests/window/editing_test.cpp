// SPDX-License-Identifier: MIT
#include "diagram/selection.h"
#include "qt/desktop/dispatch.h"
#include "support/random_user.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

/// A user without a plan edits; whatever comes of it, the records and the screen agree.
struct EditingWindow : WindowTest {
    /// What doesn't hold of the table and the screen, "" where all does.
    std::string Disagreement() const {
        if (NextBox < 1 || NextBox > MaxBoxes + 1) return "NextBox " + Show(NextBox);
        for (int i = 1; i <= MaxBoxes; ++i) {
            const auto fault = i < NextBox ? FaultOf(i) : FaultOfFree(i);
            if (!fault.empty()) return "box" + Show(i) + " " + fault;
        }
        return "";
    }
    static std::string FaultOfFree(int number) {
        const auto& box = Boxes[number];
        quorvane::Box cleared;
        cleared.BoxLeft = box.BoxLeft;
        cleared.BoxTop = box.BoxTop;
        return box == cleared ? "" : "is free, but not cleared";
    }
    std::string FaultOf(int number) const {
        const auto& box = Boxes[number];
        const bool armed = EditMode == 2 && number == NextBox - 1;
        const auto* window = Window(box.BoxDocument);
        if (!window) return "lies in no document";
        const auto& controls = DocumentWindow(box.BoxDocument).box;
        if (!controls.Has(number)) return "has no control";
        const auto* shown = window->findChild<QWidget*>(QString("box(%1)").arg(number));
        if (!armed && !shown) return "is not on the screen";
        const QPoint at(qRound(controls[number].Left / 15), qRound(controls[number].Top / 15));
        if (!armed && shown->pos() != at) return "lies elsewhere on the screen";
        for (const auto feeder : box.BoxIn) {
            if (feeder < LockedSlot || feeder >= NextBox) return "is fed by nobody";
            const auto& exits = Boxes[feeder > 0 ? feeder : 0].BoxOut;
            const bool knows = std::find(exits.begin(), exits.end(), number) != exits.end();
            if (feeder > 0 && !knows) return "is fed by box" + Show(feeder) + " unawares";
        }
        return "";
    }
};

TEST_F(EditingWindow, RecordsAndScreenAgreeAfterRandomEditing) {
    const auto wanted = qEnvironmentVariableIntValue("QUORVANE_OPERATIONS");
    RandomUser user(static_cast<unsigned>(qEnvironmentVariableIntValue("QUORVANE_SEED")));
    user.Careful = true;
    quorvane::desktop = &user;
    for (int i = 0; i < (wanted > 0 ? wanted : 250); ++i) {
        std::string operation;
        Dispatch([&] { operation = user.Operate(); });
        ASSERT_EQ(Disagreement(), "") << operation << ", operation " << i;
    }
}

}  // namespace quorvane::testing
