// SPDX-License-Identifier: MIT
#include "compile/options.h"

#include <getopt.h>

#include <algorithm>
#include <array>
#include <set>
#include <string_view>
#include <vector>

#include "compile/output.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "quorvane/version.h"

namespace quorvane {

namespace {

/// What takes the value of an option, "" for one without; false when it is none for this option.
using Taker = bool (*)(Options& options, std::string_view value);

/// An option, or a heading of the help, which has a text alone.
struct OptionRow {
    std::string_view Letter, Name;
    std::string_view Value;  ///< What the help calls its value, "" for an option without one
    std::string_view Text;   ///< What the help says
    Taker Take = nullptr;
    std::string_view Excludes = "";  ///< Options that can't be there too, separated by blanks
    std::string_view Needs = "";     ///< An option that must be there too
    std::string_view Fitting = "";   ///< What a value must be
    bool Repeats = false;            ///< Each of several values counts
};

template <bool Options::*Field>
bool Set(Options& options, std::string_view /*value*/) {
    return options.*Field = true;
}

template <std::string Options::*Field>
bool Keep(Options& options, std::string_view value) {
    options.*Field = value;
    return true;
}

bool TakeMode(Options& options, std::string_view value) {
    options.Mode = value == "0" ? 0 : 1;
    return value == "0" || value == "1";
}

bool TakeValue(Options& options, std::string_view value) {
    options.Values.emplace_back(value);
    return true;
}

bool TakeEngine(Options& options, std::string_view value) {
    options.Engine.Command = value;
    return true;
}

bool TakeStartLimit(Options& options, std::string_view value) {
    const bool isWhole = value.find_first_not_of("0123456789") == std::string_view::npos;
    const auto read = [&] {
        options.Engine.StartLimit = static_cast<unsigned>(TextToInt32(value));
    };
    return isWhole && Attempt(read);
}

bool TakePicture(Options& options, std::string_view value) {
    options.Picture.File = value;
    return true;
}

bool TakePaper(Options& options, std::string_view /*value*/) {
    return options.Picture.Paper = true;
}

bool TakeNumbers(Options& options, std::string_view /*value*/) {
    return options.Picture.Numbers = true;
}

bool TakeScale(Options& options, std::string_view value) {
    double scale = 0;
    Attempt([&] { scale = TextToNumber(value); });
    options.Picture.Scale = scale;
    return scale >= 0.1 && scale <= 10;
}

constexpr std::string_view reviews = "--check --picture --describe --diff";
constexpr std::string_view runAndReviews = "--run --check --picture --describe --diff";

// clang-format off
// Letter, name, value; text; what takes it, what it excludes, what it needs, what a value must be
constexpr OptionRow rows[] = {
    {"", "", "", "Options"},
    {"-h", "--help", "", "Print this help message and exit", Set<&Options::Help>},
    {"", "--version", "", "Display program version information and exit", Set<&Options::Version>},

    {"", "", "", "To compile, as in quorvane-compile -o plot.m plot.qvm"},
    {"-o", "--output", "FILE", "Write there instead of to standard output",
     Keep<&Options::Output>, runAndReviews},
    {"", "--start-unwired", "", "Start at every box without arrows into it, too",
     Set<&Options::StartUnwired>},
    {"", "--answers", "FILE", "Answer the run's questions from this file",
     Keep<&Options::AnswersFile>, reviews},
    {"", "--mode", "NUMBER", "1 compiles to text (default), 0 as for MATLAB, text by text",
     TakeMode, runAndReviews, "", "0 or 1"},
    {"", "--set", "BOX=VALUE", "Another value for a Constant Input or Keyboard Input box; repeatable",
     TakeValue, reviews, "", "", true},

    {"", "", "", "To run, as in quorvane-compile --run --engine \"ssh host octave-cli\" sums.qvm"},
    {"", "--run", "", "Run the diagram in an engine and print what it prints, exit 4 if a box fails",
     Set<&Options::Run>, reviews},
    {"", "--engine", "COMMAND", "What starts the engine, such as \"ssh host octave-cli\"; Octave unless given",
     TakeEngine, "", "--run"},
    {"", "--start-limit", "SECONDS", "Give the engine so long to become ready (60), 0 for as long as it takes",
     TakeStartLimit, "", "--run", "a whole number"},

    {"", "", "", "To check, as in quorvane-compile --check *.qvm"},
    {"", "--check", "", "Report what would go wrong in a run, exit 1 if anything",
     Set<&Options::Check>, "--describe --diff"},

    {"", "", "", "To draw, as in quorvane-compile --picture plot.pdf --paper plot.qvm"},
    {"", "--picture", "FILE", "Draw the diagram into this file, .svg, .pdf or .png; DIR/ draws several",
     TakePicture, "--describe"},
    {"", "--paper", "", "Draw dark arrows on white, for print", TakePaper, "", "--picture"},
    {"", "--numbers", "", "Write the name of each box below it", TakeNumbers, "", "--picture"},
    {"", "--scale", "NUMBER", "Make a PNG larger or smaller, 0.1 to 10 times",
     TakeScale, "", "--picture", "a number from 0.1 to 10"},

    {"", "", "", "To compare, as in quorvane-compile --diff old.qvm new.qvm"},
    {"", "--describe", "", "List the boxes in lines that can be compared",
     Set<&Options::Describe>, "--diff"},
    {"", "--diff", "", "Tell what has changed from the first diagram to the second, exit 1 if anything",
     Set<&Options::Diff>, "--json"},

    {"", "", "", "For other programs, as in quorvane-compile --describe --json plot.qvm"},
    {"", "--json", "", "Print JSON, with --check or --describe", Set<&Options::Json>},
};
// clang-format on

void PrintHelp() {
    constexpr std::size_t column = 30;
    std::string help =
        "Compiles, runs, checks, draws and compares Quorvane diagrams.\n"
        "Usage: quorvane-compile [OPTIONS] DIAGRAM...\n\n"
        "Positionals:\n"
        "  DIAGRAM                     A diagram file (.qvm), - for standard input; several to\n"
        "                              check, describe and draw, two to tell the difference\n";
    for (const auto& row : rows) {
        if (row.Name.empty()) {
            help.append(&row == rows ? "" : "\n").append(row.Text).append(":\n");
            continue;
        }
        std::string line = "  ";
        if (!row.Letter.empty()) line.append(row.Letter).append(",");
        line.append(row.Name);
        if (!row.Value.empty()) line.append(" ").append(row.Value);
        line.resize(column, ' ');
        help.append(line).append(row.Text).append("\n");
    }
    WriteOutput("", help + "\n");
}

/// What is there of the options, and the first thing that is wrong with them.
struct Reading {
    std::array<int, std::size(rows)> Given = {};  ///< How often each row's option is there
    std::string Wrong;

