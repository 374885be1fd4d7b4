// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/form.h"

namespace quorvane {

/// A grid of texts with a fixed first row and column. Rows and columns count from 0, the fixed
/// ones.
struct MatrixGrid {
    int Rows = 0;
    int Cols = 0;
    int Row = 0;  ///< The current cell
    int Col = 0;
    std::vector<std::vector<std::string>> Cells;  ///< By row, then column

    /// Grows the grid so that it has at least this many rows and columns, the fixed ones included.
    void Grow(int rows, int cols);
    std::string& Cell(int row, int col);  ///< Error 9 outside the grid
};

/// The grid in which the elements of a matrix are typed. The generator opens it for each
/// "Matrix Input" box that it meets, and takes the text of `mat` for that run.
struct MatrixForm {
    FormState Form;
    MatrixGrid grid;
    TextBox mat;  ///< "[", the rows separated by "; ", without a closing bracket
    Button cmdOK{"OK"};
};
extern MatrixForm frmMatrix;

/// Begins with 4 by 4 empty cells.
void frmMatrix_Load();
/// A key pressed in the grid: 8 and 46 take the last character off, 9, 13 and 37 to 40 move the
/// current cell, any other key appends its character.
void frmMatrix_grid_KeyDown(int keyCode, std::string_view character);
/// Writes the cells into `mat`, without empty rows at the end, and hides the form.
void frmMatrix_cmdOK_Click();
/// Without the grid, which has a view of its own.
Form frmMatrix_Table();

}  // namespace quorvane
