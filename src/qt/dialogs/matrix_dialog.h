// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QTableWidget;

namespace quorvane {

/// The grid in which a matrix is typed. Keys go to the form's handler, and the grid shows its
/// record.
class MatrixDialog : public QDialog {
public:
    explicit MatrixDialog(QWidget* parent);
    void Refresh();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void reject() override {}

private:
    bool TakeKey(int key, const QString& text);

    QTableWidget* grid_;
};

}  // namespace quorvane
