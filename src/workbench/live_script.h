// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "check/check_document.h"
#include "generator/link_door.h"

namespace quorvane {

/// The script of a worksheet as it stands, and what there is to say about it.
struct LiveScript {
    std::string Text;                ///< What "Write to ClipBoard" would give without an answer
    LineBoxes BoxOfLine;             ///< The box that wrote each line, from 0 on
    std::vector<std::string> Asked;  ///< What the run would ask or tell, but for its "Done !"
    std::vector<Finding> Findings;   ///< What the check finds
};

/// The script of this document. It is made anew, by an unattended run that leaves no trace, when
/// the diagrams have changed since it was asked for last. Empty for a document without a window.
const LiveScript& ScriptOf(int document);

/// What a finding says and advises.
std::string InWords(const Finding& finding);

/// The findings of a box in words, one a line; "" for none.
std::string FindingsOfBox(int number);

void ResetLiveScripts();

}  // namespace quorvane
