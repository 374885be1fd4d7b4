// SPDX-License-Identifier: MIT
#include "matlab_link/script_blocks.h"

#include <gtest/gtest.h>

#include "support/table_file.h"

namespace quorvane::testing {

TEST(ScriptBlocks, AreOpenOrClosed) {
    for (const auto& row : ReadTable("matlab_link/script_blocks.tsv")) {
        EXPECT_EQ(BlocksAreClosed(row[1]), row[0] == "yes") << row[1];
    }
    EXPECT_EQ(FindOpenBlock("x=1;\nfor i=1:2\nif x,end\nwhile x\n"), 5U);
}

}  // namespace quorvane::testing
