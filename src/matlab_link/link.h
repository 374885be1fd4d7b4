// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "generator/link_door.h"

namespace quorvane {

/// The link to a MATLAB or an Octave that runs as a child of this program, behind pipes. A script
/// goes to it as a file, together with a call of a function of ours that runs the file between two
/// marks; what stands between them is its answer. A script has ended when its end mark came or the
/// engine is gone, and never for another reason. The user may break it off; an engine that doesn't
/// heed that is killed after five seconds. Meanwhile frmTextResults.lblState tells what the link is
/// waiting for.

/// Starts a program in place of the running one and waits until it answers. Error 53 when it can't
/// be started or ends at once.
void StartLink(const std::string& program);

/// Error 282 when nothing answers. The last words of an engine that has ended can still be fetched.
void LinkOpen();
/// Runs a script, or keeps it while a block that began in it or before it is open ("for" without
/// its "end"). `boxes` holds the box that wrote each line, for what there is to complain about.
/// Error 282 when no engine is running.
void LinkExecute(const std::string& script, const LineBoxes& boxes);
/// What the last script printed, "" where it was only kept, and from the second time on.
std::string LinkRequest();
/// Ends a run and returns what there is to say about a block that was never closed, "" when there
/// is none. A run that has `come` to its end gives the engine what is kept of the block; that of a
/// run that was broken off is dropped.
std::string LinkFinish(bool come);

/// Lets an engine that has nothing to do look after its figures, once it has some. It is called
/// every now and then, whatever else goes on.
void LookAfterFigures();

/// Forgets the engine and what was kept for it.
void ResetLink();

}  // namespace quorvane
