// SPDX-License-Identifier: MIT
#include "matlab_link/script_blocks.h"

#include <gtest/gtest.h>

#include "support/table_file.h"

namespace quorvane::testing {

TEST(ScriptBlocks, AreOpenOrClosed) {
    for (const auto& row : ReadTable("matlab_link/script_blocks.tsv")) {
        for (std::size_t i = 1; i < row.size() - 1 && !row[i].empty(); ++i) {
            EXPECT_EQ(BlocksAreClosed(row[i]), row[0] == "yes") << row[i];
        }
    }
    EXPECT_TRUE(BlocksAreClosed(""));
    EXPECT_EQ(FindOpenBlock("x=1;\nfor i=1:2\nif x,end\nwhile x\n"), 5U);
}

}  // namespace quorvane::testing
