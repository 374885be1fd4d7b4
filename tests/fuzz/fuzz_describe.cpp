// SPDX-License-Identifier: MIT
// Loads the input as a diagram and describes it, also under other numbers, and tells how it differs
// from itself and from what is left of it after some boxes were deleted. Ids are names of one box
// each; a diagram doesn't differ from itself, and lines are equal where nothing differs.
#include <random>
#include <set>

#include "diagram/box_table.h"
#include "diagram/delete_boxes.h"
#include "diagram/selection.h"
#include "files/document_file.h"
#include "fuzz/fuzz_support.h"
#include "workbench/describe.h"
#include "workbench/diff.h"

using namespace quorvane;
using namespace quorvane::testing;

namespace {

Description DescribeAndCheck() {
    auto boxes = DescribeDocument(1);
    Check(static_cast<int>(boxes.size()) == NextBox - 1, "a box is missing");
    std::set<std::string> ids;
    for (const auto& box : boxes) {
        Check(ids.insert(box.Id).second, "two boxes have the id " + box.Id);
        Check(box.Id.find_first_of(" \n") == std::string::npos, "an id of two words: " + box.Id);
        const auto words = BoxWords(boxes, box);
        Check(words.find_first_of("\r\n\t") == std::string::npos, "a box takes several lines");
    }
    Check(DiffDiagrams(boxes, boxes).Found.empty(), "a diagram differs from itself");
    return boxes;
}

/// A difference names boxes that are there.
void CheckDiff(const Description& older, const Description& newer) {
    const auto diff = DiffDiagrams(older, newer);
    const auto count = [](const Description& boxes) { return static_cast<int>(boxes.size()); };
    for (const auto& found : diff.Found) {
        Check(found.OldNumber <= count(older) && found.NewNumber <= count(newer) &&
                  (found.OldNumber == 0) == (found.Kind == Change::Added) &&
                  (found.NewNumber == 0) == (found.Kind == Change::Removed),
              "a difference at no box: " + found.Line);
    }
    Check(!diff.Found.empty() || DescribedLines(older) == DescribedLines(newer),
          "lines differ, the diagrams don't");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return RunInput("input.qvm", data, size, [](const std::string& bytes, const std::string& path) {
        ScriptedDesktop screen;
        desktop = &screen;
        LoadDocumentFile(path);
        const auto older = DescribeAndCheck();
        std::minstd_rand chance(DigestOf(bytes));
        for (int n = static_cast<int>(chance() % 4); n > 0 && NextBox > 1; --n) {
            SelectedBoxes.Resize(0);
            SelectedBoxes.Append(static_cast<std::int16_t>(chance() % (NextBox - 1U) + 1));
            bool silent = true;
            DeleteBoxes(silent);
        }
        const auto newer = DescribeAndCheck();
        CheckDiff(older, newer);
        CheckDiff(newer, older);
    });
}
