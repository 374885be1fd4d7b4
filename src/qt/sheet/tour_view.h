// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

#include "diagram/worksheet.h"

namespace quorvane {

/// The panel of the guided tour on a worksheet. A click, or Enter, shows the next step.
class TourView : public QLabel {
public:
    TourView(int document, QWidget* parent);
    /// Shows the text of the panel, or hides it.
    void Refresh(const TourPanel& panel);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// Shows the next step, as a click does.
    void GoOn();
    void Fit(const QSize& sheet);

    int document_;
    QString count_;  ///< "3 of 10", in the frame
    QSize fitted_;   ///< The sheet that the panel was last laid out for
};

}  // namespace quorvane
