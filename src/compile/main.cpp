// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <cstdio>
#include <deque>
#include <string>
#include <vector>

#include "compile/console_desktop.h"
#include "diagram/worksheet.h"
#include "files/document_file.h"
#include "files/settings.h"
#include "generator/compile_document.h"
#include "platform/file_table.h"
#include "platform/runtime_error.h"
#include "quorvane/version.h"

using namespace quorvane;

namespace {

enum ExitCode { RunFinished = 0, RunBrokenOff = 1, NothingCompiled = 2, RunFailed = 3 };

struct Options {
    std::string Diagram;
    std::string Output;  ///< "" for standard output
    std::string AnswersFile;
    int Mode = 1;
    bool StartUnwired = false;
};

int Refuse(const std::string& what) {
    std::fprintf(stderr, "quorvane-compile: %s\n", what.c_str());
    return NothingCompiled;
}

/// The lines of the answers file, without the empty one behind the last line end.
std::deque<std::string> ReadAnswers(const std::string& path) {
    std::deque<std::string> answers;
    const int number = FreeFile();
    OpenForInput(number, path);
    while (!EndOfFile(number)) answers.emplace_back(LineInput(number));
    CloseFile(number);
    return answers;
}

/// Loads the diagram while its messages are held back. When it can't be compiled, one line says
/// why.
bool LoadDiagram(ConsoleDesktop& console, const std::string& path, std::string& why) {
    std::vector<std::string> held;
    std::string lastText;
    const auto write = std::move(console.WriteTranscript);
    console.WriteTranscript = [&](const std::string& line) {
        held.push_back(line);
        lastText = line.substr(line.rfind('\t') + 1);
    };
    LoadDocumentFile(path);
    console.WriteTranscript = write;
    if (!lastLoad.Finished) {
        why = path + ": " + lastText;
        return false;
    }
    if (lastLoad.ReadPastEnd) {
        why = path + ": The file ends in the middle of a box";
        return false;
    }
    for (const auto& line : held) write(line);
    return true;
}

/// A sent text and "--" on a line of its own.
std::string SentBlock(const std::string& text) {
    const bool endsItsLine = text.empty() || text.ends_with("\n");
    return text + (endsItsLine ? "--\r\n" : "\r\n--\r\n");
}

bool WriteOutput(const Options& options, const std::string& text) {
    if (options.Output.empty()) {
        return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() &&
               std::fflush(stdout) == 0;
    }
    return Attempt([&] {
        const int number = FreeFile();
        OpenForOutput(number, options.Output);
        Print(number, text);
        CloseFile(number);
    });
}

/// Compiles the loaded diagram; `output` takes the script, or with mode 0 what was sent.
ExitCode Compile(ConsoleDesktop& console, const Options& options, std::string& output) {
    console.WriteSent = [&](const std::string& text) { output += SentBlock(text); };
    frmPrefs.chkInput.Value = options.StartUnwired ? 1 : 0;
    try {
        output += CompileDocument(static_cast<std::int16_t>(options.Mode), Documents[1]->Tag);
    } catch (const RuntimeError& error) {
        console.WriteTranscript(RuntimeLine(error.Number, error.Description));
        return RunFailed;
    }
    return lastRunEnd == RunEnd::Done ? RunFinished : RunBrokenOff;
}

int Run(const Options& options) {
    ConsoleDesktop console;
    desktop = &console;
    console.WriteTranscript = [](const std::string& line) {
        std::fwrite(line.data(), 1, line.size(), stderr);
        std::fputc('\n', stderr);
    };
    if (!options.AnswersFile.empty() &&
        !Attempt([&] { console.Answers = ReadAnswers(options.AnswersFile); })) {
        return Refuse(options.AnswersFile + ": The answers can't be read");
    }
    std::string why;
    if (!LoadDiagram(console, options.Diagram, why)) return Refuse(why);
    std::string output;
    const auto code = Compile(console, options, output);
    const bool worthWriting = code == RunFinished || !output.empty();
    if (worthWriting && !WriteOutput(options, output)) {
        return Refuse((options.Output.empty() ? "standard output" : options.Output) +
                      ": The script can't be written");
    }
    return code;
}

}  // namespace

int main(int argc, char** argv) {
    Options options;
    CLI::App app("Compiles a Quorvane diagram to MATLAB script.", "quorvane-compile");
    app.set_version_flag("--version", "quorvane-compile " QUORVANE_VERSION);
    app.add_option("DIAGRAM", options.Diagram, "The diagram file (.qvm)")->required();
    app.add_option("-o,--output", options.Output, "Write there instead of to standard output");
    app.add_flag("--start-unwired", options.StartUnwired,
                 "Start at every box without arrows into it, too");
    app.add_option("--answers", options.AnswersFile, "Answer the run's questions from this file");
    app.add_option("--mode", options.Mode,
                   "1 compiles to text (default), 0 as for MATLAB, text by text")
        ->check(CLI::IsMember({0, 1}));
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& success) {
        return app.exit(success);
    } catch (const CLI::ParseError& error) {
        return Refuse(error.what());
    }
    return Run(options);
}
