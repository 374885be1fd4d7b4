// SPDX-License-Identifier: MIT
// The words in which the tables of pictures say what a user does, by mouse and keys.
#include "player.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QDialog>
#include <QDir>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSettings>
#include <QTimer>
#include <QUrl>
#include <QWindow>
#include <QtTest>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <utility>

#include "matlab_link/link.h"
#include "matlab_link/mfile_index.h"
#include "photo.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/qt_desktop.h"
#include "qt/desktop/screen_units.h"
#include "qt/frame/frame_view.h"
#include "shell/application.h"
#include "shell/start_up.h"
#include "workbench/recovery.h"
#include "workbench/recovery_offer.h"

namespace quorvane {

Stage stage;

namespace {

constexpr int StepMilliseconds = 40;
constexpr int LongestWait = 30000;

/// A desktop whose start doesn't wait for the splash.
struct PictureDesktop : QtDesktop {
    int Seconds = 0;
    int ClockSeconds() override { return Seconds += 3; }
    void PaintNow() override;
};

/// The steps that are left. A picture's own are between its name and "keep".
QStringList steps;
QString step;
std::span<const Picture> all;
std::function<void(const Picture&)> keep;
bool isBusy = false;  ///< A step is at work that no other may interrupt
QElapsedTimer waiting;
std::unique_ptr<FrameView> frame;
std::size_t atWork = 0;  ///< The picture, of all
/// A window that comes and goes by itself is kept when the program paints it.
QString passing;
bool hasPassed = false;

QString UserFolder() { return stage.Home + "/.local/share/quorvane"; }

/// Lets what was done sink in, without the next step.
void Settle() {
    const QScopedValueRollback busy(isBusy, true);
    QCoreApplication::processEvents();
}

QWidget* Shown(const QList<QWidget*>& widgets, const QString& name) {
    for (auto* widget : widgets) {
        if (widget->isVisible() && widget->objectName() == name) return widget;
    }
    return nullptr;
}

struct NameOfKind {
    const char *Name, *Class;
};
/// Windows that Qt makes, which have no names.
constexpr NameOfKind kinds[] = {
    {"message", "QMessageBox"}, {"prompt", "QInputDialog"},         {"files", "QFileDialog"},
    {"colors", "QColorDialog"}, {"preview", "QPrintPreviewDialog"},
};

QWidget& Find(const QString& name) {
    auto* widget = Seek(name);
    if (!widget) Fail("nothing of the name " + name + " shows");
    if (!widget->isEnabled()) Fail(name + " is grey");
    const auto* modal = QApplication::activeModalWidget();
    const bool isBlocked = modal && widget->window() != modal && !QApplication::activePopupWidget();
    if (isBlocked) Fail(name + " is behind " + modal->objectName() + " " + modal->windowTitle());
    return *widget;
}

void MoveTo(QPoint place) {
    QCursor::setPos(place);
    Settle();
}

void ClickAt(QPoint place, Qt::MouseButton button) {
    MoveTo(place);
    auto* under = QApplication::widgetAt(place);
    if (!under) Fail("there is no window under the mouse");
    auto* window = under->window()->windowHandle();
    QTest::mousePress(window, button, {}, window->mapFromGlobal(place));
    QTest::mouseRelease(window, button, {}, window->mapFromGlobal(place));
}

/// "NAME", at its left end, where check boxes have their box; "NAME X Y".
QPoint SpotOf(const QStringList& words) {
    auto& widget = Find(words.value(0));
    const bool isGiven = words.size() > 2;
    const QPoint inside = isGiven ? QPoint(words[1].toInt(), words[2].toInt())
                                  : QPoint(qMin(8, widget.width() / 2), widget.height() / 2);
    return widget.mapToGlobal(inside);
}

/// Where keys go. Off-screen a menu doesn't get the focus back from another one.
QWindow* KeyWindow() {
    const auto* popup = QApplication::activePopupWidget();
    auto* window = popup ? popup->windowHandle() : QGuiApplication::focusWindow();
    if (!window) Fail("no window takes the keys");
    return window;
}

void PressKeys(const QKeySequence& keys) {
    for (int i = 0; i < keys.count(); ++i) {
        QTest::keyClick(KeyWindow(), keys[i].key(), keys[i].keyboardModifiers());
    }
}

void TypeText(const QString& text) {
    for (const auto letter : text) QTest::keyClick(KeyWindow(), letter.toLatin1());
}

bool PathTo(const QString& control, const QList<QAction*>& actions, QStringList& path) {
    for (auto* action : actions) {
        if (!action->isVisible()) continue;
        const bool leads = action->menu() && PathTo(control, action->menu()->actions(), path);
        if (!leads && action->objectName() != control) continue;
        path.prepend(action->objectName());
        return true;
    }
    return false;
}

/// Opens the menus that lead to an entry, and does the `last` step with it.
void GoToEntry(const QString& control, const QString& last) {
    QStringList path;
    if (!PathTo(control, frame->menuBar()->actions(), path)) Fail("no menu has " + control);
    QStringList clicks = {"bar " + path.takeFirst()};
    for (const auto& entry : path) clicks.append("entry " + entry);
    if (!path.isEmpty()) clicks.last() = last + " " + control;
    steps = clicks + steps;
}

/// The place of an entry, by its control or the beginning of its text, in the menus that are open.
QPoint SpotOfEntry(const QString& name) {
    for (auto* window : QApplication::topLevelWidgets()) {
        auto* menu = qobject_cast<QMenu*>(window);
        if (!menu || !menu->isVisible()) continue;
        for (auto* action : menu->actions()) {
            const bool fits = action->objectName() == name ||
                              QString(action->text()).remove('&').startsWith(name);
            if (fits) return menu->mapToGlobal(menu->actionGeometry(action).center());
        }
    }
    Fail("no open menu has " + name);
}

QPoint SpotOfItem(const QString& list, const QString& text) {
    auto* view = qobject_cast<QAbstractItemView*>(&Find(list));
    if (!view) Fail(list + " is no list");
    const auto* model = view->model();
    const auto found = model->match(model->index(0, 0), Qt::DisplayRole, text, 1,
                                    Qt::MatchContains | Qt::MatchRecursive);
    if (found.isEmpty()) Fail(list + " has no " + text);
    view->scrollTo(found.first());
    Settle();
    return view->viewport()->mapToGlobal(view->visualRect(found.first()).center());
}

void PickInCombo(const QString& name, const QString& text) {
    auto* combo = qobject_cast<QComboBox*>(&Find(name));
    if (!combo) Fail(name + " offers no choice");
    combo->setFocus(Qt::TabFocusReason);
    PressKeys(Qt::Key_Home);
    while (combo->currentText() != text) {
        const auto before = combo->currentIndex();
        PressKeys(Qt::Key_Down);
        if (combo->currentIndex() == before) Fail(name + " has no " + text);
    }
}

QPoint SpotOfButton(const QString& text) {
    auto* dialog = QApplication::activeModalWidget();
    if (!dialog) Fail("no dialog is open");
    for (auto* button : dialog->findChildren<QPushButton*>()) {
        const bool fits = QString(button->text()).remove('&') == text;
        if (fits && button->isVisible()) return button->mapToGlobal(button->rect().center());
    }
    Fail("the dialog has no button " + text);
}

/// The folder as the launcher leaves it to a new user.
void MakeHome() {
    for (const char* folder : {".local", ".config", ".cache"}) {
        QDir(stage.Home + "/" + folder).removeRecursively();
    }
    QProcess launcher;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QUORVANE_PROGRAM", "/bin/true");
    environment.insert("QUORVANE_MANUAL", stage.Sources + "/resources/help/QUORVANE.HLP");
    environment.insert("QUORVANE_EXAMPLES", stage.Sources + "/examples");
    launcher.setProcessEnvironment(environment);
    launcher.start(stage.Sources + "/packaging/quorvane-launch", QStringList());
    if (!launcher.waitForFinished() || launcher.exitCode() != 0) Fail("the launcher failed");
    QDir::setCurrent(UserFolder());
}

void SizeFrame() {
    const auto size = all[atWork].Size;
    if (!size.isEmpty() && frame) frame->resize(size - TitleAndEdges);
}

void End() {
    ResetLink();
    frame.reset();
    EndRecovery();
    ResetApplication();
}

/// As the program does at its start.
void Begin() {
    const QScopedValueRollback busy(isBusy, true);
    static PictureDesktop pictureDesktop;
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget()) {
        steps = QStringList{"clear", "begin"} + steps;
        return;
    }
    End();
    QSettings().clear();
    MakeHome();
    QCursor::setPos(0, 0);
    desktop = &pictureDesktop;
    ResetApplication();
    frame = std::make_unique<FrameView>();
    SizeFrame();
    frame->move(40, 40);
    Dispatch(StartProgram);
    DriveRoots = {{'C', ToCore(UserFolder()) + "/"}};
    frame->show();
    QCoreApplication::processEvents();
}

void OfferWhatIsLeft() { Dispatch(OfferRecovery); }

/// A program that was killed leaves this diagram, some minutes ago.
void LeaveBehind(const QString& file) {
    const auto folder = stage.Home + "/.local/state/quorvane/recovery/1";
    QDir().mkpath(folder);
    QFile name(folder + "/1.name");
    QFile lock(folder + "/lock");
    const bool isMade = name.open(QIODevice::WriteOnly) && lock.open(QIODevice::WriteOnly) &&
                        name.write(file.toUtf8()) > 0 &&
                        QFile::copy(stage.Sources + "/examples/" + file, folder + "/1.qvm");
    if (!isMade) Fail("the files of recovery can't be written");
    steps.prepend("offer");
}

/// Drops a copy of an example on the frame, as a file manager does.
void DropExample(const QString& name) {
    const auto file = stage.Home + "/" + name;
    QFile::remove(file);
    if (!QFile::copy(stage.Sources + "/examples/" + name, file)) Fail("there is no such example");
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(file)});
    const auto at = frame->rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(frame.get(), &enter);
    QDropEvent drop(at, Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QCoreApplication::sendEvent(frame.get(), &drop);
}

