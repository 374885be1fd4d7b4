// SPDX-License-Identifier: MIT
#include "generator/box_writers.h"

#include "commands/matrix_input.h"
#include "platform/desktop.h"
#include "platform/numbers.h"
#include "platform/paths.h"

namespace quorvane {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

constexpr std::size_t WordLength = 5;  // of "Input"

/// The variable that feeds the entry whose digit follows the word.
std::string FeederName(int box, std::string_view behindWord) {
    if (behindWord.empty() || !IsDigit(behindWord[0])) throw RuntimeError(13);
    return BoxName(Boxes[box].BoxIn[behindWord[0] - '0']);
}

/// Puts the names of the feeders in place of "Input1" to "Input3". The scan ends at the position at
/// which the text ended before it, so that longer names push the last words out of its reach. A
/// word that can't be replaced is a run-time error, and stays under the ignore policy.
std::string WithFeeders(const Run& run, int box, std::string_view text, bool isPlot) {
    const auto bound = text.size();
    std::string filled;
    filled.reserve(bound);
    while (!text.empty() && filled.size() < bound) {
        if (NamesEntry(text, isPlot) &&
            Attempt(run.Policy, [&] { filled += FeederName(box, text.substr(WordLength)); })) {
            text.remove_prefix(WordLength + 1);
        } else {
            filled += text[0];
            text.remove_prefix(1);
        }
    }
    filled += text;
    return filled;
}

/// "box{id}=", to which a line adds the rest.
std::string Assigned(int box) { return BoxName(box) + "="; }

}  // namespace

bool WriteKeyboardInput(Run& run, int box, int /*slot*/) {
    auto& text = Boxes[box].BoxText;
    text = AskForLine("Enter the data devided by spaces", "Quorvane: " + BoxName(box), text);
    WriteLine(run, Assigned(box) + "[ " + text + " ];");
    return true;
}

bool WriteMatrixInput(Run& run, int box, int /*slot*/) {
    frmMatrix_Load();
    desktop->ShowModal("frmMatrix");
    desktop->FocusWorksheet(run.Document);
    WriteLine(run, Assigned(box) + " " + frmMatrix.mat.Text + " ]; ");
    frmMatrix = {};
    return true;
}

bool IsMadeByText(const Box& box) {
    const auto& in = box.BoxIn;
    if (box.BoxType == "Matrix Make Input") return in[1] == LockedSlot && in[2] == LockedSlot;
    return box.BoxType == "Vector Make Input" && in[1] == LockedSlot && in[2] == LockedSlot &&
           in[3] == LockedSlot;
}

bool WriteMatrixMake(Run& run, int box, int /*slot*/) {
    const Box& record = Boxes[box];
    if (IsMadeByText(record)) {
        WriteLine(run, Assigned(box) + record.BoxText + ";");
        return true;
    }
    if (!Ready(run, box)) return false;
    const auto bracket = record.BoxText.find('(');
    if (bracket != std::string::npos) run.workText = record.BoxText.substr(0, bracket + 1);
    // The line is the call alone: nothing takes its value.
    WriteLine(run,
              run.workText + BoxName(record.BoxIn[1]) + "," + NumberText(record.BoxIn[2]) + ");");
    return true;
}

bool WriteVectorMake(Run& run, int box, int /*slot*/) {
    const Box& record = Boxes[box];
    const auto& in = record.BoxIn;
    if (IsMadeByText(record)) {
        WriteLine(run, Assigned(box) + record.BoxText);
        return true;
    }
    if (!Ready(run, box)) return false;
    WriteLine(run, Assigned(box) + "[" + BoxName(in[1]) + ":" + BoxName(in[2]) + ":" +
                       BoxName(in[3]) + "];");
    return true;
}

bool WriteFileInput(Run& run, int box, int /*slot*/) {
    run.Policy = ErrorPolicy::Ignore;
    std::string path;
    const std::string filter = "Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
    if (!Attempt([&] { path = desktop->OpenFileDialog(filter, ""); })) return true;
    constexpr std::size_t ending = 4;
    auto& name = run.workText;
    name = FileNameOf(path);
    if (path.size() >= ending && path[path.size() - ending] == '.') {
        WriteLine(run, "load " + path + ";");
        name.erase(name.size() - std::min(ending, name.size()));
    } else {
        WriteLine(run, "load " + path + " -ascii ;");
    }
    WriteLine(run, Assigned(box) + name + ";");
    return true;
}

