// SPDX-License-Identifier: MIT
#include "diagram/selection.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "support/random_user.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

/// A user without a plan edits; whatever comes of it, the records and the screen agree.
struct EditingWindow : WindowTest {
    /// What doesn't hold of the table and the screen, "" where all does.
    std::string Disagreement() const {
        if (NextBox < 1 || NextBox > MaxBoxes + 1) return "NextBox " + Show(NextBox);
        for (int i = 1; i < NextBox; ++i) {
            if (const auto fault = FaultOf(i); !fault.empty()) return "box" + Show(i) + " " + fault;
        }
        return "";
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
        const auto& control = controls[number];
        const QPoint at(ToPixels(control.Left), ToPixels(control.Top));
        if (!armed && control.Visible && shown->pos() != at) return "lies elsewhere on the screen";
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
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ASSERT_EQ(Disagreement(), "") << operation << ", operation " << i;
    }
}

}  // namespace quorvane::testing
