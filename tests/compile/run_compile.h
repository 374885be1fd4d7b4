// SPDX-License-Identifier: MIT
#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "files/work_folder.h"

namespace quorvane::testing {

/// What a run of quorvane-compile left behind.
struct CompileRun {
    int Exit = -1;  ///< -1 when it did not end by itself
    std::string Output;
    std::string Errors;
};

inline std::string Quoted(const std::string& word) {
    std::string quoted = "'";
    for (const char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

/// The program that was built, or the one that the environment names.
inline std::string CompileProgram() {
    const char* const other = std::getenv("QUORVANE_COMPILE");
    return other ? other : QUORVANE_COMPILE;
}

/// Runs quorvane-compile in `folder`. What it prints is kept in a folder of its own; `output` names
/// another place for standard output, which then reads as "", `input` what standard input is.
inline CompileRun RunCompile(const std::filesystem::path& folder,
                             const std::vector<std::string>& arguments,
                             const std::string& output = "",
                             const std::string& input = "/dev/null") {
    const WorkFolder kept;
    const auto outputPath = output.empty() ? (kept.Path / "output").string() : output;
    const auto errorsPath = (kept.Path / "errors").string();
    std::string command = "cd " + Quoted(folder.string()) + " && exec " + Quoted(CompileProgram());
    for (const auto& argument : arguments) command += " " + Quoted(argument);
    command += " >" + Quoted(outputPath) + " 2>" + Quoted(errorsPath) + " <" + Quoted(input);
    CompileRun run;
    const int status = std::system(command.c_str());
    if (WIFEXITED(status)) run.Exit = WEXITSTATUS(status);
    if (output.empty()) run.Output = ReadAll(outputPath);
    run.Errors = ReadAll(errorsPath);
    return run;
}

}  // namespace quorvane::testing
