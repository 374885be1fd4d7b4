// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <vector>

class QToolButton;

namespace quorvane {

/// The floating toolbox: a grid of buttons with faces of the icon strip.
class ToolboxView : public QWidget {
public:
    explicit ToolboxView(QWidget* frame);
    void Refresh();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void RefreshButtons();

    std::vector<QToolButton*> buttons_;  ///< By their index; nullptr where there is none
    bool following_ = false;             ///< The size comes from the record, not from the user
    bool placed_ = false;                ///< It was on the screen before and keeps its place
};

}  // namespace quorvane
