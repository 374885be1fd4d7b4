// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPainter>
#include <QRegion>
#include <vector>

#include "diagram/worksheet.h"
#include "qt/sheet/sheet_scale.h"

namespace quorvane {

/// What a worksheet shows beside the records' own picture: marks that help to read a diagram. They
/// are made from the records anew whenever the sheet is shown, and nothing but the screen holds
/// them.

/// The colour of the box with the focus, and of the box at which an arrow begins.
constexpr QColor FocusColor(0xFF, 0xB3, 0x00);

/// The sheet itself: dark enough for the light arrows of a new worksheet and for the inverted
/// rubber band, light enough for the black of the heads.
constexpr QColor SheetColor(0x4C, 0x58, 0x66);

/// The number of an entry, 1 to 3, where its arrow meets the box at the far end.
struct EntryMark {
    QPointF Foot;  ///< The place on the edge of that box, in screen units of the client area
    QPoint Away;   ///< From the box: one of the four directions
    int Entry = 0;
    bool HasHead = false;  ///< The head lies between the box and the mark
    int Box = 0;           ///< The box at the far end
    int Row = 0;           ///< How many marks lie between that box and this one

    friend bool operator==(const EntryMark&, const EntryMark&) = default;
};

/// The arrows of one box, brightened.
struct BoxHighlight {
    std::vector<DrawnShape> Arrows;
    std::vector<EntryMark> Ends;
};
/// That of box `number`; empty for a number without a box on the worksheet.
BoxHighlight HighlightOf(const Worksheet& sheet, int number);
bool SameHighlight(const BoxHighlight& a, const BoxHighlight& b);
void PaintHighlight(QPainter& painter, const BoxHighlight& highlight, const SheetScale& scale);
/// What painting it touches, in pixels of the surface.
QRegion RegionOf(const BoxHighlight& highlight, const SheetScale& scale);

/// The frame round the box at which the pending arrow begins, in pixels; empty while no arrow is
/// pending on this worksheet.
QRect PendingFrame(const Worksheet& sheet, const SheetScale& scale);
/// The frame round box `number`; empty for a number without a box on the worksheet.
QRect FrameOf(const Worksheet& sheet, int number, const SheetScale& scale);
void PaintFrame(QPainter& painter, const QRect& frame, int width);

/// Boxes with a finding wear a mark: as long as the panel that lists the findings is open.
extern bool showsFindings;

/// Box numbers are written below the boxes of all worksheets.
extern bool showsBoxNumbers;

/// The name of a box, written below it.
struct BoxLabel {
    int Number = 0;
    QPointF Foot;            ///< The middle of the box's lower edge, in screen units
    bool IsEntered = false;  ///< Heads of arrows lie below the box

    friend bool operator==(const BoxLabel&, const BoxLabel&) = default;
};
/// Those of the boxes that show; none while numbers aren't shown.
std::vector<BoxLabel> BoxLabelsOf(const Worksheet& sheet);
/// Paints those that the rectangle touches.
void PaintBoxLabels(QPainter& painter, const std::vector<BoxLabel>& labels, const SheetScale& scale,
                    const QRect& touched);

}  // namespace quorvane
