// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <vector>

#include "diagram/worksheet.h"
#include "qt/sheet/sheet_scale.h"

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
    /// The scale of the surface, in per cent. The middle of the boxes that are seen stays where it
    /// is, and as many of them as fit stay in view. Where none are seen it is the middle of the
    /// surface, and the corner of a sheet without boxes.
    int Zoom() const { return scale_.Percent; }
    void SetZoom(int percent);
    /// Go to the next step and the one before.
    void ZoomIn();
    void ZoomOut();
    /// The largest scale up to 100 % at which all boxes of the sheet are seen, in the middle. Where
    /// even the smallest doesn't do, their upper left part is seen.
    void ZoomToDiagram();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Worksheet& Sheet() const { return DocumentWindow(document_); }
    void MakeBars();
    void Rescale(int percent, QPointF corner);
    void ZoomByWheel(const QWheelEvent* event);
    void RefreshBars();
    void RefreshBoxes();
    void RefreshBubble();
    void RefreshMarks();

    int document_;
    SheetScale scale_;
    SurfaceView* surface_;
    QProgressBar* gauge_;
    QToolButton* arrowPanel_;
    QScrollBar* scrH_;
    QScrollBar* scrV_;
    QWidget* corner_;
    QLabel* bubble_;
    TourView* tour_;
    QPoint turned_;                      ///< Turns of the wheel that don't make a whole unit yet
    int zoomTurned_ = 0;                 ///< The same with Ctrl, in the wheel's own units
    int checked_ = -1;                   ///< The step whose findings are marked; -1 without marks
    std::vector<std::string> findings_;  ///< By box number
    std::vector<BoxView*> boxes_;        ///< By box number; nullptr where there is none
};

}  // namespace quorvane
