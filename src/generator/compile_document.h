// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "generator/run.h"

namespace quorvane {

/// How the last run ended: None before and during a run, Refused without a start box, Aborted by
/// the user's answer, Done at its end.
enum class RunEnd { None, Refused, Aborted, Done };
extern RunEnd lastRunEnd;

/// True for a box that starts a run of its document: a source, whose type ends in "Input" and whose
/// entries are all locked, or with the preference `chkInput` a box with three open entries.
bool StartsRun(const Box& box);

/// Walks the document of a run from its start boxes on and tells how that ended. Nothing is
/// reported or restored: boxes that are done keep their marks, and the front stays as it was at the
/// end. Questions of the boxes go to Desktop.
RunEnd WalkDocument(Run& run);

/// Turns the boxes of the document with this number into script. With `mode` 1 the script comes
/// back; with `mode` 0 each box's text is sent to MATLAB as soon as it is made, and "" comes back.
/// A refused or aborted run gives "". A run-time error that no policy drops ends the run and is
/// thrown on.
std::string CompileDocument(std::int16_t mode, const std::string& documentTag);

}  // namespace quorvane
