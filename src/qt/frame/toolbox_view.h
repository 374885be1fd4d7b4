// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWidget>
#include <optional>
#include <vector>

#include "qt/frame/toolbox_place.h"

class QToolButton;

namespace quorvane {

/// The floating toolbox: a grid of buttons with faces of the icon strip. It keeps its place
/// beside the frame, when that is moved or grows, and the user may choose another one.
class ToolboxView : public QWidget {
public:
    explicit ToolboxView(FrameView& frame);
    void Refresh();
    /// Gives the focus to the button that had it last.
    void TakeFocus();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void RefreshButtons();
    QToolButton* MakeButton(int number);
    QToolButton* Button(int number) const;
    void FollowFrame();
    void TakePlace();
    void LeaveFocus();
    bool PressKey(int key);

    FrameView& frame_;
    std::vector<QToolButton*> buttons_;  ///< By their index; nullptr where there is none
    bool following_ = false;             ///< The size comes from the record, not from the user
    bool isResized_ = false;             ///< The record's size comes from the user
    bool appears_ = false;               ///< Shown, and not yet in its place
    std::optional<ToolboxPlace> place_;  ///< Where the user put it
    QPoint corner_;                      ///< Where it was moved to last, not by the user
    QTimer* settled_;                    ///< Runs while it is being moved
};

}  // namespace quorvane
