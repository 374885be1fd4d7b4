// SPDX-License-Identifier: MIT
#include "catalogue/icon_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <regex>
#include <set>

#include "catalogue/box_commands.h"
#include "files/work_folder.h"

namespace quorvane::testing {

std::set<int> UsedCells() {
    std::set<int> cells = {FallbackCell};
    for (const auto& row : iconTable) cells.insert(row.Cell);
    for (const auto& row : boxCommands) cells.insert(row.Cell);
    cells.erase(0);
    return cells;
}

TEST(IconTableTest, AKeyMovesTheClipWindow) {
    const std::pair<const char*, int> cases[] = {{"Blanks", 15},    {"Basic Arithmatic", 16},
                                                 {"Split", 146},    {"wavrite", 144},
                                                 {"wavwrite", 104}, {"abs", 104},
                                                 {"", 104},         {"Insert Subroutine a", 104}};
    for (const auto& [key, cell] : cases) {
        SelectBoxIcon(key);
        EXPECT_EQ(Clip(), cell) << key;
        EXPECT_EQ(icons.ClipX, (cell - 1) % 15 * 32) << key;
        EXPECT_EQ(icons.ClipY, (cell - 1) / 15 * 32) << key;
    }
}

TEST(IconTableTest, AKeyStandsOnceAndAllCellsButFourAreUsed) {
    std::set<std::string_view> keys;
    for (const auto& row : iconTable) {
        EXPECT_TRUE(keys.insert(row.Key).second) << row.Key;
        const int own = CommandCell(row.Key);
        EXPECT_TRUE(own == 0 || row.Key == "Special Matrix") << row.Key;
    }
    const auto cells = UsedCells();
    for (int cell = 1; cell <= IconCells; ++cell) {
        const bool unused = cell == 29 || cell == 67 || cell == 121;
        EXPECT_EQ(cells.contains(cell), !unused) << cell;
    }
}

TEST(IconTableTest, EachCellHasAPictureThatIsOneOfItsOwnWithoutItsColours) {
    // Comments, blanks and colours
    const std::regex apart("<!--[^]*?-->|[ \t\r\n]|#[0-9a-fA-F]{6}");
    std::map<std::string, int> drawings;
    for (const int cell : UsedCells()) {
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
