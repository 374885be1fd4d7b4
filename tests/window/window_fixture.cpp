// SPDX-License-Identifier: MIT
#include "window/window_fixture.h"

#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "qt/sheet/worksheet_view.h"
#include "shell/application.h"
#include "shell/menus.h"
#include "shell/start_up.h"

namespace quorvane::testing {

namespace {

void Fail(const QString& text) { ADD_FAILURE() << text.toStdString(); }

QWidget* Shown(const QWidget* parent, const QString& name) {
    const auto found = parent ? parent->findChildren<QWidget*>(name) : QList<QWidget*>();
    for (auto* widget : found) {
        if (widget->isVisible()) return widget;
    }
    return nullptr;
}

QAction* FindEntry(const QList<QAction*>& actions, const QString& control) {
    for (auto* action : actions) {
        if (!action->isVisible()) continue;
        if (action->objectName() == control) return action;
        if (!action->menu()) continue;
        if (auto* found = FindEntry(action->menu()->actions(), control)) return found;
    }
    return nullptr;
}

QString Question(const QDialog& dialog) {
    if (const auto* box = qobject_cast<const QMessageBox*>(&dialog)) {
        return box->windowTitle() + ": " + box->text();
    }
    if (const auto* prompt = qobject_cast<const QInputDialog*>(&dialog)) {
        return prompt->windowTitle() + ": " + prompt->labelText();
    }
    if (const auto* file = qobject_cast<const QFileDialog*>(&dialog)) {
        return file->acceptMode() == QFileDialog::AcceptSave ? "save" : "open";
    }
    return dialog.objectName() + ": " + dialog.windowTitle();
}

void PlayStep(QDialog& dialog, const QString& step) {
    auto* control = Shown(&dialog, step.section('=', 0, 0));
    if (!control || !control->isEnabled()) {
        Fail("The dialog has no " + step);
        dialog.done(QDialog::Rejected);
        return;
    }
    const auto text = step.section('=', 1);
    if (auto* combo = qobject_cast<QComboBox*>(control)) {
        combo->setCurrentText(text);
    } else if (auto* line = qobject_cast<QLineEdit*>(control)) {
        line->selectAll();
        line->insert(text);
    } else if (auto* slider = qobject_cast<QAbstractSlider*>(control)) {
        slider->setValue(text.toInt());
    } else {
        QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
    }
}

}  // namespace

double ColoredIn(const QImage& picture, int row, QPair<int, int> columns, const QColor& color) {
    const auto ratio = picture.devicePixelRatio();
    int count = 0;
    for (int x = qRound(columns.first * ratio); x < columns.second * ratio; ++x) {
        if (picture.pixelColor(x, qRound(row * ratio)) == color) ++count;
    }
    return count / ratio;
}

Hand Press(int standardButton) {
    return [standardButton](QDialog& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        auto* button =
            box ? box->button(static_cast<QMessageBox::StandardButton>(standardButton)) : nullptr;
        if (button) return QTest::mouseClick(button, Qt::LeftButton);
        Fail("No message box with this button: " + Question(dialog));
        dialog.done(QDialog::Rejected);
    };
}

Hand TypeIn(const QString& text) {
    return [text](QDialog& dialog) {
        auto* line = dialog.findChild<QLineEdit*>();
        if (!line) return dialog.done(QDialog::Rejected);
        line->selectAll();
        QTest::keyClicks(line, text);
        QTest::keyClick(line, Qt::Key_Return);
    };
}

Hand PickFile(const QString& path) {
    return [path](QDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
        if (!name) return dialog.done(QDialog::Rejected);
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    };
}

Hand Cancel() {
    return [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); };
}

Hand Play(const QString& steps) {
    return [steps](QDialog& dialog) {
        for (const auto& step : steps.split('|', Qt::SkipEmptyParts)) PlayStep(dialog, step);
    };
}

WindowTest::WindowTest() : StepPlayer(folder) {
    QCoreApplication::setOrganizationName("Quorvane");
    QCoreApplication::setApplicationName("Quorvane");
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, File("store"));
    for (const auto& row : documentMenu) {
        words[std::string(row.Control)] = Step([this, &row](A) { Choose(ToScreen(row.Control)); });
    }
    words["mnuFileOpen"] = Step([this](A) { Choose("mnuFileOpen"); });
    for (const auto& some : {MouseAndKeys(), Looks(), Frames(), Dialogs()}) Know(some);
    Watch();
}

WindowTest::~WindowTest() {
    End();
    std::filesystem::current_path(before_);
}

void WindowTest::End() {
    if (!Answers.empty()) Fail("Somebody was not asked");
    Answers.clear();
    Asked.clear();
    RefreshScreen = [] {};
    frame_.reset();
    ResetApplication();
    quorvane::desktop = nullptr;
}

void WindowTest::BeginAnew() {
    End();
    std::filesystem::current_path(folder.Path);
    QSettings().clear();
    for (const auto& name : NamesIn(".")) std::filesystem::remove_all(name);
    quorvane::desktop = &desktop_;
    QCursor::setPos(0, 0);
    Open([] {});
}

