// SPDX-License-Identifier: MIT
// Reads the includes of src/ and fails on one that the levels do not allow.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// A folder may include its own level and those below it.
const std::map<std::string, int> Levels = {
    {"platform", 0}, {"diagram", 1},     {"catalogue", 1}, {"generator", 2}, {"files", 2},
    {"toolbox", 3},  {"matlab_link", 3}, {"shell", 4},     {"qt", 5},        {"compile", 5},
};

/// Text of each source file by its path below src/, with "/" between the folders.
using Tree = std::map<std::string, std::string>;
using Arrows = std::map<std::string, std::set<std::string>>;

Tree ReadTree(const fs::path& root) {
    const std::set<std::string> kinds = {".h", ".hpp", ".inc", ".cpp", ".cc"};
    Tree tree;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        if (!entry.is_regular_file() || !kinds.contains(entry.path().extension().string()))
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        tree[entry.path().lexically_relative(root).generic_string()] =
            std::string(std::istreambuf_iterator<char>(file), {});
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

void CheckInclude(const Tree& tree, const std::string& from, const std::string& name,
                  Arrows& arrows, std::vector<std::string>& faults) {
    const auto folder = FolderOf(from);
    const auto target = Target(tree, from, name);
    if (target.empty()) {
        if (folder != "qt" && IsQtHeader(name)) faults.push_back(from + ": Qt header " + name);
        return;
    }
    arrows[from].insert(target);
    const auto own = Levels.find(folder);
    const auto other = Levels.find(FolderOf(target));
    if (own == Levels.end() || other == Levels.end()) return;
    if (other->second > own->second) faults.push_back(from + ": upwards to " + target);
    // The two programs stand side by side: the command line never gets the windows with it.
    const bool programs = own->second == 5 && other->second == 5 && own->first != other->first;
    if (programs) faults.push_back(from + ": program to program " + target);
}

/// All the files that can be reached from `from` by one include or more.
std::set<std::string> Reached(const Arrows& arrows, const std::string& from) {
    std::set<std::string> seen;
    std::vector<std::string> open = {from};
    while (!open.empty()) {
        const auto found = arrows.find(open.back());
        open.pop_back();
        if (found == arrows.end()) continue;
        for (const auto& next : found->second) {
            if (seen.insert(next).second) open.push_back(next);
        }
    }
    return seen;
}

std::vector<std::string> Faults(const Tree& tree) {
    static const std::regex include(R"(^[ \t]*#[ \t]*include[ \t]*[<"]([^>"\r\n]+)[>"])",
                                    std::regex::multiline);
    std::vector<std::string> faults;
    Arrows arrows;
    for (const auto& [path, text] : tree) {
        if (!Levels.contains(FolderOf(path))) faults.push_back(path + ": folder without a level");
        for (std::sregex_iterator at(text.begin(), text.end(), include), end; at != end; ++at) {
            CheckInclude(tree, path, at->str(1), arrows, faults);
        }
    }
    for (const auto& [path, targets] : arrows) {
        if (Reached(arrows, path).contains(path)) faults.push_back(path + ": includes itself");
    }
    return faults;
}

TEST(Layering, IncludesRunDownwards) {
    const auto tree = ReadTree(fs::path(QUORVANE_SOURCE_DIR) / "src");
    ASSERT_TRUE(tree.contains("platform/desktop.h")) << "the sources were not found";
    for (const auto& fault : Faults(tree)) ADD_FAILURE() << fault;
}

TEST(Layering, FaultsAreSeen) {
    struct Case {
        const char* Name;
        Tree Files;
        std::vector<std::string> Expected;
    };
    const Case cases[] = {
        {"down, sideways and the library",
         {{"platform/a.h", "#include <string>\n#include \"quorvane/version.h\"\n"},
          {"diagram/b.h", "#include \"platform/a.h\"\n"},
          {"catalogue/c.cpp", "#include \"diagram/b.h\"\n#include <CLI/CLI.hpp>\n"},
          {"qt/w.cpp", "#include <QWidget>\n#include \"ui_frmPlot.h\"\n#include \"w.moc\"\n"}},
         {}},
        {"commented out", {{"platform/a.h", "// #include \"shell/b.h\"\n"}}, {}},
        {"up",
         {{"diagram/a.cpp", "#include \"generator/b.h\"\n"}, {"generator/b.h", ""}},
         {"diagram/a.cpp: upwards to generator/b.h"}},
        {"up to a file that is not there",
         {{"shell/a.cpp", "#include \"qt/gone.h\"\n"}},
         {"shell/a.cpp: upwards to qt/gone.h"}},
        {"up by a relative path, by angle brackets, with blanks",
         {{"files/a.cpp", "#include \"../toolbox/b.h\"\r\n"},
          {"files/c.cpp", "#include <toolbox/b.h>\n"},
          {"files/d.cpp", "x;\n  #  include\t\"toolbox/b.h\"\n"},
          {"toolbox/b.h", ""}},
         {"files/a.cpp: upwards to toolbox/b.h", "files/c.cpp: upwards to toolbox/b.h",
          "files/d.cpp: upwards to toolbox/b.h"}},
        {"two files that include each other",
         {{"diagram/a.h", "#include \"b.h\"\n"}, {"diagram/b.h", "#include \"diagram/a.h\"\n"}},
         {"diagram/a.h: includes itself", "diagram/b.h: includes itself"}},
        {"a ring of three, and a file outside it",
         {{"diagram/a.h", "#include \"catalogue/b.h\"\n"},
          {"catalogue/b.h", "#include \"diagram/c.h\"\n"},
          {"diagram/c.h", "#include \"diagram/a.h\"\n"},
          {"diagram/user.cpp", "#include \"diagram/a.h\"\n"}},
         {"catalogue/b.h: includes itself", "diagram/a.h: includes itself",
          "diagram/c.h: includes itself"}},
        {"Qt outside src/qt",
         {{"shell/a.cpp", "#include <QString>\n#include <QtCore/QFile>\n#include <qglobal.h>\n"},
          {"compile/main.cpp", "#include \"ui_frmPlot.h\"\n"}},
         {"compile/main.cpp: Qt header ui_frmPlot.h", "shell/a.cpp: Qt header QString",
          "shell/a.cpp: Qt header QtCore/QFile", "shell/a.cpp: Qt header qglobal.h"}},
        {"the command line and the windows",
         {{"compile/main.cpp", "#include \"qt/w.h\"\n"}, {"qt/w.h", ""}},
         {"compile/main.cpp: program to program qt/w.h"}},
        {"a folder without a level",
         {{"util/a.h", ""}, {"stray.h", ""}},
         {"stray.h: folder without a level", "util/a.h: folder without a level"}},
    };
    for (const auto& row : cases) {
        auto faults = Faults(row.Files);
        std::sort(faults.begin(), faults.end());
        EXPECT_EQ(faults, row.Expected) << row.Name;
    }
}

}  // namespace
