// SPDX-License-Identifier: MIT
#include <random>

#include "catalogue/box_commands.h"
#include "diagram/box_table.h"
#include "diagram/selection.h"
#include "files/document_file.h"
#include "window/window_fixture.h"

namespace quorvane::testing {

namespace {

std::mt19937 chance;

/// A number from 0 to `below` - 1.
int Any(int below) { return static_cast<int>(chance() % static_cast<unsigned>(below)); }
bool OneIn(int times) { return Any(times) == 0; }

/// Fills fields and presses buttons as they come.
void Fumble(QDialog& dialog) {
    for (auto* field : dialog.findChildren<QLineEdit*>()) {
        if (!field->isVisible() || !field->isEnabled() || OneIn(2)) continue;
        field->setFocus();
        QTest::keyClicks(field, QStringList({"1", "box1", "x", "a b", "-.5", "'"})[Any(6)]);
    }
    for (auto* combo : dialog.findChildren<QComboBox*>()) {
        if (combo->isVisible() && combo->count() > 0) combo->setCurrentIndex(Any(combo->count()));
    }
    const auto buttons = dialog.findChildren<QAbstractButton*>();
    for (int i = 0; i < 4 && !buttons.empty() && dialog.isVisible(); ++i) {
        auto* button = buttons[Any(static_cast<int>(buttons.size()))];
        if (button->isVisible() && button->isEnabled()) QTest::mouseClick(button, Qt::LeftButton);
    }
}

/// Goes on until the form takes OK or Cancel; a plot without an axis is refused, for one.
void PlayForm(QDialog& dialog) {
    for (int tries = 0; dialog.isVisible() && tries < 200; ++tries) {
        Fumble(dialog);
        for (const char* name : {"cmdOK", "cmd"}) {
            auto* ok = dialog.findChild<QAbstractButton*>(name);
            if (dialog.isVisible() && ok) QTest::mouseClick(ok, Qt::LeftButton);
        }
        if (dialog.isVisible()) QTest::keyClick(&dialog, Qt::Key_Escape);
    }
}

/// A user without a plan, who ends every dialog.
void AnswerAnyhow(QDialog& dialog) {
    if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
        // Pressing it ends the program; a text with an entry's name in it may do that to a run.
        if (box->objectName() == "runtimeError") qWarning("%s", qPrintable(box->text()));
        // A closing that is cancelled gives its document's number away, by design.
        auto buttons = box->buttons();
        buttons.removeOne(box->button(QMessageBox::Cancel));
        buttons[Any(static_cast<int>(buttons.size()))]->click();
    } else if (qobject_cast<QFileDialog*>(&dialog)) {
        OneIn(3) ? Cancel()(dialog) : PickFile(QStringList({"a.qvm", "b.qvm"})[Any(2)])(dialog);
        if (dialog.isVisible()) dialog.reject();
    } else if (qobject_cast<QInputDialog*>(&dialog)) {
        OneIn(3) ? Cancel()(dialog) : TypeIn("box1")(dialog);
    } else if (qobject_cast<QColorDialog*>(&dialog)) {
        dialog.done(Any(2));
    } else {
        PlayForm(dialog);
    }
}

}  // namespace

/// A user without a plan edits; whatever comes of it, the records and the screen agree.
struct EditingWindow : WindowTest {
    QList<int> OpenDocuments() const {
        QList<int> open;
        for (int i = 1; i <= Documents.UpperBound(); ++i) {
            if (Window(i)) open.append(i);
        }
        return open;
    }

    /// Does one thing, on one of the worksheets, and says what.
    QString Operate() {
        const auto open = OpenDocuments();
        if (open.empty()) return Choose("mnuFileNew"), "new";
        const int document = open[Any(static_cast<int>(open.size()))];
        Frame().Area()->setActiveSubWindow(Window(document));
        if (!Surface(document)) return "minimised";
        const QPoint at(Any(500), Any(300));
        switch (Any(16)) {
            case 0:
            case 1:
            case 2:
            case 3: return MakeBox(at, document);
            case 4:
            case 5:
            case 6: return JoinBoxes(document);
            case 7: return Band(at, {Any(500), Any(300)}, document), "band";
            case 8: return MoveOrCopy(at, document);
            case 9: return Choose("mnuEditClear"), "clear";
            case 10: return Press(document);
            case 11: return Scroll(document);
            case 12: return OneIn(3) ? OpenOrClose(open.size()) : "nothing";
            case 13: return Choose("mnuFileSaveFile"), "save";
            case 14: return Choose(OneIn(4) ? "mnuEditLineColor" : "mnuExeDDE"), "run";
            default: return Choose("mnuEditRedraw"), "redraw";
        }
    }

