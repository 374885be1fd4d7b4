// SPDX-License-Identifier: MIT
#include <CLI/CLI.hpp>
#include <cstdio>
#include <deque>
#include <string>
#include <vector>

#include "check/check_document.h"
#include "compile/console_desktop.h"
#include "compile/picture.h"
#include "diagram/worksheet.h"
#include "files/document_file.h"
#include "files/settings.h"
#include "generator/compile_document.h"
#include "generator/link_door.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "quorvane/version.h"

using namespace quorvane;

namespace {

enum ExitCode { RunFinished = 0, RunBrokenOff = 1, NothingCompiled = 2, RunFailed = 3 };
enum CheckCode { NothingFound = 0, SomethingFound = 1 };

struct Options {
    std::string Diagram;
    std::string Output;  ///< "" for standard output
    std::string AnswersFile;
    int Mode = 1;
    bool StartUnwired = false;
    bool Check = false;
    std::string Picture;  ///< "" for none
};

int Refuse(const std::string& what) {
    std::fprintf(stderr, "quorvane-compile: %s\n", what.c_str());
    return NothingCompiled;
}

/// The lines of the answers file, without the empty one after the last line end.
std::deque<std::string> ReadAnswers(const std::string& path) {
    std::deque<std::string> answers;
    const int number = FreeFile();
    OpenForInput(number, path);
    while (!EndOfFile(number)) answers.emplace_back(LineInput(number));
    CloseFile(number);
    return answers;
}

/// Loads the diagram without showing the loader's messages. When it can't be compiled, one line
/// says why.
bool LoadDiagram(ConsoleDesktop& console, const std::string& path, std::string& why) {
    std::vector<std::string> held;
    std::string lastText;
    const auto write = std::move(console.WriteTranscript);
    console.WriteTranscript = [&](const std::string& line) {
        held.push_back(line);
        lastText = line.substr(line.rfind('\t') + 1);
    };
    const bool isPiped = path == "-";
    LoadDocumentFile(path, isPiped
                               ? +[](int number, const std::string&) { OpenStandardInput(number); }
                               : OpenForInput);
    console.WriteTranscript = write;
    if (lastLoad.Opened && !lastLoad.HasCount) {
        lastText = "not a Quorvane diagram";
    } else if (lastLoad.Finished && lastLoad.ReadPastEnd) {
        lastText = "The file ends in the middle of a box";
    } else if (lastLoad.Finished) {
        lastText.clear();
    }
    if (!lastText.empty()) {
        why = (isPiped ? "standard input" : path) + ": " + lastText;
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

/// Writes a text to the file at `path`, or to standard output for "".
bool WriteOutput(const std::string& path, const std::string& text) {
    if (path.empty()) {
        return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() &&
               std::fflush(stdout) == 0;
    }
    return Attempt([&] { ReplaceFile(path, text); });
}

/// Compiles the loaded diagram; `output` takes the script, or with mode 0 what was sent.
ExitCode Compile(ConsoleDesktop& console, const Options& options, std::string& output) {
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

/// A line for each thing that was found, and below it one with what to do.
std::string FindingLines(const std::vector<Finding>& findings) {
    std::string lines;
    for (const auto& finding : findings) {
        lines += finding.Box == 0
                     ? std::string("diagram")
                     : "box" + NumberText(finding.Box) + " (" + Escaped(finding.Type) + ")";
        lines += ": " + Escaped(finding.Text) + ".\n    " + Escaped(finding.Advice) + ".\n";
    }
    return lines;
}

/// Draws and checks the loaded diagram, as asked for.
int Review(const Options& options) {
    if (!options.Picture.empty() && !WriteOutput(options.Picture, DocumentPicture(1))) {
        return Refuse(options.Picture + ": The picture can't be written");
    }
    if (!options.Check) return NothingFound;
    const auto findings = CheckDocument(1);
    if (!WriteOutput("", FindingLines(findings))) {
        return Refuse("standard output: The findings can't be written");
    }
    return findings.empty() ? NothingFound : SomethingFound;
}

int RunCommand(const Options& options) {
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
    frmPrefs.chkInput.Value = options.StartUnwired ? 1 : 0;
    if (options.Check || !options.Picture.empty()) return Review(options);
    std::string output;
    const auto code = Compile(console, options, output);
    const bool worthWriting = code == RunFinished || !output.empty();
    if (worthWriting && !WriteOutput(options.Output, output)) {
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
    app.add_option("DIAGRAM", options.Diagram, "The diagram file (.qvm), - for standard input")
        ->required()
        ->option_text(" ");
    app.add_option("-o,--output", options.Output, "Write there instead of to standard output")
        ->option_text("FILE");
    app.add_flag("--start-unwired", options.StartUnwired,
                 "Start at every box without arrows into it, too");
    app.add_option("--answers", options.AnswersFile, "Answer the run's questions from this file")
        ->option_text("FILE");
    app.add_option("--mode", options.Mode,
                   "1 compiles to text (default), 0 as for MATLAB, text by text")
        ->check(CLI::IsMember({0, 1}))
        ->option_text("NUMBER");
    auto* check =
        app.add_flag("--check", options.Check,
                     "Don't compile: report what would go wrong in a run, exit 1 if anything")
            ->option_text(" ");
    auto* picture = app.add_option("--picture", options.Picture,
                                   "Don't compile: draw the diagram into this file, as SVG")
                        ->option_text("FILE");
    for (const char* const compiling : {"--output", "--answers", "--mode"}) {
        for (auto* const review : {check, picture}) review->excludes(app.get_option(compiling));
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& success) {
        return app.exit(success);
    } catch (const CLI::ParseError& error) {
        return Refuse(error.what());
    }
    return RunCommand(options);
}
