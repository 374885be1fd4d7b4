// SPDX-License-Identifier: MIT
#include "diagram/box_table.h"
#include "diagram/layout.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

namespace {

constexpr QSize BoxSize(33, 33);

/// The smallest rectangle that holds all that isn't white within `area`.
QRect Inked(const QImage& picture, const QRect& area) {
    QRect inked;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (picture.pixelColor(x, y) != Qt::white) inked |= QRect(x, y, 1, 1);
        }
    }
    return inked;
}

/// True for a picture of blocks of 2 by 2 pixels.
bool IsMagnified(const QImage& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(x & ~1, y & ~1)) return false;
        }
    }
    return true;
}

}  // namespace

/// A user draws on worksheets, by mouse and by keyboard. What the records then hold is told by the
/// tests of the core; here it is what stands on the screen.
class WorksheetTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        program = std::make_unique<Program>();
        program->Choose("mnuFileNew");
    }
    void cleanup() { program.reset(); }

    void a_diagram_is_drawn_and_compiled() {
        auto* surface = program->Surface();
        program->Answers = {Play("txtMax=5|cmdOK")};
        program->Choose("mnuMatMakeVec");
        QVERIFY2(!program->Box(1), "an armed box is hidden");
        QCOMPARE(surface->cursor().shape(), Qt::CrossCursor);
        program->Click({60, 50});
        QCOMPARE(program->Box(1)->geometry(), QRect({60, 50}, BoxSize));
        QCOMPARE(surface->cursor().shape(), Qt::ArrowCursor);

        program->Place("mnuTrigSin", {60, 150});
        program->Answers = {Play("cmbType=2-D Plot|cmdOK|chkInput1(2)|txtTitle=Sine|cmdOK"),
                            Press(QMessageBox::Ok)};
        program->Place("mnuOutputPlot", {200, 250});
        QCOMPARE(program->BoxNames(),
                 QStringList({"box1 Vector Make Input", "box2 Sin", "box3 Plot Output"}));

        program->Choose("mnuArrow");
        QCOMPARE(surface->cursor().shape(), Qt::ForbiddenCursor);
        QCOMPARE(program->Box(1)->cursor().shape(), Qt::ArrowCursor);
        QTest::mouseClick(program->Box(1), Qt::LeftButton);
        QTest::mouseDClick(program->Box(1), Qt::LeftButton);
        QTest::mouseRelease(program->Box(1), Qt::LeftButton);
        QCOMPARE(EditMode, 4);
        QTest::mouseClick(program->Box(2), Qt::LeftButton);
        QCOMPARE(surface->cursor().shape(), Qt::ArrowCursor);
        program->Join(2, 3);

        program->Answers = {Press(QMessageBox::Ok)};
        program->Choose("mnuExeDDE");
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 "box1=[1:1:5];\r\nbox2=sin(box1);\r\nplot([1:1:length(box2)],box2,'y')\r\n"
                 "title('Sine')\r\n");
        QCOMPARE(program->Asked.size(), 4);
        QVERIFY(program->Asked[2].contains("No variable marked for Y axis."));
        QCOMPARE(program->Asked[3], "Quorvane: Done !");
    }

    void the_keyboard_does_what_the_mouse_does() {
        const auto press = [&](std::initializer_list<int> keys) {
            for (const int key : keys) program->Type(key);
        };
        const auto menu = [&](int bar, std::initializer_list<int> keys) {
            program->Type(bar, Qt::AltModifier);
            press(keys);
        };
        auto* surface = program->Surface();
        QCOMPARE(QApplication::focusWidget(), surface);
        menu(Qt::Key_N, {Qt::Key_I, Qt::Key_K, Qt::Key_V, Qt::Key_Return});
        QVERIFY(program->Box(1));
        QCOMPARE(program->Box(1)->pos(), surface->rect().center());
        menu(Qt::Key_N, {Qt::Key_O, Qt::Key_S});
        press({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Right});
        program->Type(Qt::Key_Right, Qt::ControlModifier);
        press({Qt::Key_Space});
        QCOMPARE(program->Box(2)->pos(), surface->rect().center() + QPoint(16, 60));

        menu(Qt::Key_N, {Qt::Key_A});
        press({Qt::Key_Tab});
        QCOMPARE(QApplication::focusWidget(), program->Box(1));
        press({Qt::Key_Return, Qt::Key_Tab});
        QCOMPARE(QApplication::focusWidget(), program->Box(2));
        press({Qt::Key_Return});
        program->Answers = {Cancel()};
        program->Type(Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(program->Asked, QStringList({"frmInfo: Box Information"}));

        program->Answers = {TypeIn("3 4"), Press(QMessageBox::Ok)};
        menu(Qt::Key_V, {Qt::Key_Left, Qt::Key_C});
        QCOMPARE(QGuiApplication::clipboard()->text(), "box1=[ 3 4 ];\r\nbox2=box1\r\n");

        surface->setFocus();
        QCursor::setPos(surface->mapToGlobal(program->Box(1)->pos() - QPoint(5, 5)));
        QTest::keyPress(surface, Qt::Key_Shift);
        program->Type(Qt::Key_Right, Qt::ShiftModifier);
        program->Type(Qt::Key_Down, Qt::ShiftModifier);
        QTest::keyRelease(surface, Qt::Key_Shift);
        program->Type(Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(program->BoxNames(), QStringList({"box1 Screen Output"}));
    }

    void arrows_are_sharp_and_the_rubber_band_leaves_no_trace() {
        program->Place("mnuTrigSin", {60, 50});
        program->Place("mnuTrigCos", {60, 150});
        program->Join(1, 2);
        const auto before = program->Screen(program->Surface());
        const auto ratio = before.devicePixelRatio();
        QCOMPARE(ratio, qEnvironmentVariable("QT_SCALE_FACTOR", "1").toDouble());
        const QColor sheet = before.pixelColor(5, 5);
        QCOMPARE(program->Colored(110, {55, 80}, NewArrow), 1.0);
        QCOMPARE(program->Colored(110, {55, 80}, sheet), 24.0);

        // The icon within the outline, where it isn't the box that makes it sharp.
        const auto face = program->Screen(program->Box(1));
        const auto icon = face.copy(face.rect().adjusted(9, 9, -9, -9));
        QVERIFY2(ratio == 1 || !IsMagnified(icon), "faces are drawn for the screen");

        program->Band({300, 200}, {400, 300});
        const QColor inverse(255 - sheet.red(), 255 - sheet.green(), 255 - sheet.blue());
        QCOMPARE(program->Colored(250, {290, 410}, inverse), 2.0);
        program->Band({20, 20}, {250, 250});
        program->Click({500, 20});
        QCOMPARE(program->Screen(program->Surface()), before);
    }

    void a_deleted_box_gives_its_number_to_the_last_one() {
        program->Place("mnuTrigSin", {50, 40});
        program->Place("mnuTrigCos", {50, 140});
        program->Place("mnuTrigTan", {250, 40});
        program->Join(1, 2);
        const auto face = program->Screen(program->Box(3));
        program->Band({40, 30}, {80, 80});
        program->Choose("mnuEditClear");
        QCOMPARE(program->BoxNames(), QStringList({"box1 Tan", "box2 Cos"}));
        QCOMPARE(program->Box(1)->geometry(), QRect({250, 40}, BoxSize));
        QCOMPARE(program->Screen(program->Box(1)), face);
        QCOMPARE(program->Colored(100, {50, 90}, NewArrow), 0.0);
    }

    void a_box_is_dragged() {
        program->Place("mnuTrigSin", {60, 50});
        program->Place("mnuTrigCos", {60, 250});
        program->Join(1, 2);
        auto* box = program->Box(1);
        QTest::mouseClick(box, Qt::RightButton);
        program->Drag(box, program->Surface(), {200, 150});
        QCOMPARE(box->geometry(), QRect({184, 134}, BoxSize));
        QCOMPARE(program->Colored(200, {55, 100}, NewArrow), 1.0);
        // Behind a box that was dropped between two pixels no arrow from below looks out above.
        QTest::mouseClick(box, Qt::RightButton);
        program->Join(2, 1);
        auto picture = program->Screen(program->Surface());
        const int ratio = qRound(picture.devicePixelRatio());
        picture.setDevicePixelRatio(1);
        QCOMPARE(ColoredIn(picture, box->y() * ratio - 1, {184 * ratio, 217 * ratio}, NewArrow),
                 0.0);
        // The record holds the drop point, so that a scroll there and back puts the corner on it.
        auto* bar = static_cast<QScrollBar*>(program->Part("scrV"));
        QMimeData theirs;
        theirs.setData("application/x-quorvane-box", "1");
        QDropEvent drop({300, 300}, Qt::MoveAction, &theirs, Qt::LeftButton, {});
        QCoreApplication::sendEvent(program->Surface(), &drop);
        QVERIFY2(box->pos() == QPoint(184, 134), "another program's box is none of this one's");
        bar->setValue(300);
        QCOMPARE(box->pos(), QPoint(184, 130));
        bar->setValue(0);
        QCOMPARE(box->pos(), QPoint(184, 150));
    }

    void the_bubble_names_the_box_under_the_mouse() {
        program->Place("mnuTrigSin", {60, 50});
        const auto text = [&] {
            const auto* bubble = static_cast<QLabel*>(program->Part("txtboxname"));
            return bubble ? bubble->text() : QString();
        };
        QTest::mouseMove(program->Box(1));
        QCOMPARE(text(), "Sin");
        QCOMPARE(program->Part("txtboxname")->pos(), QPoint(93, 83));
        QTest::mouseMove(program->Surface(), {300, 300});
        QCOMPARE(text(), "");
        program->Place("mnuTrigCos", {160, 50});
        Boxes[2].BoxType.clear();
        QTest::mouseMove(program->Box(1));
        QTest::mouseMove(program->Box(2));
        QVERIFY(!program->Part("txtboxname"));
        program->Choose("mnuOptionsBubbleShow");
        QTest::mouseMove(program->Box(1));
        QCOMPARE(text(), "");
    }

    void the_information_dialog_breaks_arrows_and_opens_locked_slots() {
        program->Place("mnuTrigSin", {60, 50});
        program->Place("mnuTrigCos", {60, 150});
        program->Join(1, 2);
        const auto entries = [] {
            return QList<int>(Boxes[2].BoxIn.begin(), Boxes[2].BoxIn.end());
        };
        program->Answers = {[&](QDialog& dialog) {
            QStringList shown;
            for (const char* name : {"lblBoxName", "lblFrom(1)", "lblFrom(2)", "lblEmpty"}) {
                const auto* label = dialog.findChild<QLabel*>(name);
                shown.append(label->isVisible() ? label->text() : "");
            }
            QCOMPARE(shown, QStringList({"This box's name is: box2 (Cos)", "box1 (Sin)", "",
                                         "There are no empty inputs, and 5 empty outputs."}));
            Play("chkFrom(1)|chkLockedInputs")(dialog);
            QTest::keyClick(&dialog, Qt::Key_Escape);
        }};
        QTest::mouseClick(program->Box(2), Qt::MiddleButton);
        QCOMPARE(entries(), QList<int>({1, -1, -1}));

        // After Cancel the ticks are there again; one of them is taken back.
        program->Answers = {Play("chkLockedInputs|cmdOK")};
        QTest::mouseClick(program->Box(2), Qt::RightButton, Qt::ShiftModifier);
        QCOMPARE(entries(), QList<int>({0, -1, -1}));
        QCOMPARE(program->Colored(110, {55, 80}, NewArrow), 0.0);
        program->Answers = {Play("chkLockedInputs|cmdOK")};
        QTest::mouseClick(program->Box(2), Qt::MiddleButton);
        QCOMPARE(entries(), QList<int>({0, 0, 0}));

        program->Join(1, 2);
        program->Answers = {[&](QDialog& dialog) {
            QVERIFY(!dialog.findChild<QWidget*>("chkLockedOutputs")->isVisible());
            const auto choose = [](QDialog& colors) {
                static_cast<QColorDialog&>(colors).setCurrentColor(Qt::red);
                colors.accept();
            };
            program->Answers = {choose, Cancel()};
            Play("cmdColor|cmdColor|cmdOK")(dialog);
        }};
        QTest::mouseClick(program->Box(1), Qt::MiddleButton);
        QCOMPARE(program->Colored(110, {55, 80}, Qt::red), 1.0);
    }

    void the_sheet_grows_where_it_is_scrolled_to_its_end() {
        program->Place("mnuTrigSin", {60, 250});
        auto* bar = static_cast<QScrollBar*>(program->Part("scrV"));
        for (const int end : {7000, 8000, 9000}) {
            QCOMPARE(bar->maximum(), end);
            bar->setValue(bar->maximum());
        }
        QCOMPARE(bar->maximum(), 10000);
        QCOMPARE(program->Box(1)->y(), 250 - 9000 / 15);
    }

    void the_sheet_is_scrolled_by_wheel_and_keys() {
        program->Place("mnuTrigSin", {60, 250});
        const auto bar = [&](const char* name) {
            return static_cast<QScrollBar*>(program->Part(name));
        };
        const auto at = [&] { return QPoint(bar("scrH")->value(), bar("scrV")->value()); };
        const auto turn = [&](const char* over, QPoint by, Qt::KeyboardModifiers keys = {}) {
            auto* part = program->Part(over);
            QWheelEvent event({5, 5}, part->mapToGlobal(QPointF(5, 5)), {}, by, Qt::NoButton, keys,
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(part, &event);
            return at();
        };
        QCOMPARE(turn("surface", {0, -120}), QPoint(0, 600));
        QCOMPARE(program->Box(1)->pos(), QPoint(60, 250 - 40));
        QCOMPARE(turn("surface", {0, -120}, Qt::ShiftModifier), QPoint(600, 600));
        QCOMPARE(turn("surface", {-60, 0}), QPoint(900, 600));
        QCOMPARE(turn("scrH", {0, 60}, Qt::ShiftModifier), QPoint(600, 600));
        for (int i = 0; i < 7; ++i) turn("scrV", {0, 1});
        QCOMPARE(at(), QPoint(600, 565));
        QCOMPARE(turn("scrV", {600, 240}), QPoint(0, 0));
        QCOMPARE(program->Box(1)->pos(), QPoint(60, 250));

        const int page = program->Surface()->height() * 15 - 600;
        program->Type(Qt::Key_PageDown);
        QCOMPARE(at(), QPoint(0, qMin(page, 7000)));
        program->Type(Qt::Key_PageUp);
        program->Type(Qt::Key_End);
        QCOMPARE(at(), QPoint(0, 7000));
        program->Type(Qt::Key_PageDown, Qt::ShiftModifier);
        QCOMPARE(at(), QPoint(program->Surface()->width() * 15 - 600, 7000));
        program->Type(Qt::Key_Home, Qt::ShiftModifier);
        program->Type(Qt::Key_Home);
        QCOMPARE(at(), QPoint(0, 0));
    }

    void the_page_view_shows_the_sheet_at_small_scale() {
        program->Place("mnuTrigSin", {150, 90});
        program->Place("mnuTrigCos", {150, 300});
        program->Join(1, 2);
        program->Answers = {[&](QDialog& dialog) {
            const auto picture = dialog.grab().toImage();
            const auto ratio = picture.devicePixelRatio();
            QCOMPARE(ColoredIn(picture, 180, {110, 130}, NewArrow), 1.0);
            // The scales by the design size of the dialog and the extent of the page.
            const double x = ratio * (9600 - 2400.0) / PageRight;
            const double y = ratio * (7800 - 600 - 1800.0) / PageBottom;
            const QRectF expected(150 * x, 90 * y, 33 * x, 33 * y);
            const auto inked = Inked(picture, expected.adjusted(-9, -9, 9, 0).toRect());
            // The outline is a line on these edges, smoothed.
            for (const double off :
                 {inked.left() - expected.left(), inked.top() - expected.top(),
                  inked.right() + 1 - expected.right(), inked.bottom() + 1 - expected.bottom()}) {
                QVERIFY2(qAbs(off) < 2, qPrintable(QString::number(off)));
            }
            const auto* box = dialog.findChild<QWidget*>("box(2)");
            QVERIFY(box && box->accessibleName() == "box2 Cos");
            Play("cmdOK")(dialog);
        }};
        program->Choose("mnuPageView");
        QCOMPARE(program->Asked, QStringList({"frmPageView: Quorvane Page View"}));
        QVERIFY(!QApplication::activeModalWidget());
    }

private:
    std::unique_ptr<Program> program;
};

}  // namespace quorvane::testing

QTEST_MAIN(quorvane::testing::WorksheetTest)
#include "worksheet_test.moc"
