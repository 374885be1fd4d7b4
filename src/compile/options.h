// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "compile/picture.h"
#include "compile/run_diagram.h"

namespace quorvane {

/// How the program ends. Of several diagrams the worst, which is the highest, counts.
enum ExitCode {
    RunFinished = 0,
    RunBrokenOff = 1,
    NothingCompiled = 2,
    RunFailed = 3,
    BoxFailed = 4,        ///< In the engine
    EndedBySignal = 128,  ///< And the number of the signal
};
enum ReviewCode { NothingFound = 0, SomethingFound = 1 };

/// What the command line asks for.
struct Options {
    std::vector<std::string> Diagrams;  ///< At least one; several for a review alone
    std::string Output;                 ///< "" for standard output
    std::string AnswersFile;
    int Mode = 1;
    std::vector<std::string> Values;  ///< As in "box1=0.5"
    bool Run = false;
    EngineChoice Engine;
    bool StartUnwired = false;
    bool Check = false;
    bool Describe = false;
    bool Diff = false;  ///< Between two diagrams, the older one first
    bool Json = false;
    PictureOrder Picture;
    bool Help = false;
    bool Version = false;

    /// True when the diagrams are looked at and none is compiled.
    bool IsReview() const { return Check || Describe || Diff || !Picture.File.empty(); }
};

/// Reads the command line. When there is nothing left to do, because it is wrong or asks for help,
/// gives back the exit code.
std::optional<int> ReadOptions(int argc, char** argv, Options& options);

}  // namespace quorvane
