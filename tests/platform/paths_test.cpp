// SPDX-License-Identifier: MIT
#include "platform/paths.h"

#include <gtest/gtest.h>

#include "platform/raised_error.h"
#include "support/table_file.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

TEST(Paths, BothSeparatorsPartAPath) {
    for (const auto& row : ReadTable("platform/paths.tsv")) {
        EXPECT_EQ(FolderOf(row[0]), row[1]) << row.back();
        EXPECT_EQ(FileNameOf(row[0]), row[2]) << row.back();
    }
    EXPECT_EQ(RaisedError([] { ChangeDirectory("/no/such/folder"); }), 76);
}

}  // namespace
