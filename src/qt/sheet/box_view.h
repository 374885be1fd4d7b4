// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <string>

#include "diagram/worksheet.h"
#include "matlab_link/run_report.h"

namespace quorvane {

class SurfaceView;

/// The control of one box on a worksheet.
class BoxView : public QWidget {
public:
    BoxView(int document, int number, SurfaceView* surface);
    /// Takes over what has changed in the record.
    void Refresh(const BoxControl& control);
    int Document() const { return document_; }
    int Number() const { return number_; }
    /// Marks what the check finds at the box, "" for nothing, and what the last run left there, at
    /// its corner. The tool tip tells either.
    void SetMarks(const std::string& finding);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    Worksheet& Sheet() const;
    void StartDrag();
    void Click();

    int document_;
    int number_;
    SurfaceView* surface_;
    std::string type_;  ///< The box type in the accessible name
    int picture_ = -1;
    int pointer_ = -1;
    bool dragAutomatic_ = false;
    bool pressed_ = false;
    QPoint pressedAt_;
    std::string finding_;
    BoxRun run_ = BoxRun::None;  ///< What the last run left, whether it is out of date, its words
    bool isOld_ = false;
    std::string left_;
};

}  // namespace quorvane
