// SPDX-License-Identifier: MIT
#include "compile/review.h"

#include <algorithm>

#include "check/check_document.h"
#include "compile/load_diagram.h"
#include "compile/output.h"
#include "compile/picture.h"
#include "platform/numbers.h"

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

int ReviewOne(ConsoleDesktop& console, const Options& options, const std::string& path) {
    std::string why;
    if (!LoadDiagram(console, path, why)) return Refuse(why);
    if (!options.Picture.File.empty()) {
        const auto fault = DrawPicture(options.Picture, 1);
        if (!fault.empty()) return Refuse(fault);
    }
    if (!options.Check) return NothingFound;
    const auto findings = CheckDocument(1);
    if (!WriteOutput("", FindingLines(findings, options.Diagrams.size() > 1 ? path : ""))) {
        return Refuse("standard output: The findings can't be written");
    }
    return findings.empty() ? NothingFound : SomethingFound;
}

}  // namespace

int Review(ConsoleDesktop& console, const Options& options) {
    int worst = NothingFound;
    for (const auto& path : options.Diagrams) {
        worst = std::max(worst, ReviewOne(console, options, path));
    }
    return worst;
}

}  // namespace quorvane