/// Photographs the engine's own window of the plot.
void TakeFigure(const QString& width, const QString& height) {
    const QScopedValueRollback busy(isBusy, true);
    const auto file = stage.Home + "/figure.png";
    const QString script =
        "set(gcf,'position',[1 1 %1 %2]);drawnow;imwrite(getframe(gcf).cdata,'%3');";
    LinkExecute(ToCore(script.arg(width, height, file)), {});
    LinkRequest();
    figure.load(file);
    if (figure.isNull()) Fail("the engine has drawn nothing");
}

void PictureDesktop::PaintNow() {
    QtDesktop::PaintNow();
    if (passing.isEmpty() || !Seek(passing)) return;
    keep(all[atWork]);
    passing.clear();
    hasPassed = true;
}

/// Functions that a scan of the drives finds.
void WriteFunctions() {
    for (const char* name :
         {"signal/blackman", "signal/filter2", "signal/hamming", "stats/median"}) {
        const QString function(name);
        QDir().mkpath(UserFolder() + "/" + function.section('/', 0, 0));
        QFile file(UserFolder() + "/" + function + ".m");
        const auto help = "% " + function.section('/', 1).toUpper() + "(x) says what it does.\n\n";
        if (!file.open(QIODevice::WriteOnly) || file.write(help.toUtf8()) < 0) Fail("no room");
    }
}

