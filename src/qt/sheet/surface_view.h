// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QTimer>
#include <QWidget>
#include <vector>

#include "diagram/worksheet.h"
#include "qt/sheet/sheet_marks.h"
#include "qt/sheet/sheet_scale.h"
#include "qt/sheet/sheet_scroll.h"

namespace quorvane {

/// The painted surface of a worksheet, which takes the mouse. What is drawn is kept as a picture at
/// the screen's own resolution and drawn again when the list of shapes has changed, so that moving
/// the rubber band over it costs little. Marks lie on that picture.
class SurfaceView : public QWidget {
public:
    SurfaceView(int document, const SheetScale& scale, QWidget* parent);
    void Refresh();
    const SheetScale& Scale() const { return scale_; }
    SheetPan& Pan() { return pan_; }
    /// The mouse has come over this box, or has left it for none, 0.
    void Hover(int number);
    /// Frames this box for a moment.
    void Flash(int number);
    /// The box that the last press of the mouse was on while nothing was pending, 0 for none: the
    /// first half of a double click.
    int LastPress() const { return lastPress_; }
    void NotePress(int number) { lastPress_ = number; }

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
    /// Takes over what has changed in the marks.
    void RefreshMarks();
    void Mark(int& mark, int number);
    /// Repaints where a frame, such as the rubber band, was or is.
    void UpdateEdges(const QRect& frame);
    void TakePress(QMouseEvent* event);
    void PressKey();
    void MoveByKey(QPoint by, bool selects);
    /// Moves the mouse pointer over the sheet and returns where it is then.
    QPoint MovePointer(QPoint by);

    int document_;
    const SheetScale& scale_;
    SheetPan pan_;
    int percent_ = 100;              ///< The scale of the picture
    std::vector<DrawnShape> drawn_;  ///< What the picture shows
    std::vector<BoxLabel> labels_;   ///< The same
    QPixmap layer_;
    bool layerIsOld_ = false;  ///< It shows other shapes than drawn_
    QRect band_;               ///< The rubber band as painted, empty when hidden
    int lastPress_ = 0;
    int hovered_ = 0;         ///< The box under the mouse, 0 for none
    BoxHighlight highlight_;  ///< Its arrows as painted
    QRect pending_;           ///< The frame round the source of the pending arrow as painted
    int flashed_ = 0;
    QRect flash_;  ///< The frame round that box as painted
    QTimer flashEnd_;
    bool keyboardBand_ = false;  ///< Arrow keys with Shift are drawing a band
};

}  // namespace quorvane
