// SPDX-License-Identifier: MIT
#include "qt/dialogs/wrapped_text.h"

#include <QFontMetrics>
#include <QStringList>
#include <QTextLayout>

namespace quorvane {

namespace {

constexpr int MostLines = 6;

/// Appends the lines of one paragraph, and stops one line beyond what can be shown.
void AppendLines(const QString& paragraph, const QFont& font, int width, QStringList& lines) {
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    while (lines.size() <= MostLines) {
        auto line = layout.createLine();
        if (!line.isValid()) break;
        line.setLineWidth(width);
        lines.append(paragraph.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
}

}  // namespace

QString WrappedText(const QString& text, const QFont& font, int width) {
    const QFontMetrics metrics(font);
    if (!text.contains('\n') && metrics.horizontalAdvance(text) <= width) return text;
    QStringList lines;
    for (const auto& paragraph : text.split('\n')) AppendLines(paragraph, font, width, lines);
    if (lines.size() > MostLines) {
        const auto last = lines[MostLines - 1] + ' ' + lines[MostLines] + QChar(0x2026);
        lines.resize(MostLines);
        lines.last() = metrics.elidedText(last, Qt::ElideRight, width);
    }
    return lines.join('\n');
}

}  // namespace quorvane
