// SPDX-License-Identifier: MIT
#include "catalogue/icon_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <regex>
#include <set>

#include "files/work_folder.h"
#include "support/table_file.h"

namespace quorvane::testing {

TEST(IconTableTest, KeysAreUniqueAndCellsAreAllUsedButFour) {
    std::set<std::string_view> keys;
    std::vector<int> uses(147);
    for (const auto& row : iconTable) {
        EXPECT_TRUE(keys.insert(row.Key).second) << row.Key;
        ++uses.at(static_cast<std::size_t>(row.Cell));
    }
    for (const int unused : {0, 29, 67, 104, 121}) EXPECT_EQ(uses[unused], 0) << unused;
    EXPECT_EQ(std::count(uses.begin(), uses.end(), 0), 5);
}

TEST(IconTableTest, AKeyMovesTheClipWindow) {
    for (const auto& row : ReadTable("catalogue/icon_cells.tsv")) {
        const int cell = std::stoi(row[1]) - 1;
        SelectBoxIcon(row[0]);
        EXPECT_EQ(Clip(), cell + 1) << row.back();
        EXPECT_EQ(icons.ClipX, cell % 15 * 32) << row.back();
        EXPECT_EQ(icons.ClipY, cell / 15 * 32) << row.back();
    }
}

TEST(IconTableTest, EachCellHasAPictureThatIsOneOfItsOwnWithoutItsColours) {
    // Comments, blanks and colours
    const std::regex apart("<!--[^]*?-->|[ \t\r\n]|#[0-9a-fA-F]{6}");
    std::map<std::string, int> drawings;
    std::set<int> cells = {FallbackCell};
    for (const auto& row : iconTable) cells.insert(row.Cell);
    for (const int cell : cells) {
        char name[32];
        std::snprintf(name, sizeof name, "%03d.svg", cell);
        const auto drawing = std::regex_replace(
            ReadAll(std::string(QUORVANE_SOURCE_DIR "/resources/icons/") + name), apart, "");
        EXPECT_NE(drawing, "") << name << " is missing";
        const auto [same, isNew] = drawings.emplace(drawing, cell);
        EXPECT_TRUE(isNew) << name << " looks like that of cell " << same->second;
    }
}

}  // namespace quorvane::testing
