// SPDX-License-Identifier: MIT
#include "matlab_link/script_blocks.h"

#include <gtest/gtest.h>

#include "support/table_file.h"

namespace quorvane::testing {

TEST(ScriptBlocks, AreOpenOrClosed) {
    for (const auto& row : ReadTable("matlab_link/script_blocks.tsv")) {
        EXPECT_EQ(BlocksAreClosed(row[1]), row[0] == "yes") << row[1];
    }
}

}  // namespace quorvane::testing