    void Complain(std::string_view option, std::string_view what) {
        if (Wrong.empty()) Wrong.append(option).append(what);
    }
};

bool IsGiven(const Reading& reading, std::string_view name) {
    const auto* const row = std::find_if(std::begin(rows), std::end(rows),
                                         [&](const auto& each) { return each.Name == name; });
    return reading.Given[static_cast<std::size_t>(row - rows)] > 0;
}

/// What getopt_long calls the option of a row: its letter, or a number beyond all letters.
int CodeOf(std::size_t row) {
    constexpr int beyondLetters = 256;
    const auto& letter = rows[row].Letter;
    return letter.empty() ? beyondLetters + static_cast<int>(row) : letter[1];
}

/// The row of a code, the number of rows for an option that isn't there.
std::size_t RowOf(int code) {
    std::size_t row = 0;
    while (row < std::size(rows) && (rows[row].Name.empty() || CodeOf(row) != code)) ++row;
    return row;
}

void TakeOption(Reading& reading, Options& options, std::size_t index) {
    const auto& row = rows[index];
    ++reading.Given[index];
    const std::string_view value = row.Value.empty() ? "" : optarg;
    if (!row.Value.empty() && value.empty()) {
        reading.Complain(row.Name, std::string(": ").append(row.Value) + " is missing");
    } else if (!row.Take(options, value)) {
        reading.Complain(row.Name,
                         std::string(": ").append(value).append(" is not ").append(row.Fitting));
    }
}

/// An option without the value that it needs, with one that it doesn't take, or that isn't there.
void RefuseOption(Reading& reading, bool lacksValue, const char* word) {
    const auto row = RowOf(optopt);
    if (row == std::size(rows)) {
        const char letter[] = {'-', static_cast<char>(optopt), 0};
        reading.Complain(optopt == 0 ? word : letter, ": there is no such option");
    } else if (lacksValue) {
        reading.Complain(rows[row].Name, std::string(": ").append(rows[row].Value) + " is missing");
    } else {
        reading.Complain(rows[row].Name, ": it takes no value");
    }
}

/// Reads the words of the command line; those that belong to no option name diagrams.
void ReadWords(Reading& reading, Options& options, int argc, char** argv) {
    std::vector<option> names;
    std::string letters = ":";  // Tells a missing value from an unknown option
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const auto& row = rows[i];
        if (row.Name.empty()) continue;
        const int value = row.Value.empty() ? no_argument : required_argument;
        names.push_back({row.Name.data() + 2, value, nullptr, CodeOf(i)});
        if (row.Letter.empty()) continue;
        letters.append(row.Letter.substr(1)).append(row.Value.empty() ? "" : ":");
    }
    names.push_back({});
    opterr = 0;
    for (int code = 0; code != -1;) {
        code = getopt_long(argc, argv, letters.c_str(), names.data(), nullptr);
        if (code == '?' || code == ':') {
            RefuseOption(reading, code == ':', argv[optind - 1]);
        } else if (code != -1) {
            TakeOption(reading, options, RowOf(code));
        }
    }
    options.Diagrams.assign(argv + optind, argv + argc);
}

/// Options that are right each for itself and don't go together.
void CheckTogether(Reading& reading) {
    for (const auto& row : rows) {
        const int given = reading.Given[static_cast<std::size_t>(&row - rows)];
        if (given == 0) continue;
        if (given > 1 && !row.Value.empty() && !row.Repeats) {
            reading.Complain(row.Name, ": it is given more than once");
        }
        for (auto others = row.Excludes; !others.empty();) {
            const auto other = TakeUpTo(others, " ");
            if (IsGiven(reading, other)) {
                reading.Complain(row.Name, std::string(" excludes ").append(other));
            }
        }
        if (!row.Needs.empty() && !IsGiven(reading, row.Needs)) {
            reading.Complain(row.Name, std::string(" requires ").append(row.Needs));
        }
    }
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

}  // namespace

std::optional<int> ReadOptions(int argc, char** argv, Options& options) {
    Reading reading;
    ReadWords(reading, options, argc, argv);
    if (options.Help) {
        PrintHelp();
        return RunFinished;
    }
    if (options.Version) {
        WriteOutput("", "quorvane-compile " QUORVANE_VERSION "\n");
        return RunFinished;
    }
    if (options.Diagrams.empty()) reading.Complain("DIAGRAM", ": name at least one");
    CheckTogether(reading);
    if (!reading.Wrong.empty()) return Refuse(reading.Wrong + "; see quorvane-compile --help");
    const auto wrong = Contradiction(options);
    return wrong.empty() ? std::nullopt : std::optional(Refuse(wrong));
}

}  // namespace quorvane
