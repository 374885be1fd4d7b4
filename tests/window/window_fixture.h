// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QImage>
#include <QStringList>
#include <QTemporaryDir>
#include <deque>
#include <functional>
#include <initializer_list>
#include <memory>

#include "qt/frame_view.h"
#include "qt/qt_desktop.h"

class QMdiSubWindow;

namespace quorvane::testing {

/// What the user does at a dialog.
using Hand = std::function<void(QDialog& dialog)>;

Hand Press(int standardButton);      ///< A button of a message box
Hand TypeIn(const QString& text);    ///< A prompt
Hand PickFile(const QString& path);  ///< A file dialog
Hand Cancel();
/// Clicks the controls of a form one after another; "txtMax=5" types into one, and "cmbType=Bar"
/// picks.
Hand Play(std::initializer_list<const char*> steps);

/// The program on an off-screen desktop, from its start, and the user's hands. Each modal dialog
/// takes the next of Answers; one for which there is none fails the test. The per-user store is
/// empty and a file of its own. Places are pixels of a worksheet's surface.
class Program : public QObject {
public:
    Program();
    ~Program() override;

    std::deque<Hand> Answers;
    QStringList Asked;  ///< Of each dialog its name or title, ": ", and its message or prompt

    FrameView& Frame() { return *frame_; }
    QMdiSubWindow* Window(int document = 1) const;
    QWidget* Surface(int document = 1) const;
    /// A named part of a worksheet, nullptr when it isn't there or is hidden.
    QWidget* Part(const QString& name, int document = 1) const;
    QWidget* Box(int number, int document = 1) const;
    /// What the boxes that show are called, by number: "box1 Sin".
    QStringList BoxNames(int document = 1) const;
    /// The entry of the menu bar that shows, nullptr when it isn't there or is hidden.
    QAction* Entry(const QString& control) const;
    /// A folder that goes with the program.
    QString File(const QString& name) const { return folder_.filePath(name); }

    /// Chooses a menu entry, which must be there and enabled.
    void Choose(const QString& control);
    /// Types a key where the focus is, in the menu that is open if there is one.
    void Type(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void Click(QPoint at, int document = 1);
    void Place(const QString& control, QPoint at, int document = 1);
    void Join(int source, int destination, int document = 1);
    /// Draws the rubber band and leaves it on the screen.
    void Band(QPoint from, QPoint to, int document = 1);
    /// What stands on the screen where a widget lies, in device pixels. At a device pixel ratio of
    /// 2 that is known of the left and upper half of the frame.
    QImage Screen(QWidget* widget) const;

private:
    void Watch();

    QTemporaryDir folder_;
    QtDesktop desktop_;
    std::unique_ptr<FrameView> frame_;
};

}  // namespace quorvane::testing
