// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QWidget>
#include <vector>

#include "diagram/worksheet.h"

namespace quorvane {

/// The painted surface of a worksheet, which takes the mouse. What is drawn is kept as a picture at
/// the screen's own resolution and drawn again when the list of shapes has changed, so that moving
/// the rubber band over it costs little.
class SurfaceView : public QWidget {
public:
    SurfaceView(int document, QWidget* parent);
    void Refresh();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    Worksheet& Sheet() const;
    /// Draws the shapes of the record into the picture.
    void DrawLayer();
    /// Repaints where the rubber band was and is now.
    void UpdateBand(const QRect& band);
    /// Moves the mouse pointer over the sheet and returns where it is then.
    QPoint MovePointer(QPoint by);

    int document_;
    std::vector<DrawnShape> drawn_;  ///< What the picture shows
    QPixmap layer_;
    bool layerIsOld_ = false;    ///< It shows other shapes than drawn_
    QRect band_;                 ///< The rubber band as painted, empty when hidden
    bool keyboardBand_ = false;  ///< Arrow keys with Shift are drawing a band
};

}  // namespace quorvane
