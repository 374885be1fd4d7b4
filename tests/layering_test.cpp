// SPDX-License-Identifier: MIT
// Reads the includes of src/ and fails on one that the levels do not allow.
#include <gtest/gtest.h>

#include <map>
#include <regex>

#include "files/work_folder.h"
#include "support/table_file.h"

using namespace quorvane::testing;

namespace {

namespace fs = std::filesystem;

/// A folder may include its own level and those below it.
const std::map<std::string, int> Levels = {
    {"platform", 0},  {"catalogue", 1}, {"diagram", 1}, {"commands", 1},    {"generator", 2},
    {"check", 2},     {"files", 2},     {"toolbox", 3}, {"matlab_link", 3}, {"shell", 4},
    {"workbench", 4}, {"qt", 5},        {"compile", 5},
};

/// Text of each source file by its path below src/, with "/" between the folders.
using Tree = std::map<std::string, std::string>;
using Arrows = std::map<std::string, std::set<std::string>>;
using Faults = std::set<std::string>;

Tree ReadTree(const fs::path& root) {
    const std::set<std::string> kinds = {".h", ".hpp", ".inc", ".cpp", ".cc"};
    Tree tree;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        if (!kinds.contains(entry.path().extension().string())) continue;
        tree[entry.path().lexically_relative(root).generic_string()] = ReadAll(entry.path());
    }
    return tree;
}

std::string FolderOf(const std::string& path) {
    const auto slash = path.find('/');
    return slash == std::string::npos ? "" : path.substr(0, slash);
}

/// The file of src/ that an include means: beside the including file, or below src/. Where there is
/// none, the name itself when it begins with one of our folders, else "".
std::string Target(const Tree& tree, const std::string& from, const std::string& name) {
    const auto beside = (fs::path(from).parent_path() / name).lexically_normal().generic_string();
    if (tree.contains(beside)) return beside;
    const auto below = fs::path(name).lexically_normal().generic_string();
    return tree.contains(below) || Levels.contains(FolderOf(below)) ? below : "";
}

/// <QString>, <QtWidgets/QWidget>, <qstring.h>, and the headers that Qt's own tools write.
bool IsQtHeader(const std::string& name) {
    static const std::regex qt(R"((Qt?[A-Z].*)|(Qt/.*)|(q[a-z_]+\.h)|(.*/Q[A-Z][A-Za-z]*)|)"
                               R"((ui_.*\.h)|(moc_.*)|(.*\.moc)|(qrc_.*))");
    return std::regex_match(name, qt);
}

/// What is wrong with an include; "" for nothing.
std::string FaultOf(const std::string& from, const std::string& name, const std::string& target) {
    const auto folder = FolderOf(from), other = FolderOf(target);
    if (target.empty()) return folder != "qt" && IsQtHeader(name) ? "Qt header " + name : "";
    if (!Levels.contains(folder) || !Levels.contains(other)) return "";
    if (Levels.at(other) > Levels.at(folder)) return "upwards to " + target;
    // The two programs are peers: the command line never includes the windows.
    const bool programs = folder != other && Levels.at(folder) == 5 && Levels.at(other) == 5;
    return programs ? "program to program " + target : "";
}

/// Follows the includes from a file on and collects all that can be reached.
void Reach(Arrows& arrows, const std::string& from, std::set<std::string>& seen) {
    for (const auto& next : arrows[from]) {
        if (seen.insert(next).second) Reach(arrows, next, seen);
    }
}

/// Adds each file or folder from which the arrows lead back to itself.
void AddRings(Arrows& arrows, Faults& faults) {
    const auto all = arrows;
    for (const auto& [from, targets] : all) {
        std::set<std::string> reached;
        Reach(arrows, from, reached);
        if (reached.contains(from)) faults.insert(from + ": includes itself");
    }
}

Faults FaultsOf(const Tree& tree) {
    static const std::regex include(R"(^[ \t]*#[ \t]*include[ \t]*[<"]([^>"\r\n]+)[>"])",
                                    std::regex::multiline);
    Faults faults;
    Arrows arrows;
    for (const auto& [path, text] : tree) {
        if (!Levels.contains(FolderOf(path))) faults.insert(path + ": folder without a level");
        for (std::sregex_iterator at(text.begin(), text.end(), include), end; at != end; ++at) {
            const auto target = Target(tree, path, at->str(1));
            const auto fault = FaultOf(path, at->str(1), target);
            if (!fault.empty()) faults.insert(path + ": " + fault);
            if (!target.empty()) arrows[path].insert(target);
        }
    }
    AddRings(arrows, faults);
    Arrows folders;
    for (const auto& [path, targets] : arrows) {
        for (const auto& target : targets) {
            if (FolderOf(target) != FolderOf(path))
                folders[FolderOf(path)].insert(FolderOf(target));
        }
    }
    AddRings(folders, faults);
    return faults;
}

TEST(Layering, IncludesRunDownwards) {
    const auto tree = ReadTree(fs::path(QUORVANE_SOURCE_DIR) / "src");
    ASSERT_TRUE(tree.contains("platform/desktop.h")) << "the sources were not found";
    EXPECT_EQ(FaultsOf(tree), Faults());
}

TEST(Layering, FaultsAreSeen) {
    for (const auto& row : ReadTable("layering.tsv")) {
        Tree tree;
        for (const auto& file : Split(row[1], '|')) {
            const auto colon = file.find(": ");
            tree[file.substr(0, colon)] = file.substr(colon + 2);
        }
        const auto faults = Split(row[2], '|');
        EXPECT_EQ(FaultsOf(tree), row[2].empty() ? Faults() : Faults(faults.begin(), faults.end()))
            << row.back() << " " << row[0];
    }
}

}  // namespace