/// Leaves all dialogs and menus and the windows beside the frame, and gives up what waits.
void Clear() {
    auto* popup = QApplication::activePopupWidget();
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (popup || dialog) {
        steps.prepend("clear");
        popup ? popup->close() : (dialog->done(QDialog::Rejected), true);
        return;
    }
    for (const char* name : {"helpWindow", "frmTextResults"}) {
        if (auto* window = Seek(name)) window->close();
    }
    steps.prepend("key Escape");
}

/// Does this step again until something has come about.
void Until(bool hasCome) {
    if (!waiting.isValid()) waiting.start();
    if (waiting.elapsed() > LongestWait) Fail("it doesn't come about");
    hasCome ? waiting.invalidate() : steps.prepend(step);
}

void SetText(const QString& field, const QString& text) {
    ClickAt(SpotOf({field}), Qt::LeftButton);
    PressKeys(QKeySequence::SelectAll);
    text.isEmpty() ? PressKeys(Qt::Key_Delete) : TypeText(text);
}

void DoubleClick(QPoint place) {
    ClickAt(place, Qt::LeftButton);
    auto* window = QApplication::widgetAt(place)->window()->windowHandle();
    QTest::mouseDClick(window, Qt::LeftButton, {}, window->mapFromGlobal(place));
}

