// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QClipboard>
#include <QMessageBox>
#include <QTest>
#include <set>

#include "catalogue/box_commands.h"
#include "diagram/box_table.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

/// The commands that make boxes, each chosen from its menu and answered by clicks.
class DialogsTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        program = std::make_unique<Program>();
        program->Choose("mnuFileNew");
    }
    void cleanup() { program.reset(); }

    void each_dialog_makes_its_box_data();
    void each_dialog_makes_its_box();
    void every_command_without_a_dialog_makes_its_box();
    void a_drawn_plot_is_compiled();
    void a_matrix_is_typed_while_the_diagram_is_compiled();
    void a_list_can_not_be_cancelled();

private:
    std::unique_ptr<Program> program;
};

namespace {

struct Row {
    const char* Command;
    std::initializer_list<const char*> Steps;
    const char* BoxType;
    const char* BoxText;
    int Cell;  ///< Of the icon strip
};

// clang-format off
const Row rows[] = {
    {"mnuInputUser", {"txtPrompt=How many?", "cmdOK"}, "User Input", "How many?", 140},
    {"mnuInputPause", {"lblSecs=3", "cmdOK"}, "Pause", "3", 90},
    {"mnuOutputPlot", {"cmbType=2-D Bar", "chkInput1(1)", "chkInput2(2)", "cmdOK"},
     "Plot Output", "Bar;bar(Input1,Input2,'m')\r\n", 9},
    {"mnuConst", {"txtConst=12", "cmdOK"}, "Constant Input", "12", 24},
    {"mnuOperatorsArith", {"mul", "chkElement", "cmdOK"}, "*", ".", 115},
    {"mnuOperatorsLogic", {"btnOps(4)", "cmdOK"}, "Logic Operator", "xor", 79},
    {"mnuOperatorsComplex", {"opn(6)", "cmdOK"}, "Sort Complex", "cplxpair", 122},
    {"mnuOperatorsFunc", {"chkcell", "txtoutput=Output", "opnInput(2)", "cmdOK"},
     "Compute Function", "Output=Input2;", 59},
    {"mnuOperatorsRound", {"opn(3)", "cmdOK"}, "Rem", "", 106},
    {"mnuMatMakeVec", {"txtMin=2", "txtStep=3", "txtMax=11", "cmdOK"},
     "Vector Make Input", "[2:3:11];", 142},
    {"mnuMatMake", {"opn(2)", "Option1", "txtRows=3", "cmdOK"}, "Matrix Make Input", "eye(3,1)", 82},
    {"mnuMatSpecMat", {"opn(7)", "cmdOK"}, "Magic square", "Magic", 124},
    {"mnuMatSplit", {"row", "txtTo=4", "cmdOK"}, "Split", "Col1:4", 146},
    {"mnuMatAnalysis", {"opn(4)", "cmdOK"}, "Determinant", "det", 34},
    {"mnuMatMan", {"opn(0)", "diag=2", "cmdOK"}, "Matrix Manipulation", "Diag|2", 35},
    {"mnuMatEig", {"opn(2)", "cmdOK"}, "Characteristic polynomial", "Poly", 18},
    {"mnuMatVectorOperations", {"opn(4)", "cmdOK"}, "Cumulative Product", "cumprod", 141},
    {"mnuMatDiff", {"opn(2)", "cmdOK"}, "Del2", "", 33},
    {"mnuMatCorr", {"opn(1)", "cmdOK"}, "Covariance matrix", "cov", 26},
    {"mnuLoopFor", {"txtUntil=9", "cmd"}, "For", "1:1:9,", 58},
    {"mnuCondIf", {"txtCondition=a>0", "chkelse", "cmdOK"}, "If", "elsea>0", 64},
    {"mnuSpecialCheck", {"opn(5)", "txtCond=>3", "Option1", "cmdOK"}, "Find", ">3", 19},
    {"mnuSpecialBessel", {"opn(1)", "txtOrder=2", "cmdOK"}, "BesselY", "2", 13},
    {"mnuSpecialNumerical", {"opn(4)", "cmdOK"}, "Interpolate with FFT", "interpft", 70},
    {"mnuSpecialPoly", {"opn(5)", "cmdOK"}, "Fit Polynomial", "polyfit", 99},
    {"mnuSpecialInt", {"opn(1)", "cmdOK"}, "LCM", "", 71},
    {"mnuSpecialError", {"opn(3)", "cmdOK"}, "Inverse error function", "erfinv", 46},
    {"mnuSpecialBeta", {"opn(6)", "cmdOK"}, "Exponential integral function", "Expint", 48},
    {"mnuStringMake", {"opn(1)", "cmdOK"}, "Blanks", "", 15},
    {"mnuStringCompare", {"opn(2)", "cmdOK"}, "Upper", "", 138},
    {"mnuStringConvert", {"opn(7)", "cmdOK"}, "Dec2Hex", "", 128},
    {"mnuSounds", {"opn(5)", "cmdOK"}, "wavread", "", 143},
    {"mnuSpecMatlab", {"txtFunc=SVD(Input1);", "chkInputs(1)", "chkOutputs(1)", "cmdOK"},
     "Matlab Command", "Output=svd(input1);", 84},
    {"mnuSpecComment", {"txtComment=Look", "cmdOK"}, "Comment", "Look", 20},
    {"mnuSpecSubInsert", {"available_subs=mean Subroutine", "cmdOK"},
     "Insert Subroutine mean", "Subroutine", 130},
};
// clang-format on

int Picture(int number) { return DocumentWindow(1).box[number].Picture; }

bool HasDialog(const BoxCommand& command) { return !command.Dialog.empty(); }

}  // namespace