bool WriteFileOutput(Run& run, int box, int /*slot*/) {
    run.Policy = ErrorPolicy::Ignore;
    std::string path;
    const std::string filter = "Mathlab Files (*.m)|*.m|All Files (*.*)|*.*";
    if (!Attempt([&] { path = desktop->SaveFileDialog(filter, ""); })) return true;
    WriteLine(run, "save " + path + " " + BoxName(Boxes[box].BoxIn[1]) + " -ascii ;");
    return true;
}

bool WriteSum(Run& run, int box, int /*slot*/) {
    const Box& record = Boxes[box];
    std::string sum;
    int inputs = 0;
    for (const auto feeder : record.BoxIn) {
        if (feeder == 0) continue;
        ++inputs;
        sum += BoxName(feeder) + "+" + record.BoxText;
    }
    if (inputs < 2) return true;
    sum.pop_back();
    run.workText = sum;
    WriteLine(run, Assigned(box) + sum + ";");
    return true;
}

bool NamesEntry(std::string_view text, bool isPlot) {
    if (isPlot) {
        return text.starts_with("Input") && text.size() > WordLength && IsDigit(text[WordLength]);
    }
    return text.starts_with("Input") || text.starts_with("input");
}

bool WriteFunction(Run& run, int box, int /*slot*/) {
    constexpr std::string_view output = "Output";
    std::string text = Boxes[box].BoxText;
    if (text.starts_with(output)) {
        text.replace(0, output.size(), BoxName(box));
    } else {
        text.insert(0, Assigned(box) + "0;");
    }
    run.workText = WithFeeders(run, box, text, false);
    WriteLine(run, run.workText);
    return true;
}

bool IsLogicOperator(std::string_view text) {
    return text == "|" || text == "&" || text == "~" || text == "xor";
}

bool WriteLogic(Run& run, int box, int /*slot*/) {
    const Box& record = Boxes[box];
    const auto& text = record.BoxText;
    const auto first = BoxName(record.BoxIn[1]);
    const auto second = BoxName(record.BoxIn[2]);
    if (!IsLogicOperator(text)) return true;
    if (text == "~") {
        WriteLine(run, Assigned(box) + "~" + first + ";");
    } else if (text == "xor") {
        WriteLine(run, Assigned(box) + "xor(" + first + "," + second + ");");
    } else {
        WriteLine(run, Assigned(box) + first + text + second + ";");
    }
    return true;
}

bool WriteMatrixManipulation(Run& run, int box, int /*slot*/) {
    const auto& text = Boxes[box].BoxText;
    const auto matrix = BoxName(Boxes[box].BoxIn[1]);
    if (text == "fliplr" || text == "flipud" || text == "rot90" || text == "tril" ||
        text == "triu") {
        WriteLine(run, Assigned(box) + text + "(" + matrix + ");");
    } else if (text == "transpose") {
        WriteLine(run, Assigned(box) + matrix + "';");
    } else {
        run.workText = text.substr(std::min<std::size_t>(2, text.size()));
        WriteLine(run, Assigned(box) + "diag(" + matrix + "," + run.workText + ");");
    }
    return true;
}

bool WriteSplit(Run& run, int box, int /*slot*/) {
    const auto& text = Boxes[box].BoxText;
    const auto matrix = BoxName(Boxes[box].BoxIn[1]);
    run.workText = text.substr(std::min<std::size_t>(3, text.size()));
    const auto& range = run.workText;
    WriteLine(run, Assigned(box) + matrix +
                       (text.starts_with("Row") ? "(" + range + ",:);" : "(:," + range + ");"));
    return true;
}

bool HandsOn(const Box& pause) {
    const int feeder = pause.BoxIn[1];
    return feeder > 0 && BoxOrFree(feeder).BoxType != "Dummy Input";
}

bool WritePause(Run& run, int box, int /*slot*/) {
    const Box& record = Boxes[box];
    if (HandsOn(record)) WriteLine(run, Assigned(box) + BoxName(record.BoxIn[1]) + ";");
    WriteLine(run, record.BoxText.empty() ? "pause;" : "pause(" + record.BoxText + ");");
    return true;
}

bool WritePlot(Run& run, int box, int /*slot*/) {
    const std::string_view text = Boxes[box].BoxText;
    const auto kindEnd = text.find(';');
    const auto commands = kindEnd == std::string_view::npos ? text : text.substr(kindEnd + 1);
    auto& filled = run.workText;
    filled = WithFeeders(run, box, commands, true);
    if (run.Mode == 0 && !filled.ends_with(";")) filled += ";";
    if (filled.starts_with(";")) filled.erase(0, 1);
    run.scriptText += filled;
    return true;
}

bool WriteTrash(Run& /*run*/, int /*box*/, int /*slot*/) {
    Tell("What's the use of collecting data and dumping it ???", Icon::Question);
    return true;
}

}  // namespace quorvane
