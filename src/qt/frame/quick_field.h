// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QLineEdit>
#include <vector>

#include "workbench/quick_find.h"

class QListWidget;

namespace quorvane {

/// Shows a hint in a field as long as that is empty. Some dark themes would leave it black.
void ShowHint(QLineEdit* field, const QString& hint);

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

    QLineEdit* text_;
    QListWidget* list_;
    std::vector<QuickRow> rows_;
    bool boxesOnly_ = false;
};

/// The field "quick" on the bar: what is typed into it opens the pop-up over it.
class QuickField : public QLineEdit {
public:
    QuickField(QWidget* parent, QuickPopup* popup);
};

}  // namespace quorvane