void DialogsTest::each_dialog_makes_its_box_data() {
    QTest::addColumn<int>("row");
    std::set<std::string_view> covered;
    for (int i = 0; i < static_cast<int>(std::size(rows)); ++i) {
        QTest::newRow(rows[i].Command) << i;
        covered.insert(rows[i].Command);
    }
    for (const auto& command : boxCommands) {
        if (HasDialog(command) && command.Dialog != "input box") {
            QVERIFY2(covered.contains(command.Control), command.Control.data());
        }
    }
}

void DialogsTest::each_dialog_makes_its_box() {
    QFETCH(int, row);
    const Row& expected = rows[row];
    program->Answers.push_back(Play(expected.Steps));
    program->Place(expected.Command, {120, 90});
    QCOMPARE(NextBox, 2);
    QCOMPARE(Boxes[1].BoxType, std::string(expected.BoxType));
    QCOMPARE(Boxes[1].BoxText, std::string(expected.BoxText));
    QCOMPARE(Picture(1), expected.Cell);
    QVERIFY(program->Answers.empty());
    QCOMPARE(program->BoxNames(), QStringList{QString("box1 ") + expected.BoxType});
}

void DialogsTest::every_command_without_a_dialog_makes_its_box() {
    int made = 0;
    for (const auto& command : boxCommands) {
        if (HasDialog(command) && command.Dialog != "input box") continue;
        if (HasDialog(command)) program->Answers.push_back(TypeIn("x"));
        program->Place(QString::fromUtf8(command.Control.data()), {30 + made * 8, 60});
        QCOMPARE(NextBox, ++made + 1);
        QVERIFY(!Boxes[made].BoxType.empty());
        QVERIFY(Picture(made) > 0);
    }
    QCOMPARE(made + static_cast<int>(std::size(rows)), 66);
}

void DialogsTest::a_drawn_plot_is_compiled() {
    program->Answers = {
        Play({"txtMax=5", "cmdOK"}),
        // A type without marks is refused, and the dialog stays.
        Play({"cmbType=2-D Plot", "cmdOK", "chkInput1(2)", "chkFigure", "txtTitle=Line", "cmdOK"}),
        Press(QMessageBox::Ok), Press(QMessageBox::Ok)};
    program->Place("mnuMatMakeVec", {60, 60});
    program->Place("mnuOutputPlot", {200, 60});
    program->Join(1, 2);
    program->Choose("mnuExeDDE");
    QCOMPARE(QApplication::clipboard()->text(),
             "box1=[1:1:5];\r\nfigure;\r\nplot([1:1:length(box1)],box1,'y')\r\ntitle('Line')\r\n");
    QVERIFY(program->Asked.join("\n").contains("No variable marked for Y axis."));
}

void DialogsTest::a_matrix_is_typed_while_the_diagram_is_compiled() {
    program->Place("mnuInputKeyboardMatrix", {60, 60});
    program->Answers = {[](QDialog& dialog) {
                            auto* grid = dialog.findChild<QWidget*>("grid");
                            QTest::keyClicks(grid, "1");
                            QTest::keyClick(grid, Qt::Key_Tab);
                            QTest::keyClicks(grid, "-2.5x");
                            QTest::keyClick(grid, Qt::Key_Backspace);
                            QTest::keyClick(grid, Qt::Key_Down);
                            QTest::keyClicks(grid, "3");
                            QTest::keyClick(grid, Qt::Key_Escape);
                            QVERIFY(dialog.isVisible());
                            QTest::mouseClick(dialog.findChild<QWidget*>("cmdOK"), Qt::LeftButton);
                        },
                        Press(QMessageBox::Ok)};
    program->Choose("mnuExeDDE");
    QCOMPARE(QApplication::clipboard()->text(), "box1= [1  -2.5      ; 3         ]; \r\n");
}

void DialogsTest::a_list_can_not_be_cancelled() {
    program->Answers = {[](QDialog& dialog) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(dialog.isVisible());
        dialog.close();
        QVERIFY(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Return);
    }};
    program->Place("mnuOperatorsComplex", {60, 60});
    QCOMPARE(Boxes[1].BoxType, std::string("Abs"));
}

}  // namespace quorvane::testing

QTEST_MAIN(quorvane::testing::DialogsTest)
#include "dialogs_test.moc"
