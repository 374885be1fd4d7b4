// SPDX-License-Identifier: MIT
#include <cstdio>
#include <deque>
#include <string>

#include "compile/console_desktop.h"
#include "compile/load_diagram.h"
#include "compile/options.h"
#include "compile/output.h"
#include "compile/review.h"
#include "compile/run_diagram.h"
#include "compile/set_value.h"
#include "diagram/arrows.h"
#include "diagram/worksheet.h"
#include "files/settings.h"
#include "generator/compile_document.h"
#include "generator/link_door.h"
#include "platform/file_table.h"
#include "platform/runtime_error.h"

using namespace quorvane;

namespace {

/// The lines of the answers file, without the empty one after the last line end.
std::deque<std::string> ReadAnswers(const std::string& path) {
    std::deque<std::string> answers;
    const int number = FreeFile();
    OpenForInput(number, path);
    while (!EndOfFile(number)) answers.emplace_back(LineInput(number));
    CloseFile(number);
    return answers;
}

/// A sent text and "--" on a line of its own.
std::string SentBlock(const std::string& text) {
    const bool endsItsLine = text.empty() || text.ends_with("\n");
    return text + (endsItsLine ? "--\r\n" : "\r\n--\r\n");
}

/// Compiles the loaded diagram; `output` takes the script, or with mode 0 what was sent.
ExitCode CompileInto(std::string& output, ConsoleDesktop& console, const Options& options) {
    matlabLink.Execute = [&](const std::string& script, const LineBoxes&) {
        output += SentBlock(script);
    };
    try {
        output += CompileDocument(static_cast<std::int16_t>(options.Mode), Documents[1]->Tag);
    } catch (const RuntimeError& error) {
        console.WriteTranscript(RuntimeLine(error.Number, error.Description));
        return RunFailed;
    }
    return lastRunEnd == RunEnd::Done ? RunFinished : RunBrokenOff;
}

/// Compiles the diagram and writes what comes of it, or runs it.
int Compile(ConsoleDesktop& console, const Options& options) {
    std::string why;
    if (!LoadDiagram(console, options.Diagrams[0], why)) return Refuse(why);
    for (const auto& value : options.Values) {
        if (why = SetValue(value); why.empty()) continue;
        return Refuse(std::string("--set ").append(value).append(": ").append(why));
    }
    if (options.Run) return RunDiagram(console, options.Engine);
    std::string output;
    const auto code = CompileInto(output, console, options);
    const bool worthWriting = code == RunFinished || !output.empty();
    if (worthWriting && !WriteOutput(options.Output, output)) {
        return Refuse((options.Output.empty() ? "standard output" : options.Output) +
                      ": The script can't be written");
    }
    return code;
}

}  // namespace

int main(int argc, char** argv) {
    KeepStandardBytes();
    Options options;
    if (const auto done = ReadOptions(argc, argv, options)) return *done;
    ConsoleDesktop console;
    desktop = &console;
    paintsSheets = false;
    console.WriteTranscript = [](const std::string& line) {
        std::fwrite(line.data(), 1, line.size(), stderr);
        std::fputc('\n', stderr);
    };
    if (!options.AnswersFile.empty() &&
        !Attempt([&] { console.Answers = ReadAnswers(options.AnswersFile); })) {
        return Refuse(options.AnswersFile + ": The answers can't be read");
    }
    frmPrefs.chkInput.Value = options.StartUnwired ? 1 : 0;
    return options.IsReview() ? Review(console, options) : Compile(console, options);
}