    /// Arms a box from idle: with an arrow pending, the menu drops the last box, by design.
    QString MakeBox(QPoint at, int document) {
        EditMode = 1;
        const auto& command =
            boxCommands[static_cast<std::size_t>(Any(static_cast<int>(boxCommands.size())))];
        const auto control = QString::fromUtf8(command.Control.data(),
                                               static_cast<qsizetype>(command.Control.size()));
        if (!MakesBox(command) || NextBox > MaxBoxes) return "nothing";
        Choose(control);
        if (OneIn(8)) Choose("mnuTrigSin");
        if (EditMode == 2) Click(at, document);
        return control;
    }

    QList<QWidget*> BoxesOf(int document) const {
        QList<QWidget*> boxes;
        for (int i = 1; i < NextBox; ++i) {
            if (auto* box = Box(i, document)) boxes.append(box);
        }
        return boxes;
    }

    QString JoinBoxes(int document) {
        const auto boxes = BoxesOf(document);
        if (boxes.empty()) return "no boxes";
        Choose("mnuArrow");
        for (int i = 0; i < 2; ++i) {
            QTest::mouseClick(boxes[Any(static_cast<int>(boxes.size()))], Qt::LeftButton);
        }
        return "arrow";
    }

    /// A group goes to its own worksheet: into another one it can't, by design.
    QString MoveOrCopy(QPoint at, int document) {
        const int selected = SelectedBoxes.UpperBound() > 0 ? SelectedBoxes[1] : 0;
        const bool copies = OneIn(2) && NextBox + SelectedBoxes.UpperBound() <= MaxBoxes;
        if (!copies && selected > 0 && Boxes[selected].BoxDocument != document) return "elsewhere";
        Choose(copies ? "mnueditcopy" : "mnuEditMove");
        Click(at, document);
        return copies ? "copy" : "move";
    }

    QString Press(int document) {
        const auto boxes = BoxesOf(document);
        if (boxes.empty()) return "no boxes";
        auto* box = boxes[Any(static_cast<int>(boxes.size()))];
        QTest::mouseMove(box);
        QTest::mouseClick(box, OneIn(2) ? Qt::MiddleButton : Qt::RightButton);
        return "press";
    }

    QString Scroll(int document) {
        auto* bar = static_cast<QScrollBar*>(Part(OneIn(2) ? "scrV" : "scrH", document));
        bar->setValue(OneIn(2) ? 0 : Any(3000));
        return "scroll";
    }

    QString OpenOrClose(qsizetype open) {
        if (open < 4 && OneIn(2)) return Choose("mnuFileNew"), "new";
        if (OneIn(2)) return Choose("mnuFileLoad"), "open";
        return Choose("mnuFileClose"), "close";
    }

    /// What doesn't hold of the table and the screen, "" where all does.
    QString Disagreement() const {
        if (NextBox < 1 || NextBox > MaxBoxes + 1) return QString("NextBox %1").arg(NextBox);
        for (int i = 1; i <= MaxBoxes; ++i) {
            const auto fault = i < NextBox ? FaultOf(i) : FaultOfFree(i);
            if (!fault.isEmpty()) return QString("box%1 %2").arg(i).arg(fault);
        }
        return "";
    }

    static QString FaultOfFree(int number) {
        const auto& box = Boxes[number];
        quorvane::Box cleared;
        cleared.BoxLeft = box.BoxLeft;
        cleared.BoxTop = box.BoxTop;
        return box == cleared ? "" : "is free, but not cleared";
    }

    QString FaultOf(int number) const {
        const auto& box = Boxes[number];
        const bool armed = EditMode == 2 && number == NextBox - 1;
        auto* window = Window(box.BoxDocument);
        if (!window) return "lies in no document";
        if (!Documents[box.BoxDocument]->box.Has(number)) return "has no control";
        const auto* shown = window->findChild<QWidget*>(QString("box(%1)").arg(number),
                                                        Qt::FindChildrenRecursively);
        if (!armed && !shown) return "is not on the screen";
        for (const auto feeder : box.BoxIn) {
            if (feeder < LockedSlot || feeder >= NextBox) return "is fed by nobody";
            const auto& exits = Boxes[feeder > 0 ? feeder : 0].BoxOut;
            const bool knows = std::find(exits.begin(), exits.end(), number) != exits.end();
            if (feeder > 0 && !knows) return QString("is fed by box%1 unawares").arg(feeder);
        }
        return "";
    }
};

TEST_F(EditingWindow, RecordsAndScreenAgreeAfterRandomEditing) {
    bool isNumber = false;
    const auto seed = qEnvironmentVariableIntValue("QUORVANE_SEED", &isNumber);
    const auto wanted = qEnvironmentVariableIntValue("QUORVANE_OPERATIONS");
    chance.seed(static_cast<unsigned>(isNumber ? seed : 1));
    Otherwise = AnswerAnyhow;
    for (int i = 0; i < (wanted > 0 ? wanted : 250); ++i) {
        const auto operation = Operate();
        ASSERT_EQ(Disagreement(), "") << operation.toStdString() << ", operation " << i;
    }
}

}  // namespace quorvane::testing
