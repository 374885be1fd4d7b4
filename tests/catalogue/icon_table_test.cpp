// SPDX-License-Identifier: MIT
#include "catalogue/icon_table.h"

#include <gtest/gtest.h>

#include <set>

namespace quorvane::testing {

TEST(IconTableTest, KeysAreUniqueAndCellsAreAllUsedButFour) {
    std::set<std::string_view> keys;
    std::set<int> cells;
    for (const auto& row : iconTable) {
        EXPECT_TRUE(keys.insert(row.Key).second) << row.Key;
        cells.insert(row.Cell);
    }
    EXPECT_EQ(*cells.begin(), 1);
    EXPECT_EQ(*cells.rbegin(), IconCells);
    for (int cell = 1; cell <= IconCells; ++cell) {
        const bool free = cell == 29 || cell == 67 || cell == 104 || cell == 121;
        EXPECT_EQ(cells.contains(cell), !free) << cell;
    }
}

TEST(IconTableTest, AKeyMovesTheClipWindow) {
    struct Case {
        const char* Key;
        int Cell, ClipX, ClipY;
    };
    const std::vector<Case> cases = {
        {"Abs", 1, 0, 0},
        {"Logarithm of beta function", 14, 13 * 32, 0},
        {"Blanks", 15, 14 * 32, 0},
        {"Basic Arithmatic", 16, 0, 32},
        {"IsGlobal", 19, 3 * 32, 32},
        {"FFTIFFT", 65, 4 * 32, 4 * 32},
        {"IFFT2", 65, 4 * 32, 4 * 32},
        {"Associated Legendre function", 71, 10 * 32, 4 * 32},
        {"&", 76, 0, 5 * 32},
        {"Null Space", 83, 7 * 32, 5 * 32},
        {"Matlab Command", 84, 8 * 32, 5 * 32},
        {"Pickup", 93, 2 * 32, 6 * 32},
        {"Pscolor", 103, 12 * 32, 6 * 32},
        {"Sound axis scaling", 110, 4 * 32, 7 * 32},
        {"^", 116, 10 * 32, 7 * 32},
        {"Wilkinson's eigenvalue test matrix", 124, 3 * 32, 8 * 32},
        {"Subroutine", 130, 9 * 32, 8 * 32},
        {"Cumulative sum", 141, 5 * 32, 9 * 32},
        {"wavread", 143, 7 * 32, 9 * 32},
        {"wavrite", 144, 8 * 32, 9 * 32},
        {"Split Matrix", 146, 10 * 32, 9 * 32},
        // What the table doesn't have, letter for letter
        {"wavwrite", 104, 13 * 32, 6 * 32},
        {"Logic Operator", 104, 13 * 32, 6 * 32},
        {"abs", 104, 13 * 32, 6 * 32},
        {"Cumulative Sum", 104, 13 * 32, 6 * 32},
        {"End Subroutine", 104, 13 * 32, 6 * 32},
        {"Diag|1", 104, 13 * 32, 6 * 32},
        {"", 104, 13 * 32, 6 * 32},
    };
    for (const auto& row : cases) {
        SelectBoxIcon(row.Key);
        EXPECT_EQ(Clip(), row.Cell) << row.Key;
        EXPECT_EQ(icons.ClipX, row.ClipX) << row.Key;
        EXPECT_EQ(icons.ClipY, row.ClipY) << row.Key;
    }
}

}  // namespace quorvane::testing
