// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace quorvane {

/// The panel "Boxes" beside the worksheets: a tree of all boxes, which the keyboard walks and a
/// screen reader reads. Enter shows a box, Shift+Enter its information, F2 changes it, Delete
/// removes it.
class BoxesPanel : public QWidget {
public:
    explicit BoxesPanel(QWidget* parent);
    /// Lists the boxes anew when the diagrams have changed. Nothing is done while it is hidden.
    void Refresh();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void List();
    void ShowValues();
    void ShowValue(QTreeWidgetItem* item, int number, const QString& words);
    int Current() const;
    bool TakeKey(int key, Qt::KeyboardModifiers modifiers);

    QLineEdit* filter_;
    QPushButton* change_;
    QTreeWidget* boxes_;
    QString listed_;  ///< What the list was made from
};

}  // namespace quorvane
