// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace quorvane {

/// Qt's own style, with what it leaves unreadable on a dark desktop: the edges of fields, lists and
/// boxes to tick, and links.
class ProgramStyle : public QProxyStyle {
public:
    ProgramStyle() : QProxyStyle("fusion") {}
    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

}  // namespace quorvane
