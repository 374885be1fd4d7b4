// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QLineEdit>
#include <vector>

#include "workbench/quick_find.h"

class QListWidget;

namespace quorvane {

/// A field that shows a hint as long as it is empty and has room for all of it. Some dark themes
/// would leave the hint black.
class HintField : public QLineEdit {
public:
    using QLineEdit::QLineEdit;
    /// The brief one stands where the other doesn't fit.
    void SetHint(const QString& hint, const QString& brief = {});

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void FitHint();

    QString hint_, brief_;
};

/// The small window in which something is looked for: a line to type into, and what fits below it.
/// Enter or a click chooses, Escape leaves.
class QuickPopup : public QFrame {
public:
    explicit QuickPopup(QWidget* frame);
    /// Opens at this place of the screen, with this text in it.
    void Open(QPoint at, const QString& text, bool boxesOnly);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Find();
    void Choose(int row);

    HintField* text_;
    QListWidget* list_;
    std::vector<QuickRow> rows_;
    bool boxesOnly_ = false;
};

/// The field "quick" on the bar: what is typed into it opens the pop-up over it.
class QuickField : public HintField {
public:
    QuickField(QWidget* parent, QuickPopup* popup);
};

}  // namespace quorvane
