// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <vector>

#include "diagram/worksheet.h"

class QLabel;
class QProgressBar;
class QScrollBar;
class QToolButton;

namespace quorvane {

class BoxView;
class SurfaceView;
class TourView;

/// A worksheet on the screen: the surface with its boxes, and the bars at its edges.
class WorksheetView : public QWidget {
public:
    explicit WorksheetView(int document);
    int Document() const { return document_; }
    /// Shows what the record holds.
    void Refresh();
    /// Scrolls by the least that brings a box into view, and gives it the focus.
    void ShowBox(int number);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Worksheet& Sheet() const { return DocumentWindow(document_); }
    void MakeBars();
    void RefreshBars();
    void RefreshBoxes();
    void RefreshBubble();

    int document_;
    SurfaceView* surface_;
    QProgressBar* gauge_;
    QToolButton* arrowPanel_;
    QScrollBar* scrH_;
    QScrollBar* scrV_;
    QWidget* corner_;
    QLabel* bubble_;
    TourView* tour_;
    QPoint turned_;                ///< Turns of the wheel that don't make a whole unit yet
    std::vector<BoxView*> boxes_;  ///< By box number; nullptr where there is none
};

}  // namespace quorvane
