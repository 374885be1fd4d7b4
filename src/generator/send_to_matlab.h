// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "diagram/worksheet.h"
#include "generator/run.h"
#include "platform/form.h"

namespace quorvane {

/// An end of the link to MATLAB: a text box with the link's settings.
struct LinkBox {
    std::string Text;
    int LinkMode = 0;  ///< 0 none, 2 manual
    std::string LinkTopic;
    std::string LinkItem;
};

/// A piece of the log: what one box sent, and the answer.
struct LogPart {
    std::size_t End = 0;
    int Box = 0;  ///< 0 where none is known
};

/// The window that gathers what was sent to MATLAB and what it answered. It stays open beside the
/// worksheets and is not modal.
struct TextResultsForm {
    FormState Form = {.Caption = "Matlab Text Results"};
    bool Minimized = false;
    TextBox txt;  ///< The log: each script that was sent, and what was printed for it
    std::vector<LogPart> Parts;  ///< Of the log, in order
    Label lblState;              ///< What the link is waiting for, "" while it waits for nothing
    Button cmdOK = {.Caption = "OK"};
    LinkBox Sender;
    LinkBox Receiver;
};
extern TextResultsForm frmTextResults;

/// Compiles the worksheet into a running MATLAB, box by box, with the window of its answers open.
void mnuEXEMatlab_Click(Worksheet& sheet);

/// Empties the log. A run appends to the log while the window is open.
void frmTextResults_Load();
/// Also what closing the window does.
void frmTextResults_cmdOK_Click();

/// A line of the log that tells of a failure, and the box that failed, 0 where none is known.
struct LogFault {
    std::size_t Begin = 0;
    std::size_t End = 0;  ///< Behind its last letter
    int Box = 0;
};
/// The failures behind this place of the log, the beginning of a line.
std::vector<LogFault> FaultsOfLog(std::size_t from);

/// The first plot of a run: its lines become one, behind the commands that make MATLAB ready to
/// draw. Of the line ends, those up to two characters before the end as it stood are folded.
std::string FoldFirstPlot(std::string_view script);

/// Makes each run of ";" a single one, up to one character before the end as it stood.
std::string WithoutDoubleSemicolons(std::string_view script);

/// Sends what the script holds, which is that of a box of `boxType`, adds it and the answer to the
/// log, and empties it. False when MATLAB doesn't answer and the user gives up: the run is over.
bool SendToMatlab(Run& run, std::string_view boxType);

}  // namespace quorvane
