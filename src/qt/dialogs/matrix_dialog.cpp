// SPDX-License-Identifier: MIT
#include "qt/dialogs/matrix_dialog.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "commands/matrix_input.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"

namespace quorvane {

namespace {

/// The codes that the form's handler knows.
enum KeyCode {
    Backspace = 8,
    Tab = 9,
    Enter = 13,
    Left = 37,
    Up,
    Right,
    Down,
    Delete = 46,
    Other = 0
};

int CodeOf(int key) {
    switch (key) {
        case Qt::Key_Backspace: return Backspace;
        case Qt::Key_Delete: return Delete;
        case Qt::Key_Tab: return Tab;
        case Qt::Key_Return:
        case Qt::Key_Enter: return Enter;
        case Qt::Key_Left: return Left;
        case Qt::Key_Up: return Up;
        case Qt::Key_Right: return Right;
        case Qt::Key_Down: return Down;
        default: return Other;
    }
}

/// What a grid does by itself on an arrow key, unless the handler has moved that way already.
void MoveInGrid(int code, int columnBefore) {
    auto& grid = frmMatrix.grid;
    if (code == Up && grid.Row > 1) --grid.Row;
    if (code == Down && grid.Row + 1 < grid.Rows) ++grid.Row;
    if (code == Right && grid.Col == columnBefore && grid.Col + 1 < grid.Cols) ++grid.Col;
}

}  // namespace

MatrixDialog::MatrixDialog(QWidget* parent) : QDialog(parent) {
    setObjectName("frmMatrix");
    setWindowTitle(ToScreen(frmMatrix.Form.Caption));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    grid_ = new QTableWidget;
    grid_->setObjectName("grid");
    grid_->setAccessibleName("Elements of the matrix");
    grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid_->setSelectionMode(QAbstractItemView::SingleSelection);
    // Tab is a key of the grid; Shift and Tab lead on to OK.
    grid_->setTabKeyNavigation(false);
    grid_->setToolTip("Shift+Tab leads to OK");
    grid_->horizontalHeader()->setDefaultSectionSize(80);
    grid_->installEventFilter(this);
    auto* ok = new QPushButton("OK");
    ok->setObjectName("cmdOK");
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(grid_);
    rows->addWidget(ok, 0, Qt::AlignRight);
    resize(420, 300);
    connect(ok, &QPushButton::clicked, this, [this] {
        Dispatch(frmMatrix_cmdOK_Click, this);
        accept();
    });
    connect(grid_, &QTableWidget::currentCellChanged, this, [this](int row, int column) {
        if (row < 0 || column < 0) return;
        Dispatch(
            [&] {
                frmMatrix.grid.Row = row + 1;
                frmMatrix.grid.Col = column + 1;
            },
            this);
        Refresh();
    });
    Refresh();
    grid_->setFocus();
}

void MatrixDialog::Refresh() {
    const QSignalBlocker quiet(grid_);
    auto& grid = frmMatrix.grid;
    grid_->setRowCount(grid.Rows - 1);
    grid_->setColumnCount(grid.Cols - 1);
    QStringList columns, rows;
    for (int c = 1; c < grid.Cols; ++c) columns.append(ToScreen(grid.Cell(0, c)));
    for (int r = 1; r < grid.Rows; ++r) rows.append(ToScreen(grid.Cell(r, 0)));
    grid_->setHorizontalHeaderLabels(columns);
    grid_->setVerticalHeaderLabels(rows);
    for (int r = 1; r < grid.Rows; ++r) {
        for (int c = 1; c < grid.Cols; ++c) {
            auto* item = grid_->item(r - 1, c - 1);
            if (!item) grid_->setItem(r - 1, c - 1, item = new QTableWidgetItem);
            const auto text = ToScreen(grid.Cell(r, c));
            if (item->text() != text) item->setText(text);
        }
    }
    grid_->setCurrentCell(grid.Row - 1, grid.Col - 1);
    // A view turns it off for cells that it can't edit by itself.
    grid_->setAttribute(Qt::WA_InputMethodEnabled);
}

bool MatrixDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == grid_ && event->type() == QEvent::InputMethod) {
        const auto text = static_cast<QInputMethodEvent*>(event)->commitString();
        if (!text.isEmpty()) TakeKey(Qt::Key_unknown, text);
        return true;
    }
    if (watched != grid_ || event->type() != QEvent::KeyPress) {
        return QDialog::eventFilter(watched, event);
    }
    // Both together are AltGr, which types characters.
    const auto* key = static_cast<QKeyEvent*>(event);
    const auto held = key->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (held == Qt::ControlModifier || held == Qt::AltModifier) return false;
    return TakeKey(key->key(), key->text());
}

/// True when the key was one for the grid.
bool MatrixDialog::TakeKey(int key, const QString& text) {
    const int code = CodeOf(key);
    if (code == Other && (text.isEmpty() || !QChar::isPrint(text.toUcs4().constFirst()))) {
        return false;
    }
    Dispatch(
        [&] {
            const int column = frmMatrix.grid.Col;
            frmMatrix_grid_KeyDown(code, code == Other ? ToCore(text) : std::string());
            MoveInGrid(code, column);
        },
        this);
    Refresh();
    return true;
}

}  // namespace quorvane
