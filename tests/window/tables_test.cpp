// SPDX-License-Identifier: MIT
#include "window/window_fixture.h"

namespace quorvane::testing {

struct WindowTables : WindowTest, ::testing::WithParamInterface<const char*> {};

TEST_P(WindowTables, Table) { PlayTable(std::string("window/") + GetParam() + ".tsv"); }

INSTANTIATE_TEST_SUITE_P(Tables, WindowTables,
                         ::testing::Values("dialogs", "frame", "journey", "worksheet"),
                         [](const auto& table) { return std::string(table.param); });

}  // namespace quorvane::testing