void WindowTest::AtForm(const std::string& form, std::function<void()> steps) {
    Answers.emplace_back([=](QDialog& dialog) {
        EXPECT_EQ(ToCore(Question(dialog).section(": ", 0, 0)), form);
        dialog.activateWindow();  // Off-screen it doesn't come to the front by itself.
        EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.isActiveWindow(); }));
        steps();
    });
}

void WindowTest::Open(void (*start)()) {
    frame_.reset();
    ResetApplication();
    frame_ = std::make_unique<FrameView>();
    // The same size on every screen, be it too small for it.
    frame_->resize(1000, 720);
    Dispatch(start);
    frame_->show();
    if (!QTest::qWaitForWindowActive(frame_.get())) Fail("The frame doesn't come to the screen");
}

void WindowTest::Start() { Open(StartProgram); }

QString WindowTest::File(const QString& name) const {
    return QString::fromStdString(folder / name.toStdString());
}

/// Looks for a dialog again and again, also while another one is being answered.
void WindowTest::Watch() {
    QTimer::singleShot(0, &watcher_, [this] {
        Watch();
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible() || dialog->property("answered").toBool()) return;
        dialog->setProperty("answered", true);
        Asked.append(Question(*dialog));
        if (Answers.empty()) {
            Fail("Nobody answers " + Asked.last());
            return dialog->done(QDialog::Rejected);
        }
        const auto answer = Answers.front();
        Answers.pop_front();
        answer(*dialog);
        if (HasFailure() && dialog->isVisible()) dialog->done(QDialog::Rejected);
    });
}

QMdiSubWindow* WindowTest::Window(int document) const {
    for (auto* window : frame_->Area()->subWindowList()) {
        if (static_cast<WorksheetView*>(window->widget())->Document() == document) return window;
    }
    return nullptr;
}

QWidget* WindowTest::Surface(int document) const { return Part("surface", document); }

QWidget* WindowTest::Part(const QString& name, int document) const {
    return Shown(Window(document), name);
}

QWidget* WindowTest::Box(int number, int document) const {
    return Part(QString("box(%1)").arg(number), document);
}

QAction* WindowTest::Entry(const QString& control) const {
    return FindEntry(frame_->menuBar()->actions(), control);
}

void WindowTest::Choose(const QString& control) {
    auto* entry = Entry(control);
    if (!entry || !entry->isEnabled()) return Fail("No menu entry to choose: " + control);
    entry->trigger();
}

void WindowTest::Type(int key, Qt::KeyboardModifiers modifiers) {
    // Off-screen the end of a dialog leaves no window active.
    if (!QApplication::activeWindow()) {
        frame_->activateWindow();
        if (!QTest::qWaitForWindowActive(frame_.get())) Fail("The frame doesn't take the keys");
    }
    auto* target = QApplication::activePopupWidget();
    if (target && target->focusWidget()) target = target->focusWidget();
    if (auto* dialog = QApplication::activeModalWidget()) target = dialog->focusWidget();
    if (!target) target = QApplication::focusWidget();
    if (!target) target = frame_.get();
    QTest::keyClick(target, static_cast<Qt::Key>(key), modifiers);
}

void WindowTest::Click(QPoint at, int document) {
    QTest::mouseClick(Surface(document), Qt::LeftButton, {}, at);
}

void WindowTest::Place(const QString& control, QPoint at, int document) {
    Choose(control);
    Click(at, document);
}

void WindowTest::Join(int source, int destination, int document) {
    Choose("mnuArrow");
    QTest::mouseClick(Box(source, document), Qt::LeftButton);
    QTest::mouseClick(Box(destination, document), Qt::LeftButton);
}

void WindowTest::Band(QPoint from, QPoint to, int document) {
    auto* surface = Surface(document);
    QTest::mousePress(surface, Qt::LeftButton, {}, from);
    QTest::mouseMove(surface, from);
    QTest::mouseMove(surface, to);
    QTest::mouseRelease(surface, Qt::LeftButton, {}, to);
}

void WindowTest::Drag(QWidget* source, QWidget* target, QPoint at) {
    QTest::mousePress(source, Qt::LeftButton, {}, {16, 16});
    QTest::mouseMove(source, {19, 19});
    if (source->findChild<QDrag*>()) Fail("A hand that trembles drags");
    QTest::mouseMove(source, {30, 30});
    auto* drag = source->findChild<QDrag*>();
    if (!drag) return Fail("Nothing is dragged");
    QDragEnterEvent enter(at, Qt::MoveAction, drag->mimeData(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(target, &enter);
    if (!enter.isAccepted()) Fail("The drop is refused");
    QDropEvent drop(at, Qt::MoveAction, drag->mimeData(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(target, &drop);
    QTest::mouseRelease(source, Qt::LeftButton);
}

QImage WindowTest::Screen(QWidget* widget) const {
    QCoreApplication::processEvents();
    const auto all = frame_->screen()->grabWindow(frame_->winId()).toImage();
    const auto ratio = all.devicePixelRatio();
    return all.copy(
        QRectF(widget->mapTo(frame_.get(), QPointF()) * ratio, QSizeF(widget->size()) * ratio)
            .toRect());
}

}  // namespace quorvane::testing
