// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "generator/link_door.h"

namespace quorvane {

/// The link to a MATLAB or an Octave that runs as a child of this program, behind pipes. A function
/// of ours loops in the engine: it reads one script after another, runs it and prints a mark before
/// and after it; what is printed in between is the answer. A script has ended when its end mark
/// came or the engine is gone, and never for another reason. The user may interrupt it; an engine
/// that doesn't respond to that is killed after five seconds. Meanwhile frmTextResults.lblState
/// says what the link is waiting for. What a run leaves at its boxes stands in linkReport.

/// What a program without windows is told while a script runs. What it takes is left out of the
/// answer.
struct LinkListener {
    std::function<void(const std::string& text)> Printed;  ///< As it comes, in pieces of any size
    std::function<void(std::int16_t box, const std::string& message)> Failed;
};
extern LinkListener linkListener;

/// Starts a program in place of the running one and waits until it answers. `words` are arguments
/// that come before those of the engine, for a program that starts one elsewhere. Error 53 when it
/// can't be started or ends at once.
void StartLink(const std::string& program, std::vector<std::string> words = {});
/// True while a script runs.
bool LinkIsBusy();
/// The user closes the program while a script runs: it is broken off as by Escape, and nothing more
/// is sent until the run has ended.
void LeaveRun();
bool RunIsLeft();

/// Error 282 when nothing answers. What an engine printed before it ended can still be fetched.
void LinkOpen();
/// Runs a script, or keeps it while a block that began in it or before it is open ("for" without
/// its "end"). `boxes` holds the box that wrote each line, for complaints about that line. Error
/// 282 when no engine is running.
void LinkExecute(const std::string& script, const LineBoxes& boxes);
/// What the last script printed, "" where it was only kept, and from the second time on.
std::string LinkRequest();
/// Ends a run and returns what there is to say about a block that was never closed, "" when there
/// is none. When the run has `come` to its end, the engine gets what is kept of the block;
/// otherwise that is dropped.
std::string LinkFinish(bool come);

/// Lets an idle engine update its figures, once it has some. A timer calls it every now and then.
void LookAfterFigures();

/// Forgets the engine and what was kept for it.
void ResetLink();

}  // namespace quorvane
