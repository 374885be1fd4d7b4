// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;

namespace quorvane {

/// The window of what was sent to MATLAB and what it answered, beside the frame. The log only grows
/// at its end, so only the new part is appended to the text.
class ResultsView : public QWidget {
public:
    explicit ResultsView(QWidget* frame);
    void Refresh();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void Grow();
    void Append(std::size_t from);
    void MoveIntoCorner();

    QPlainTextEdit* txt_;
    QLabel* lblState_;
    std::string shown_;  ///< The log as the text holds it
};

}  // namespace quorvane
