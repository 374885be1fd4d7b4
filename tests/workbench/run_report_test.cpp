// SPDX-License-Identifier: MIT
#include "workbench/run_report.h"

#include "files/close_document.h"
#include "files/document_fixture.h"
#include "workbench/after_event.h"
#include "workbench/history.h"
#include "workbench/outline.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

/// A run has left a value at each of four boxes, of which the first three hang together; the first
/// has asked for its text.
class RunReportTest : public DocumentTest {
protected:
    void SetUp() override {
        DocumentTest::SetUp();
        Draw({{"Keyboard Input", "", {}, {2}},
              {"Sin", "", {1}, {3}},
              {"Cos", "", {2}, {}},
              {"Tan", "", {}, {}}});
        AfterEvent();
        Run();
    }
    void Run() {
        BeginReport(4);
        Boxes[1].BoxText = "7";
        for (const std::int16_t box : {1, 2, 3, 4}) {
            ReportRunning({box});
            ReportValue(std::to_string(box) + ":v" + std::to_string(box) + "\n");
            ReportEnd({box}, box == 4 ? box : std::int16_t{0}, false);
        }
        ReportFailure(4, "no");
        AfterEvent();
    }
    /// What shows at the boxes once an event has done this.
    static std::string After(const std::function<void()>& event) {
        event();
        AfterEvent();
        std::string shown;
        for (int i = 1; i < NextBox; ++i) shown += ReportInWords(i) + ", ";
        return shown + RunInWords();
    }
};

TEST_F(RunReportTest, ItFollowsItsBoxesAndAges) {
    const std::string whole = "v1, v2, v3, no, 1 box failed";
    EXPECT_EQ(After([] {}), whole);
    EXPECT_EQ(After([] { DeleteBox_Key(2); }), "v1, no, out of date: v3, 1 box failed");
    EXPECT_EQ(After(Undo), whole);
    EXPECT_EQ(After([] { Boxes[2].BoxLeft = 9, Boxes[2].BoxLineColor[1] = 9; }), whole);
    const std::string aged = "v1, out of date: v2, out of date: v3, ";
    EXPECT_EQ(After([] { Boxes[2].BoxText = "x"; }), aged + "no, 1 box failed");
    EXPECT_EQ(After([] { Boxes[4].BoxIn[1] = 0; }), aged + "out of date: no, ");
    EXPECT_EQ(After([this] { Run(); }), whole);
    EXPECT_EQ(After([] { Boxes[1].BoxType = "Constant Input"; }),
              "out of date: v1, " + aged.substr(4) + "no, 1 box failed");
    EXPECT_EQ(After(Undo), whole);
    screen.MessageAnswers = {Answer::No};
    EXPECT_EQ(After([] { CloseDocument(1); }), "");
    NewDocument();
    EXPECT_EQ(After([] { Draw({{"Sin", "", {}, {}}}); }), ", ");
    Undo();
    EXPECT_EQ(After(Undo), whole);
}

}  // namespace
