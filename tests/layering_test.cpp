// SPDX-License-Identifier: MIT
// Reads the includes of src/ and fails on one that the levels do not allow.
#include <gtest/gtest.h>

#include <map>
#include <regex>

#include "files/work_folder.h"

using namespace quorvane::testing;

namespace {

namespace fs = std::filesystem;

/// A folder may include its own level and those below it.
const std::map<std::string, int> Levels = {
    {"platform", 0},  {"catalogue", 1}, {"diagram", 1}, {"commands", 1},    {"generator", 2},
    {"check", 2},     {"files", 2},     {"toolbox", 3}, {"matlab_link", 3}, {"shell", 4},
    {"workbench", 4}, {"qt", 5},        {"compile", 5}, {"picture", 5},
};

/// What each file and each folder includes.
using Arrows = std::map<std::string, std::set<std::string>>;

/// Adds what is included from here, also by way of others.
void Reach(const Arrows& arrows, const std::string& from, std::set<std::string>& seen) {
    if (!arrows.contains(from)) return;
    for (const auto& next : arrows.at(from)) {
        if (seen.insert(next).second) Reach(arrows, next, seen);
    }
}

TEST(Layering, IncludesRunDownwardsAndInNoRing) {
    const std::regex include(R"(#\s*include\s*[<"]([^>"]+)[>"])");
    // <QString>, <QtWidgets/QWidget>, <qstring.h>, and the headers that Qt's own tools write
    const std::regex qt(R"((.*/)?Qt?[A-Z].*|q[a-z_]+\.h|ui_.*\.h|moc_.*|.*\.moc|qrc_.*)");
    const fs::path root = QUORVANE_SOURCE_DIR "/src";
    Arrows arrows;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        const auto extension = entry.path().extension();
        if (extension != ".h" && extension != ".cpp") continue;
        const auto from = entry.path().lexically_relative(root);
        const auto folder = from.begin()->string();
        ASSERT_TRUE(Levels.contains(folder)) << from << " lies in a folder without a level";
        const auto text = ReadAll(entry.path());
        for (std::sregex_iterator at(text.begin(), text.end(), include), end; at != end; ++at) {
            const auto name = at->str(1), other = fs::path(name).begin()->string();
            EXPECT_TRUE(folder == "qt" || !std::regex_match(name, qt)) << from << ": " << name;
            if (!fs::exists(root / name)) continue;
            arrows[from.generic_string()].insert(name);
            if (other == folder) continue;
            arrows[folder].insert(other);
            EXPECT_LE(Levels.at(other), Levels.at(folder)) << from << ": upwards to " << name;
            // The two programs stand side by side: the command line never gets the windows.
            EXPECT_LT(Levels.at(other), 5) << from << ": program to program " << name;
        }
    }
    ASSERT_TRUE(arrows.contains("diagram/box_table.h")) << "the sources were not found";
    for (const auto& [from, targets] : arrows) {
        std::set<std::string> reached;
        Reach(arrows, from, reached);
        EXPECT_FALSE(reached.contains(from)) << from << " includes itself";
    }
}

}  // namespace
