// SPDX-License-Identifier: MIT
#include "compile/review.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "check/check_document.h"
#include "compile/diff_picture.h"
#include "compile/json_text.h"
#include "compile/load_diagram.h"
#include "compile/output.h"
#include "compile/picture.h"
#include "platform/numbers.h"
#include "workbench/describe.h"
#include "workbench/diff.h"

namespace quorvane {

namespace {

/// A line for each thing that was found, and below it one with what to do. With `file`, the lines
/// say which diagram it is.
std::string FindingLines(const std::vector<Finding>& findings, const std::string& file) {
    std::string lines;
    for (const auto& finding : findings) {
        lines += file.empty() ? "" : file + ": ";
        lines += finding.Box == 0
                     ? std::string("diagram")
                     : "box" + NumberText(finding.Box) + " (" + Escaped(finding.Type) + ")";
        lines += ": " + Escaped(finding.Text) + ".\n    " + Escaped(finding.Advice) + ".\n";
    }
    return lines;
}

/// A review of several diagrams in progress.
struct Reviewing {
    ConsoleDesktop& Console;
    const Options& Asked;
    std::vector<FileFindings> Found;  ///< For JSON, which is one list
};

int Print(const std::string& text) {
    return WriteOutput("", text) ? NothingFound : Refuse("standard output: It can't be written to");
}

int PrintFindings(Reviewing& review, const std::string& path) {
    auto findings = CheckDocument(1);
    const int code = findings.empty() ? NothingFound : SomethingFound;
    if (review.Asked.Json) {
        review.Found.push_back({path, std::move(findings)});
        return code;
    }
    const bool isOne = review.Asked.Diagrams.size() == 1;
    return std::max(code, Print(FindingLines(findings, isOne ? "" : path)));
}

int PrintDescription(const Options& options, const std::string& path) {
    const auto boxes = DescribeDocument(1);
    if (options.Json) return Print(DescriptionJson(path, boxes));
    const bool isOne = options.Diagrams.size() == 1;
    std::string lines;
    for (const auto& box : boxes) {
        lines += (isOne ? "" : path + ": ") + box.Id + ": " + BoxWords(boxes, box) + "\n";
    }
    return Print(lines);
}

int ReviewOne(Reviewing& review, const std::string& path) {
    std::string why;
    if (!LoadDiagram(review.Console, path, why)) return Refuse(why);
    const auto& options = review.Asked;
    if (options.Describe) return PrintDescription(options, path);
    if (!options.Picture.File.empty()) {
        const auto fault = DrawPicture(PictureOf(options.Picture, path), 1);
        if (!fault.empty()) return Refuse(fault);
    }
    return options.Check ? PrintFindings(review, path) : NothingFound;
}

int ReviewDifference(ConsoleDesktop& console, const Options& options) {
    std::string why;
    if (!LoadDiagram(console, options.Diagrams[0], why)) return Refuse(why);
    const auto older = Boxes;
    const auto described = DescribeDocument(1);
    if (!LoadDiagram(console, options.Diagrams[1], why)) return Refuse(why);
    const auto diff = DiffDiagrams(described, DescribeDocument(1));
    std::string lines;
    for (const auto& difference : diff.Found) lines += difference.Line + "\n";
    const int code = diff.Found.empty() ? NothingFound : SomethingFound;
    if (!options.Picture.File.empty()) {
        const auto picture = PictureOf(options.Picture, options.Diagrams[1]);
        const auto fault = DrawPicture(picture, 1, TintDifferences(older, diff));
        if (!fault.empty()) return Refuse(fault);
    }
    return std::max(code, Print(lines));
}

}  // namespace

int Review(ConsoleDesktop& console, const Options& options) {
    if (options.Diff) return ReviewDifference(console, options);
    Reviewing review{console, options, {}};
    int worst = NothingFound;
    for (const auto& path : options.Diagrams) worst = std::max(worst, ReviewOne(review, path));
    if (options.Check && options.Json) worst = std::max(worst, Print(FindingsJson(review.Found)));
    return worst;
}

}  // namespace quorvane
