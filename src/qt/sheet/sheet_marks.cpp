// SPDX-License-Identifier: MIT
#include "qt/sheet/sheet_marks.h"

#include <QApplication>
#include <QFontMetrics>
#include <array>

#include "diagram/arrows.h"
#include "diagram/box_table.h"
#include "qt/sheet/shape_painter.h"

namespace quorvane {

bool showsBoxNumbers = false;
bool showsFindings = false;

namespace {

constexpr QColor MarkPaper(0xFF, 0xFB, 0xE0);
constexpr QColor MarkInk(0x20, 0x20, 0x20);
constexpr QColor MarkEdge(0x80, 0x78, 0x40);
constexpr QColor LabelInk(0xF2, 0xF4, 0xF6);
constexpr QColor HaloColor(0x86, 0x92, 0x9E);

constexpr double HaloWidth = 4;  ///< What the halo and the bright line add to an arrow's pen
constexpr double BrightWidth = 1;
constexpr double HeadLength = 150;  ///< Of the longest head, in screen units

/// The same colour, mostly white.
std::int32_t Bright(std::int32_t color) {
    const auto plain = ColorOf(color);
    const auto half = [](int part) { return (part + 2 * 255) / 3; };
    return ColorNumber(QColor(half(plain.red()), half(plain.green()), half(plain.blue())));
}

/// Where an arrow to D, which lands at x, ends, by the rules of its head.
EntryMark AtHead(const BoxControl& S, const BoxControl& D, double x) {
    EntryMark mark;
    mark.HasHead = true;
    const double middle = S.Top + S.Height / 2;
    if (S.Top < D.Top - D.Height / 2) {
        mark.Foot = {x, D.Top};
        mark.Away = {0, -1};
    } else if (S.Top >= D.Top + D.Height / 2) {
        mark.Foot = {x, D.Top + D.Height};
        mark.Away = {0, 1};
    } else if (S.Left < D.Left) {
        mark.Foot = {D.Left, middle};
        mark.Away = {-1, 0};
    } else {
        mark.Foot = {D.Left + D.Width, middle};
        mark.Away = {1, 0};
    }
    return mark;
}

/// Where an arrow from S, whose second leg stands at x, comes out from behind its box.
EntryMark AtTail(const BoxControl& S, const BoxControl& D, double x) {
    EntryMark mark;
    const double middle = S.Top + S.Height / 2;
    if (x > S.Left + S.Width) {
        mark.Foot = {S.Left + S.Width, middle};
        mark.Away = {1, 0};
    } else if (x < S.Left) {
        mark.Foot = {S.Left, middle};
        mark.Away = {-1, 0};
    } else if (D.Top > S.Top) {
        mark.Foot = {x, S.Top + S.Height};
        mark.Away = {0, 1};
    } else {
        mark.Foot = {x, S.Top};
        mark.Away = {0, -1};
    }
    return mark;
}

void AddArrow(BoxHighlight& highlight, const Worksheet& sheet, int source, int destination,
              int number) {
    if (!sheet.box.Has(source) || !sheet.box.Has(destination)) return;
    const auto& S = sheet.box[source];
    const auto& D = sheet.box[destination];
    const int entry = FindEntrySlot(source, destination);
    const Pen pen = {Bright(BoxOrFree(source).BoxLineColor[entry]), sheet.DrawWidth};
    DrawLegsAndHead(highlight.Arrows, pen, S, D, entry);
    const double x = D.Left + entry * (D.Width / 5);
    auto mark = source == number ? AtHead(S, D, x) : AtTail(S, D, x);
    mark.Entry = entry;
    mark.Box = source == number ? destination : source;
    for (const auto& other : highlight.Ends) {
        if (other.Box == mark.Box && other.Entry == entry && other.HasHead == mark.HasHead) return;
        if (other.Box == mark.Box && other.Away == mark.Away) ++mark.Row;
    }
    highlight.Ends.push_back(mark);
}

/// The bubble's, which follows the scale only so far that it stays legible.
QFont LabelFont(const SheetScale& scale) {
    auto font = QApplication::font("QLabel");
    font.setPixelSize(qRound(QFontInfo(font).pixelSize() * qBound(0.75, scale.Factor(), 1.5)));
    return font;
}

QFont MarkFont(QFont font) {
    font.setPixelSize(10);
    font.setBold(true);
    return font;
}

/// Marks at the same side of a box stand one behind the other, those below it behind its label.
QRect MarkRect(const EntryMark& mark, const SheetScale& scale) {
    constexpr QSize size(11, 13);
    constexpr int gap = 3;
    const int head = mark.HasHead ? scale.ToPixels(HeadLength) : 0;
    const int step = (mark.Away.x() ? size.width() : size.height()) + 1;
    const bool isLabelled = showsBoxNumbers && mark.Away.y() > 0;
    const int label = isLabelled ? QFontMetrics(LabelFont(scale)).height() : 0;
    const int away = gap + head + label + step * mark.Row + step / 2;
    QRect place({}, size);
    place.moveCenter(scale.ToPixels(mark.Foot.x(), mark.Foot.y()) + away * mark.Away);
    return place;
}

void PaintMark(QPainter& painter, const EntryMark& mark, const SheetScale& scale) {
    const auto place = MarkRect(mark, scale);
    painter.setPen(MarkEdge);
    painter.setBrush(MarkPaper);
    painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    painter.setPen(MarkInk);
    painter.drawText(place, Qt::AlignCenter, QString::number(mark.Entry));
}

/// What a leg covers, with its halo, and the head and the marks on it.
QRect BoundsOf(const DrawnShape& leg, const SheetScale& scale) {
    const int pen = qCeil(leg.Width * scale.Factor() + HaloWidth);
    const int margin = qMax(pen, scale.ToPixels(HeadLength)) + 2;
    const auto from = scale.ToPixels(leg.X1, leg.Y1), to = scale.ToPixels(leg.X2, leg.Y2);
    return QRect(from, to).normalized().adjusted(-margin, -margin, margin, margin);
}

}  // namespace

BoxHighlight HighlightOf(const Worksheet& sheet, int number) {
    BoxHighlight highlight;
    const auto document = DocumentNumber(sheet);
    if (number < 1 || BoxOrFree(number).BoxDocument != document) return highlight;
    for (int i = 1; i < NextBox; ++i) {
        const auto& box = BoxOrFree(i);
        if (box.BoxDocument != document) continue;
        for (const int peer : box.BoxOut) {
            if (peer < 1 || (i != number && peer != number)) continue;
            AddArrow(highlight, sheet, i, peer, number);
        }
    }
    return highlight;
}

bool SameHighlight(const BoxHighlight& a, const BoxHighlight& b) {
    return a.Ends == b.Ends && SameShapes(a.Arrows, b.Arrows);
}

void PaintHighlight(QPainter& painter, const BoxHighlight& highlight, const SheetScale& scale) {
    if (highlight.Arrows.empty()) return;
    painter.save();
    auto halo = highlight.Arrows;
    for (auto& shape : halo) shape.Color = ColorNumber(HaloColor);
    PaintShapes(painter, halo, scale, HaloWidth);
    // No leg crosses a head, and a head's edge leaves its dark inside free.
    std::vector<DrawnShape> legs, heads;
    for (const auto& shape : highlight.Arrows) {
        (shape.Shape == DrawnShape::Kind::Line ? legs : heads).push_back(shape);
    }
    PaintShapes(painter, legs, scale, BrightWidth);
    PaintShapes(painter, heads, scale);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(MarkFont(painter.font()));
    for (const auto& mark : highlight.Ends) PaintMark(painter, mark, scale);
    painter.restore();
}

/// Few rectangles, since each box of the sheet is held against all of them.
QRegion RegionOf(const BoxHighlight& highlight, const SheetScale& scale) {
    QRegion region;
    for (const auto& shape : highlight.Arrows) {
        if (shape.Shape == DrawnShape::Kind::Line) region += BoundsOf(shape, scale);
    }
    for (const auto& mark : highlight.Ends) region += MarkRect(mark, scale);
    return region;
}

QRect PendingFrame(const Worksheet& sheet, const SheetScale& scale) {
    return EditMode == 4 ? FrameOf(sheet, ArrowSource, scale) : QRect();
}

QRect FrameOf(const Worksheet& sheet, int number, const SheetScale& scale) {
    if (!sheet.box.Has(number)) return {};
    if (BoxOrFree(number).BoxDocument != DocumentNumber(sheet)) return {};
    constexpr int distance = 4;
    const auto& control = sheet.box[number];
    const QRect box(scale.ToPixels(control.Left, control.Top),
                    QSize(scale.ToPixels(control.Width), scale.ToPixels(control.Height)));
    return box.adjusted(-distance, -distance, distance, distance);
}

void PaintFrame(QPainter& painter, const QRect& frame, int width) {
    if (frame.isEmpty()) return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(FocusColor, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(frame.adjusted(1, 1, -1, -1), 6, 6);
    painter.restore();
}

std::vector<BoxLabel> BoxLabelsOf(const Worksheet& sheet) {
    std::vector<BoxLabel> labels;
    if (!showsBoxNumbers) return labels;
    const auto document = DocumentNumber(sheet);
    std::array<bool, MaxBoxes + 1> entered{};
    for (int i = 1; i < NextBox; ++i) {
        const auto& box = BoxOrFree(i);
        if (box.BoxDocument != document || !sheet.box.Has(i)) continue;
        for (const int peer : box.BoxOut) {
            if (peer < 1 || !sheet.box.Has(peer)) continue;
            const auto& D = sheet.box[peer];
            if (sheet.box[i].Top >= D.Top + D.Height / 2) {
                entered[static_cast<std::size_t>(peer)] = true;
            }
        }
    }
    for (int i = 1; i < NextBox; ++i) {
        if (BoxOrFree(i).BoxDocument != document || !sheet.box.Has(i)) continue;
        const auto& control = sheet.box[i];
        if (!control.Visible) continue;
        labels.push_back({i,
                          {control.Left + control.Width / 2, control.Top + control.Height},
                          entered[static_cast<std::size_t>(i)]});
    }
    return labels;
}

/// Where boxes stand close, on a small scale, there is room for the number alone.
void PaintBoxLabels(QPainter& painter, const std::vector<BoxLabel>& labels, const SheetScale& scale,
                    const QRect& touched) {
    constexpr int smallestWithName = 67;
    constexpr double headRoom = 120;
    painter.save();
    painter.setFont(LabelFont(scale));
    painter.setRenderHint(QPainter::Antialiasing);
    const QFontMetrics metrics(painter.font());
    auto paper = SheetColor;
    paper.setAlpha(0xD0);
    for (const auto& label : labels) {
        const auto text = scale.Percent < smallestWithName ? QString::number(label.Number)
                                                           : ToScreen(BoxName(label.Number));
        const auto foot =
            scale.ToPixels(label.Foot.x(), label.Foot.y() + (label.IsEntered ? headRoom : 0));
        const int width = metrics.horizontalAdvance(text) + 4;
        const QRect place(foot.x() - width / 2, foot.y() + 1, width, metrics.height());
        if (!touched.intersects(place)) continue;
        painter.setPen(Qt::NoPen);
        painter.setBrush(paper);
        painter.drawRoundedRect(place, 2, 2);
        painter.setPen(LabelInk);
        painter.drawText(place, Qt::AlignCenter, text);
    }
    painter.restore();
}

}  // namespace quorvane
