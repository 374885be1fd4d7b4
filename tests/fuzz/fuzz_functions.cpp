// SPDX-License-Identifier: MIT
// Takes the input as the index of M-files and browses it, as an M-file whose help is shown, and as
// a script whose blocks are counted. The lists that the browser makes must be those of a plain
// search.
#include <algorithm>

#include "fuzz/fuzz_support.h"
#include "matlab_link/command_browser.h"
#include "matlab_link/mfile_index.h"
#include "matlab_link/script_blocks.h"
#include "platform/numbers.h"
#include "platform/paths.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

constexpr const char* AllFiles = "zzz All M files zzz";

std::vector<std::string> FilesWith(const std::string& path) {
    std::vector<std::string> files;
    for (int i = 2; i <= FileList.UpperBound(); ++i) {
        if (FileList[i].find(path) != std::string::npos) files.push_back(FileList[i]);
    }
    return files;
}

void CheckCategories() {
    std::vector<std::string> expected;
    for (int i = 2; i <= CategoryTable.UpperBound(); ++i) {
        const auto& [name, path] = CategoryTable[i];
        if (path.empty() || FilesWith(path).empty()) continue;
        expected.push_back(UpperCase(name.substr(0, 1)) +
                           LowerCase(name.empty() ? name : name.substr(1)));
    }
    expected.emplace_back(AllFiles);
    Check(frmMatlab.cmbCategory.List == expected, "other categories than a search finds");
}

void CheckChoice(const std::string& category) {
    frmMatlab.cmbCategory.Text = category;
    frmMatlab_cmbCategory_Click();
    std::string path;
    for (int i = CategoryTable.UpperBound(); i >= 2 && category != AllFiles; --i) {
        const auto& row = CategoryTable[i];
        if (UpperCase(row.name) == UpperCase(category)) path = row.path;
    }
    Check(frmMatlab.lstFunc.List == FilesWith(path), "other files than a search finds");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return RunInput(MFileIndex, data, size, [](const std::string& bytes, const std::string& path) {
        ScriptedDesktop screen;
        desktop = &screen;
        const auto before = CurrentDirectory();
        ChangeDirectory(FuzzFolder().Path.string());
        frmMatlab_Load();
        ChangeDirectory(before);
        CheckCategories();
        const auto categories = frmMatlab.cmbCategory.List;
        for (std::size_t i = 0; i < std::min<std::size_t>(categories.size(), 8); ++i) {
            CheckChoice(categories[i]);
        }
        frmMatlab.lstFunc = {.List = {path}, .ListIndex = 0};
        frmMatlab_lstFunc_Click();
        const auto& help = frmMatlab.lblHelp.Caption;
        Check(help.empty() || help.ends_with("\r\n"), "a help text without its line end");
        BlocksAreClosed(bytes);
    });
}
