// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <string>
#include <vector>

class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

namespace quorvane {

/// The panel "Script" beside the worksheets: the script of the active one as it stands, with what
/// the last run failed at, the next would ask and the check finds above it. A click on a line, or
/// on a finding, shows its box; the box under the mouse or with the focus lights its lines.
class ScriptPanel : public QWidget {
public:
    explicit ScriptPanel(QWidget* parent);
    /// Shows the script of the active worksheet, but while the mouse is pressed or this is hidden.
    void Refresh();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void ShowTitle();
    void ShowFindings();
    void FitFindings();
    void AddBox(int box, const std::string& text);
    void LightLines();
    int BoxOfLine(int line) const;

    QLabel* title_;
    QPushButton* copy_;
    QPushButton* picture_;
    QListWidget* findings_;
    QPlainTextEdit* script_;
    int document_ = 0;  ///< The worksheet and the step that are shown
    int changes_ = -1;
    std::vector<int> failed_;  ///< The boxes at which the last run failed
    int lit_ = 0;              ///< The box whose lines are lit
};

}  // namespace quorvane
