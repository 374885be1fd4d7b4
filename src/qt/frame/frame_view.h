// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMainWindow>
#include <memory>

#include "qt/frame/menu_bar.h"

class QMdiArea;
class QMdiSubWindow;

namespace quorvane {

class BarView;
class BoxesPanel;
class ScriptPanel;
class SplashView;
class ResultsView;
class ToolboxView;
class WelcomeView;
class WorksheetView;

/// The frame: one window that holds the worksheets, with the menu bar of the active one.
class FrameView : public QMainWindow {
public:
    FrameView();
    ~FrameView() override;
    /// Shows the records on every window; makes and removes worksheets as the documents say.
    void Refresh();
    void Arrange(int how);
    /// Gives the focus to the worksheet of this document, if it is there.
    void FocusWorksheet(int document);
    /// Gives the focus to the next part that shows: worksheet, panels, toolbox.
    void GoToNextPart();
    /// The view of the active worksheet, nullptr when there is none.
    WorksheetView* ActiveView() const { return ViewOf(activeDocument); }
    /// Brings the worksheet of a box to the front and scrolls it so that the box is seen.
    void ShowBox(int number);
    /// The box of the active worksheet that is under the mouse, or else has the focus; 0 for none.
    int CurrentBox() const;
    QMdiArea* Area() const { return area_; }
    /// Pops up the menu of this control at the pointer; its commands work for this document.
    void PopupMenu(const QString& control, int document);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    WorksheetView* ViewOf(int document) const;
    void OpenWindow(int document);
    void CloseMissing();
    void ShowRecords();
    void Activated(QMdiSubWindow* window);
    void ShowMenus();
    void ListWindows();
    void Choose(int listed);

    QMdiArea* area_;
    BarView* bar_ = nullptr;
    BoxesPanel* boxes_ = nullptr;
    ScriptPanel* script_ = nullptr;
    ToolboxView* toolbox_;
    ResultsView* results_ = nullptr;
    WelcomeView* welcome_ = nullptr;
    std::unique_ptr<SplashView> splash_;
    MenuSet frameMenus_;
    MenuSet documentMenus_;
    bool showsDocumentMenus_ = false;
    bool showsAny_ = false;
    bool refreshing_ = false;
    bool isStale_ = false;  ///< The records have changed since they were shown
    QList<QAction*> windowList_;
};

/// The frame of the program; nullptr before it is made.
extern FrameView* frameView;

}  // namespace quorvane
