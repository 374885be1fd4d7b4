// SPDX-License-Identifier: MIT
#include "commands/matrix_input.h"

#include <gtest/gtest.h>

#include "support/table_file.h"

namespace quorvane::testing {

TEST(MatrixInputTest, Keys) {
    for (const auto& row : ReadTable("catalogue/matrix_keys.tsv")) {
        SCOPED_TRACE(row.back() + " " + row[0]);
        const int at = std::stoi(row[1]);
        frmMatrix_Load();
        auto& grid = frmMatrix.grid;
        EXPECT_EQ(grid.Cell(0, 0) + grid.Cell(1, 0) + grid.Cell(0, 4), "14");
        EXPECT_EQ(grid.Cell(at / 10, at % 10), "") << "what the last row left";
        EXPECT_EQ(grid.Row * 10 + grid.Col, 11);
        grid.Row = at / 10;
        grid.Col = at % 10;
        grid.Cell(at / 10, at % 10) = row[4];
        frmMatrix_grid_KeyDown(std::stoi(row[2]), row[3]);
        EXPECT_EQ(grid.Cell(at / 10, at % 10), row[5]);
        EXPECT_EQ(grid.Row * 10 + grid.Col, std::stoi(row[6]));
        EXPECT_EQ(grid.Rows * 10 + grid.Cols, std::stoi(row[7]));
        EXPECT_EQ(grid.Cell(0, grid.Cols - 1), std::to_string(grid.Cols - 1));
        EXPECT_EQ(grid.Cell(grid.Rows - 1, 0), grid.Rows == 5 ? "4" : "");
    }
}

TEST(MatrixInputTest, TheTextOfTheMatrix) {
    for (const auto& row : ReadTable("catalogue/matrix_texts.tsv")) {
        frmMatrix_Load();
        for (int r = 0; const auto& line : Split(row[0], '/')) {
            ++r;
            for (int c = 0; const auto& cell : Split(line, '|')) frmMatrix.grid.Cell(r, ++c) = cell;
        }
        frmMatrix.Form.Visible = true;
        frmMatrix_cmdOK_Click();
        EXPECT_EQ(frmMatrix.mat.Text, row[1]) << row.back();
        EXPECT_FALSE(frmMatrix.Form.Visible);
    }
    frmMatrix = {};
}

}  // namespace quorvane::testing
