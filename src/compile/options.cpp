// SPDX-License-Identifier: MIT
#include "compile/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <set>
#include <string_view>
#include <vector>

#include "compile/output.h"
#include "platform/numbers.h"
#include "quorvane/version.h"

namespace quorvane {

namespace {

/// The options under their headings in the help, which are called as they are used.
struct OptionGroup {
    const char* Heading;
    std::vector<const char*> Names;
};
const OptionGroup groups[] = {
    {"To compile, as in quorvane-compile -o plot.m plot.qvm",
     {"--output", "--start-unwired", "--answers", "--mode", "--set"}},
    {"To run, as in quorvane-compile --run --engine \"ssh host octave-cli\" sums.qvm",
     {"--run", "--engine", "--start-limit"}},
    {"To check, as in quorvane-compile --check *.qvm", {"--check"}},
    {"To draw, as in quorvane-compile --picture plot.pdf --paper plot.qvm",
     {"--picture", "--paper", "--numbers", "--scale"}},
    {"To compare, as in quorvane-compile --diff old.qvm new.qvm", {"--describe", "--diff"}},
    {"For other programs, as in quorvane-compile --describe --json plot.qvm", {"--json"}},
};

void AddCompiling(CLI::App& app, Options& options) {
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
}

void AddRunning(CLI::App& app, Options& options) {
    app.add_option("--set", options.Values,
                   "Another value for a Constant Input or Keyboard Input box; repeatable")
        ->allow_extra_args(false)
        ->option_text("BOX=VALUE");
    auto* run =
        app.add_flag("--run", options.Run,
                     "Run the diagram in an engine and print what it prints, exit 4 if a box fails")
            ->excludes(app.get_option("--output"))
            ->excludes(app.get_option("--mode"))
            ->option_text(" ");
    app.add_option("--engine", options.Engine.Command,
                   "What starts the engine, such as \"ssh host octave-cli\"; Octave unless given")
        ->needs(run)
        ->option_text("COMMAND");
    app.add_option("--start-limit", options.Engine.StartLimit,
                   "Give the engine so long to become ready (60), 0 for as long as it takes")
        ->needs(run)
        ->option_text("SECONDS");
}

CLI::Option* AddPicture(CLI::App& app, PictureOrder& order) {
    auto* picture =
        app.add_option("--picture", order.File,
                       "Draw the diagram into this file, .svg, .pdf or .png; DIR/ draws several")
            ->option_text("FILE");
    app.add_flag("--paper", order.Paper, "Draw dark arrows on white, for print")
        ->option_text(" ")
        ->needs(picture);
    app.add_flag("--numbers", order.Numbers, "Write the name of each box below it")
        ->option_text(" ")
        ->needs(picture);
    app.add_option("--scale", order.Scale, "Make a PNG larger or smaller, 0.1 to 10 times")
        ->check(CLI::Range(0.1, 10.0))
        ->option_text("NUMBER")
        ->needs(picture);
    return picture;
}

void AddReviews(CLI::App& app, Options& options) {
    auto* check = app.add_flag("--check", options.Check,
                               "Report what would go wrong in a run, exit 1 if anything")
                      ->option_text(" ");
    auto* picture = AddPicture(app, options.Picture);
    auto* describe =
        app.add_flag("--describe", options.Describe, "List the boxes in lines that can be compared")
            ->option_text(" ");
    auto* diff =
        app.add_flag(
               "--diff", options.Diff,
               "Tell what has changed from the first diagram to the second, exit 1 if anything")
            ->option_text(" ");
    auto* json = app.add_flag("--json", options.Json, "Print JSON, with --check or --describe")
                     ->option_text(" ");
    for (const char* const compiling : {"--output", "--answers", "--mode", "--set", "--run"}) {
        for (auto* const review : {check, picture, describe, diff}) {
            review->excludes(app.get_option(compiling));
        }
    }
    describe->excludes(check)->excludes(picture);
    diff->excludes(check)->excludes(describe)->excludes(json);
}

std::string PictureContradiction(const Options& options) {
    if (options.Diff || options.Diagrams.size() == 1) {
        return Complaint(PictureOf(options.Picture, options.Diagrams[0]));
    }
    if (options.Picture.File.empty()) return "";
    if (!NamesFolder(options.Picture.File)) {
        return options.Picture.File +
               ": several diagrams are drawn into a folder: end its name with \"/\"";
    }
    std::set<std::string> files;
    for (const auto& diagram : options.Diagrams) {
        const auto file = PictureOf(options.Picture, diagram).File;
        if (!files.insert(file).second) {
            auto text = diagram + ": another one would be drawn into the same file, ";
            return text += file;
        }
    }
    return Complaint(PictureOf(options.Picture, options.Diagrams[0]));
}

/// What is wrong with options that are right each for itself; "" for nothing.
std::string Contradiction(const Options& options) {
    const auto count = options.Diagrams.size();
    if (options.Diff && count != 2) {
        return "--diff compares two diagrams, the older one first: give two files, not " +
               NumberText(static_cast<std::int64_t>(count));
    }
    if (options.Json && !options.Check && !options.Describe) {
        return "--json goes with --check or --describe";
    }
    if (count > 1 && !options.IsReview()) {
        return options.Diagrams[1] + ": only one diagram can be compiled at a time";
    }
    return PictureContradiction(options);
}

/// True for a compile with no other option than "-o", which most are. It does without the other
/// options: to make them takes a quarter of the time of the whole program.
bool IsPlain(int argc, char** argv) {
    return std::none_of(argv + 1, argv + argc, [](std::string_view word) {
        return word.starts_with('-') && word != "-" && word != "-o";
    });
}

}  // namespace

std::optional<int> ReadOptions(int argc, char** argv, Options& options) {
    CLI::App app("Compiles, runs, checks, draws and compares Quorvane diagrams.",
                 "quorvane-compile");
    app.set_version_flag("--version", "quorvane-compile " QUORVANE_VERSION);
    app.add_option("DIAGRAM", options.Diagrams,
                   "A diagram file (.qvm), - for standard input; several to\n"
                   "check, describe and draw, two to tell the difference")
        ->required()
        ->option_text(" ");
    AddCompiling(app, options);
    if (!IsPlain(argc, argv)) {
        AddRunning(app, options);
        AddReviews(app, options);
        for (const auto& group : groups) {
            for (const auto* const name : group.Names) app.get_option(name)->group(group.Heading);
        }
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& success) {
        return app.exit(success);
    } catch (const CLI::ParseError& error) {
        return Refuse(error.what() + std::string("; see quorvane-compile --help"));
    }
    const auto wrong = Contradiction(options);
    return wrong.empty() ? std::nullopt : std::optional(Refuse(wrong));
}

}  // namespace quorvane
