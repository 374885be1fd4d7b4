// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>
#include <vector>

#include "workbench/quick_find.h"

class QCompleter;
class QStringListModel;

namespace quorvane {

/// The field "quick" on the bar: it lists the commands and boxes that fit what is typed, and runs
/// or shows the one that is chosen.
class QuickField : public QLineEdit {
public:
    explicit QuickField(QWidget* parent);

private:
    void Find(const QString& text);
    void Choose(int row);

    std::vector<QuickRow> rows_;
    QStringListModel* list_;
    QCompleter* completer_;
};

}  // namespace quorvane
