// SPDX-License-Identifier: MIT
// Takes the input as the index of M-files and browses it, as an M-file whose help is shown, and as
// a script whose blocks are counted. A category is offered when it has files.
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

/// The files of a category are those with one path in their names, and all of them in the last.
void CheckChoice(const std::string& category, bool isLast) {
    frmMatlab.cmbCategory.Text = category;
    frmMatlab_cmbCategory_Click();
    const auto files = frmMatlab.lstFunc.List.size();
    const auto all = static_cast<std::size_t>(FileList.UpperBound() - 1);
    Check(isLast ? files == all : files > 0 && files <= all, "other files than a search finds");
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
        const auto categories = frmMatlab.cmbCategory.List;
        Check(categories.back() == "zzz All M files zzz", "no category of all files");
        for (const auto& category : categories)
            CheckChoice(category, category == categories.back());
        frmMatlab.lstFunc = {.List = {path}, .ListIndex = 0};
        frmMatlab_lstFunc_Click();
        const auto& help = frmMatlab.lblHelp.Caption;
        Check(help.empty() || help.ends_with("\r\n"), "a help text without its line end");
        BlocksAreClosed(bytes);
    });
}
