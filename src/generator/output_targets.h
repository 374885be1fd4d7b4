// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "diagram/worksheet.h"
#include "generator/run.h"
#include "platform/controls.h"

namespace quorvane {

/// An end of the link to MATLAB: a text box with the link's settings.
struct LinkBox {
    std::string Text;
    int LinkMode = 0;  ///< 0 none, 2 manual
    std::string LinkTopic;
    std::string LinkItem;
};

/// The window that gathers what was sent to MATLAB and what it answered.
struct TextResultsForm {
    TextBox txt;
    LinkBox Sender;
    LinkBox Receiver;
};
extern TextResultsForm frmTextResults;

/// Compiles the worksheet to the clipboard. A refused or aborted run leaves an empty one.
void mnuExeDDE_Click(Worksheet& sheet);

/// The first plot of a run: its lines become one, behind the commands that make MATLAB ready to
/// draw. Of the line ends, those up to two characters before the end as it stood are folded.
std::string FoldFirstPlot(std::string_view script);

/// Makes each run of ";" a single one, up to one character before the end as it stood.
std::string WithoutDoubleSemicolons(std::string_view script);

/// Sends what the script holds, which is that of a box of `boxType`, adds it and the answer to the
/// log, and empties it. False when MATLAB doesn't answer and the user gives up: the run is over.
bool SendToMatlab(Run& run, std::string_view boxType);

}  // namespace quorvane
