// SPDX-License-Identifier: MIT
#include "catalogue/matrix_input.h"

#include <gtest/gtest.h>

namespace quorvane::testing {

namespace {

std::string Blanks(std::size_t count) { return std::string(count, ' '); }

}  // namespace

TEST(MatrixInputTest, TheGridBeginsEmptyAndNumbered) {
    frmMatrix_Load();
    frmMatrix.grid.Cell(1, 1) = "left over";
    frmMatrix_Load();
    auto& grid = frmMatrix.grid;
    EXPECT_EQ(grid.Rows, 5);
    EXPECT_EQ(grid.Cols, 5);
    EXPECT_EQ(grid.Row, 1);
    EXPECT_EQ(grid.Col, 1);
    for (int i = 0; i <= 4; ++i) {
        const auto number = i == 0 ? "" : std::to_string(i);
        EXPECT_EQ(grid.Cell(0, i), number);
        EXPECT_EQ(grid.Cell(i, 0), number);
        EXPECT_EQ(grid.Cell(1, i), i == 0 ? "1" : "");
    }
    frmMatrix = {};
}

TEST(MatrixInputTest, Keys) {
    struct Case {
        const char* Name;
        int Row, Col;
        int Key;
        const char* Character;
        const char* Cell;  ///< What the cell, which held "ab", holds then
        int RowThen, ColThen, Rows, Cols;
    };
    const std::vector<Case> cases = {
        {"Backspace", 2, 3, 8, "\b", "a", 2, 3, 5, 5},
        {"Delete", 2, 3, 46, "", "a", 2, 3, 5, 5},
        {"Tab", 2, 3, 9, "\t", "ab", 2, 4, 5, 5},
        {"Tab in the last column", 2, 4, 9, "\t", "ab", 2, 5, 5, 6},
        {"Enter", 2, 3, 13, "\r", "ab", 2, 4, 5, 5},
        {"Enter in the last column", 2, 4, 13, "\r", "ab", 2, 4, 5, 5},
        {"Left", 2, 3, 37, "", "ab", 2, 2, 5, 5},
        {"Left in the first column", 2, 1, 37, "", "ab", 2, 1, 5, 5},
        {"Up", 2, 3, 38, "", "ab", 2, 1, 5, 5},
        {"Up in the first row", 1, 3, 38, "", "ab", 1, 3, 5, 5},
        {"Right", 2, 3, 39, "", "ab", 2, 3, 5, 5},
        {"Right in the last column", 2, 4, 39, "", "ab", 3, 1, 5, 5},
        {"Right in the last cell", 4, 4, 39, "", "ab", 4, 1, 5, 5},
        {"Down", 2, 3, 40, "", "ab", 2, 1, 5, 5},
        {"Down in the last row", 4, 3, 40, "", "ab", 4, 1, 6, 5},
        {"a digit", 2, 3, '7', "7", "ab7", 2, 3, 5, 5},
        {"minus", 2, 3, 189, "-", "ab-", 2, 3, 5, 5},
        {"a small letter", 2, 3, 'X', "x", "abx", 2, 3, 5, 5},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.Name);
        frmMatrix_Load();
        auto& grid = frmMatrix.grid;
        grid.Row = row.Row;
        grid.Col = row.Col;
        grid.Cell(row.Row, row.Col) = "ab";
        frmMatrix_grid_KeyDown(row.Key, row.Character);
        EXPECT_EQ(grid.Cell(row.Row, row.Col), row.Cell);
        EXPECT_EQ(grid.Row, row.RowThen);
        EXPECT_EQ(grid.Col, row.ColThen);
        EXPECT_EQ(grid.Rows, row.Rows);
        EXPECT_EQ(grid.Cols, row.Cols);
        if (row.Cols == 6) {
            EXPECT_EQ(grid.Cell(0, 5), "5");
        }
        if (row.Rows == 6) {
            EXPECT_EQ(grid.Cell(5, 0), "");
        }
    }
    frmMatrix_Load();
    frmMatrix_grid_KeyDown(8, "\b");
    EXPECT_EQ(frmMatrix.grid.Cell(1, 1), "");
    frmMatrix = {};
}

TEST(MatrixInputTest, TheTextOfTheMatrix) {
    struct Case {
        std::vector<std::vector<const char*>> Cells;  ///< Of the first rows and columns
        std::string Expected;
    };
    const auto emptyRow = Blanks(8) + "; ";
    const std::vector<Case> cases = {
        {{}, "[" + Blanks(8)},
        {{{"1", "2"}, {"3", "4"}}, "[1  2" + Blanks(6) + "; 3  4" + Blanks(6)},
        {{{}, {}, {"5"}}, "[" + emptyRow + emptyRow + "5" + Blanks(8)},
        {{{"-1.5", "a b", "x", "1;"}}, "[-1.5  a b  x  1"},
        {{{";"}, {" "}}, "["},
        {{{}, {}, {}, {"1", "", "", "2"}},
         "[" + emptyRow + emptyRow + emptyRow + "1" + Blanks(6) + "2  "},
    };
    for (const auto& row : cases) {
        frmMatrix_Load();
        for (std::size_t r = 0; r < row.Cells.size(); ++r) {
            for (std::size_t c = 0; c < row.Cells[r].size(); ++c) {
                frmMatrix.grid.Cell(static_cast<int>(r) + 1, static_cast<int>(c) + 1) =
                    row.Cells[r][c];
            }
        }
        frmMatrix.Form.Visible = true;
        frmMatrix_cmdOK_Click();
        EXPECT_EQ(frmMatrix.mat.Text, row.Expected);
        EXPECT_FALSE(frmMatrix.Form.Visible);
    }
    frmMatrix = {};
}

}  // namespace quorvane::testing
