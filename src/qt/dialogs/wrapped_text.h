// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>

namespace quorvane {

/// A text in lines of at most this width in pixels. Lines break between words, and within a word
/// that is too long; beyond six lines the text ends in an ellipsis.
QString WrappedText(const QString& text, const QFont& font, int width);

}  // namespace quorvane