/// Leaves the mouse where it is until the tool tip comes. Off-screen, at some scales, it doesn't
/// come by itself.
void Rest(QPoint place) {
    MoveTo(place);
    auto* under = QApplication::widgetAt(place);
    QHelpEvent rests(QEvent::ToolTip, under->mapFromGlobal(place), place);
    QCoreApplication::sendEvent(under, &rests);
}

using Words = const QStringList&;
QString Tail(Words words, int from) { return words.mid(from).join(' '); }

// Word, what it does with those behind it.
const std::map<QString, void (*)(Words)> vocabulary = {
    {"begin", [](Words) { Begin(); }},
    {"offer", [](Words) { OfferWhatIsLeft(); }},
    {"left", [](Words words) { LeaveBehind(words.value(0)); }},
    {"choose", [](Words words) { GoToEntry(words.value(0), "entry"); }},
    {"menu", [](Words words) { GoToEntry(words.value(0), "point"); }},
    {"bar",
     [](Words words) {
         const auto* bar = frame->menuBar();
         for (auto* action : bar->actions()) {
             if (action->objectName() != words.value(0)) continue;
             ClickAt(bar->mapToGlobal(bar->actionGeometry(action).center()), Qt::LeftButton);
         }
     }},
    {"entry", [](Words words) { ClickAt(SpotOfEntry(Tail(words, 0)), Qt::LeftButton); }},
    {"point", [](Words words) { MoveTo(SpotOfEntry(Tail(words, 0))); }},
    {"click", [](Words words) { ClickAt(SpotOf(words), Qt::LeftButton); }},
    {"double", [](Words words) { DoubleClick(SpotOf(words)); }},
    {"hover", [](Words words) { MoveTo(SpotOf(words)); }},
    {"rest", [](Words words) { Rest(SpotOf(words)); }},
    {"press", [](Words words) { ClickAt(SpotOfButton(Tail(words, 0)), Qt::LeftButton); }},
    {"item",
     [](Words words) { ClickAt(SpotOfItem(words.value(0), Tail(words, 1)), Qt::LeftButton); }},
    {"pick", [](Words words) { PickInCombo(words.value(0), Tail(words, 1)); }},
    {"set", [](Words words) { SetText(words.value(0), Tail(words, 1)); }},
    {"type", [](Words words) { TypeText(Tail(words, 0)); }},
    {"key", [](Words words) { PressKeys(QKeySequence(words.value(0))); }},
    {"drop", [](Words words) { DropExample(words.value(0)); }},
    {"pass", [](Words words) { passing = words.value(0); }},
    {"clear", [](Words) { Clear(); }},
    {"functions", [](Words) { WriteFunctions(); }},
    {"figure", [](Words words) { TakeFigure(words.value(0), words.value(1)); }},
    {"until", [](Words words) { Until(Seek(words.value(0)) != nullptr); }},
    {"gone", [](Words words) { Until(Seek(words.value(0)) == nullptr); }},
    {"wait",
     [](Words words) {
         if (!waiting.isValid()) waiting.start();
         Until(waiting.elapsed() >= words.value(0).toInt());
     }},
};

