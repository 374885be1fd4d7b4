// SPDX-License-Identifier: MIT
#include "qt/desktop/program_style.h"

#include <QPainter>
#include <QStyleOption>

namespace quorvane {

namespace {

bool IsDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

/// Between the ground and its text.
QColor EdgeColor(const QPalette& palette) {
    constexpr float share = 0.4F;
    auto color = palette.color(QPalette::WindowText);
    color.setAlphaF(share);
    return color;
}

/// The radius of the element's corners, negative for one without an edge. One with the focus has an
/// edge that is seen.
double EdgeRadius(QStyle::PrimitiveElement element, const QStyleOption& option) {
    switch (element) {
        case QStyle::PE_IndicatorCheckBox: return 1;
        case QStyle::PE_IndicatorRadioButton: return option.rect.height() / 2.0;
        case QStyle::PE_FrameLineEdit: return option.state & QStyle::State_HasFocus ? -1 : 2;
        case QStyle::PE_Frame: return option.state & QStyle::State_Sunken ? 0 : -1;
        default: return -1;
    }
}

}  // namespace

void ProgramStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    if (!IsDark(palette) || palette.color(QPalette::Link).lightness() > 150) return;
    palette.setColor(QPalette::Link, QColor(0x62, 0xB4, 0xF5));
    palette.setColor(QPalette::LinkVisited, QColor(0xB8, 0x9C, 0xF0));
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const double radius = EdgeRadius(element, *option);
    if (radius < 0 || !IsDark(option->palette)) return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(EdgeColor(option->palette));
    painter->setBrush(Qt::NoBrush);
    const auto edge = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->drawRoundedRect(edge, radius, radius);
    painter->restore();
}

}  // namespace quorvane
