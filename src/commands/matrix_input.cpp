// SPDX-License-Identifier: MIT
#include "commands/matrix_input.h"

#include <algorithm>

#include "platform/numbers.h"
#include "platform/runtime_error.h"

namespace quorvane {

MatrixForm frmMatrix;

void MatrixGrid::Grow(int rows, int cols) {
    Rows = std::max(Rows, rows);
    Cols = std::max(Cols, cols);
    Cells.resize(static_cast<std::size_t>(Rows));
    for (auto& row : Cells) row.resize(static_cast<std::size_t>(Cols));
}

std::string& MatrixGrid::Cell(int row, int col) {
    if (row < 0 || row >= Rows || col < 0 || col >= Cols) throw RuntimeError(9);
    return Cells[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
}

void frmMatrix_Load() {
    frmMatrix = {};
    frmMatrix.Form = {.Caption = "Matrix Input", .Loaded = true};
    auto& grid = frmMatrix.grid;
    grid.Grow(5, 5);
    for (int i = 1; i <= 4; ++i) {
        grid.Cell(0, i) = NumberText(i);
        grid.Cell(i, 0) = NumberText(i);
    }
    grid.Row = 1;
    grid.Col = 1;
}

void frmMatrix_grid_KeyDown(int keyCode, std::string_view character) {
    auto& grid = frmMatrix.grid;
    auto& cell = grid.Cell(grid.Row, grid.Col);
    switch (keyCode) {
        case 8:
        case 46:
            while (!cell.empty() && !BeginsCharacter(cell.back())) cell.pop_back();
            if (!cell.empty()) cell.pop_back();
            break;
        case 9:
            if (grid.Col + 1 == grid.Cols) {
                grid.Grow(grid.Rows, grid.Cols + 1);
                grid.Cell(0, grid.Cols - 1) = NumberText(grid.Cols - 1);
            }
            ++grid.Col;
            break;
        case 13:
            if (grid.Col + 1 < grid.Cols) ++grid.Col;
            break;
        case 37:
            if (grid.Col > 1) --grid.Col;
            break;
        case 38:
            if (grid.Row > 1) grid.Col = 1;
            break;
        case 39:
            if (grid.Col + 1 == grid.Cols) {
                grid.Col = 1;
                if (grid.Row + 1 < grid.Rows) ++grid.Row;
            }
            break;
        case 40:
            if (grid.Row + 1 == grid.Rows) grid.Grow(grid.Rows + 1, grid.Cols);
            grid.Col = 1;
            break;
        default: cell += character; break;
    }
}

void frmMatrix_cmdOK_Click() {
    auto& grid = frmMatrix.grid;
    std::string text = "[";
    for (int row = 1; row < grid.Rows; ++row) {
        for (int col = 1; col < grid.Cols; ++col) text += grid.Cell(row, col) + "  ";
        text += "; ";
    }
    for (auto i = text.size(); i > 0; --i) {
        const char last = text[i - 1];
        if (last != ';' && last != ' ') break;
        if (last == ';') text.resize(i - 1);
    }
    frmMatrix.mat.Text = text;
    frmMatrix.Form.Visible = false;
}

Form frmMatrix_Table() {
    return {.Name = "frmMatrix",
            .State = &frmMatrix.Form,
            .Controls = {{"cmdOK", &frmMatrix.cmdOK, frmMatrix_cmdOK_Click}}};
}

}  // namespace quorvane