/// Off-screen a new dialog doesn't come to the front by itself, nor does the frame after it.
void BringUp() {
    if (QApplication::activePopupWidget() || !frame) return;
    auto* modal = QApplication::activeModalWidget();
    auto* front = modal ? modal : frame.get();
    const auto* focused = QGuiApplication::focusWindow();
    if (!focused || (modal && focused != modal->windowHandle())) front->activateWindow();
    Settle();
}

void BeginPicture(std::size_t number) {
    atWork = number;
    SizeFrame();
}

void KeepPicture() {
    if (!passing.isEmpty()) Fail(passing + " hasn't come");
    if (std::exchange(hasPassed, false)) return;
    SizeFrame();
    Settle();
    keep(all[atWork]);
}

/// "picture" and "keep", which the tables don't have, begin and end the steps of a picture.
void Do(const QString& doing) {
    step = doing;
    auto words = doing.split(' ');
    const auto verb = words.takeFirst();
    if (verb == "picture") return BeginPicture(words[0].toUInt());
    if (verb == "keep") return KeepPicture();
    const auto known = vocabulary.find(verb);
    if (known == vocabulary.end()) Fail("there is no such word");
    known->second(words);
}

/// What took the mouse and keys when the step began that is at work; it is done before the next
/// one, unless it has opened a dialog or menu, which waits for what comes.
struct Began {
    bool IsAtWork = false;
    const QWidget *Modal = nullptr, *Popup = nullptr;
};
Began began;

bool MayStart() {
    if (!began.IsAtWork) return true;
    const auto* modal = QApplication::activeModalWidget();
    const auto* popup = QApplication::activePopupWidget();
    return (modal && modal != began.Modal) || (popup && popup != began.Popup);
}

void Next() {
    if (steps.isEmpty()) return QCoreApplication::exit(0);
    QTimer::singleShot(StepMilliseconds, qApp, Next);
    if (isBusy || !MayStart()) return;
    BringUp();
    const QScopedValueRollback working(
        began, {true, QApplication::activeModalWidget(), QApplication::activePopupWidget()});
    Do(steps.takeFirst());
}

}  // namespace

void Fail(const QString& text) {
    std::fprintf(stderr, "quorvane_pictures: %s: \"%s\": %s\n", all.empty() ? "" : all[atWork].Name,
                 qPrintable(step), qPrintable(text));
    ResetLink();
    QDir(stage.Home).removeRecursively();
    std::_Exit(1);
}

QWidget* Seek(const QString& name) {
    auto* modal = QApplication::activeModalWidget();
    for (const auto& kind : kinds) {
        if (name == kind.Name) return modal && modal->inherits(kind.Class) ? modal : nullptr;
    }
    QWidgetList rooms = {QApplication::activePopupWidget(), modal};
    if (frame) rooms.append({frame->Area()->currentSubWindow(), frame.get()});
    rooms += QApplication::topLevelWidgets();
    for (auto* room : rooms) {
        if (!room) continue;
        if (room->isVisible() && room->objectName() == name) return room;
        if (auto* found = Shown(room->findChildren<QWidget*>(name), name)) return found;
    }
    return nullptr;
}

void PlayPictures(std::span<const Picture> pictures,
                  const std::function<void(const Picture&)>& keepPicture) {
    all = pictures;
    keep = keepPicture;
    bool isLeftOut = false;
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const auto& picture = pictures[i];
        // Those that go on from where it ends are left out, too.
        const bool begins = !picture.Steps.empty() && QString(picture.Steps.front()) == "begin";
        isLeftOut = (isLeftOut && !begins) || (picture.NeedsEngine && stage.Octave.isEmpty());
        if (isLeftOut) continue;
        steps.append(QString("picture %1").arg(i));
        for (const char* line : picture.Steps) steps.append(line);
        steps.append("keep");
    }
    QTimer::singleShot(0, qApp, Next);
    QCoreApplication::exec();
    End();
}

}  // namespace quorvane
