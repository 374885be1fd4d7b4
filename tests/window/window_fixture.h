// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>
#include <deque>
#include <functional>
#include <memory>

#include "files/work_folder.h"
#include "qt/desktop/qt_desktop.h"
#include "qt/frame/frame_view.h"
#include "support/step_player.h"

/// How a failure shows a text.
inline void PrintTo(const QString& text, std::ostream* out) { *out << text.toStdString(); }

namespace quorvane::testing {

/// The colour of an arrow that nobody has changed.
const QColor NewArrow(0xE0, 0xE0, 0xE0);

/// How many pixels of this colour a row of a picture has, of those between two columns; both count
/// logical pixels, so that a screen of another scale gives the same.
double ColoredIn(const QImage& picture, int row, QPair<int, int> columns, const QColor& color);

/// What the user does at a dialog.
using Hand = std::function<void(QDialog& dialog)>;

Hand Press(int standardButton);      ///< A button of a message box
Hand TypeIn(const QString& text);    ///< A prompt
Hand PickFile(const QString& path);  ///< A file dialog
Hand Cancel();
/// Clicks the controls of a form one after another, "opn(2)|cmdOK"; "txtMax=5" pastes into one, and
/// "cmbType=Bar" picks.
Hand Play(const QString& steps);

/// A desktop whose clock doesn't keep a test waiting.
struct HastyDesktop : QtDesktop {
    int Seconds = 0;
    int ClockSeconds() override { return Seconds += 3; }
};

struct InWorkFolder : ::testing::Test {
    WorkFolder folder;
};

/// The program on an off-screen desktop, and the user's hands. It stands in an empty folder of its
/// own, and its per-user store is empty. Each modal dialog takes the next of Answers; one for which
/// there is none fails the test, and so does an answer that is left. Places are pixels of a
/// worksheet's surface.
///
/// Tables know the entries of the menus ("mnuFileNew") and the words of window_steps.cpp.
class WindowTest : public InWorkFolder, protected StepPlayer {
protected:
    WindowTest();
    ~WindowTest() override;
    void SetUp() override { BeginAnew(); }
    /// Begins with a bare frame in an empty folder.
    void BeginAnew() override;
    void AtForm(const std::string& form, std::function<void()> steps) override;

    std::deque<Hand> Answers;
    QStringList Asked;  ///< Of each dialog its name or title, ": ", and its message or prompt

    /// Starts the program anew from the current folder.
    void Start();
    FrameView& Frame() { return *frame_; }
    QMdiSubWindow* Window(int document = 1) const;
    QWidget* Surface(int document = 1) const;
    /// A named part of a worksheet, nullptr when it isn't there or is hidden.
    QWidget* Part(const QString& name, int document = 1) const;
    QWidget* Box(int number, int document = 1) const;
    /// The entry of the menu bar that shows, nullptr when it isn't there or is hidden.
    QAction* Entry(const QString& control) const;
    /// The path of a file in the program's folder.
    QString File(const QString& name) const;

    /// Chooses a menu entry, which must be there and enabled.
    void Choose(const QString& control);
    /// Types a key where the focus is, in the menu that is open if there is one.
    void Type(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Click(QPoint at, int document = 1);
    void Place(const QString& control, QPoint at, int document = 1);
    void Join(int source, int destination, int document = 1);
    /// Draws the rubber band and leaves it on the screen.
    void Band(QPoint from, QPoint to, int document = 1);
    /// Presses here, and pulls until something is carried away, which is then dropped there:
    /// off-screen a drag would end where it begins.
    void Drag(QWidget* source, QWidget* target, QPoint at);
    /// What stands on the screen where a widget lies, in device pixels. At a device pixel ratio of
    /// 2 that is known of the left and upper half of the frame.
    QImage Screen(QWidget* widget) const;

private:
    void Open(void (*start)());
    void End();
    void Watch();
    /// What shows under this name: in the dialog that stands, else in a worksheet or the frame.
    QWidget* Seek(const QString& name, int document = 1) const;
    template <class Widget = QWidget>
    Widget* Find(A a) const;
    Words MouseAndKeys();
    Words Looks();
    Words Frames();
    Words Dialogs();
    QWidget* WindowOf(A a);
    Hand AnswerOf(const QString& text) const;

    const std::filesystem::path before_ = std::filesystem::current_path();
    HastyDesktop desktop_;
    std::unique_ptr<FrameView> frame_;
    QObject watcher_;
    QImage kept_;  ///< Remembered by a table
};

}  // namespace quorvane::testing
