// SPDX-License-Identifier: MIT
#include "compile/load_diagram.h"

#include <filesystem>
#include <utility>
#include <vector>

#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "files/document_file.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/paths.h"

namespace quorvane {

namespace {

/// Takes back what an earlier diagram has left.
void ForgetDiagram() {
    CloseAllFiles();
    ResetBoxTable();
    ResetDocuments();
    ResetDocumentFile();
}

/// The first of the three lines of a box.
int LineOfBox(int number) { return 3 * number - 1; }

/// A load that breaks off leaves the boxes that it has read behind the others.
int BoxesRead() {
    int count = 0;
    while (BoxOrFree(count + 1).BoxDocument != 0) ++count;
    return count;
}

/// Where the file is wrong and what to do, after what the loader has told.
std::string Fault(const std::string& path, const std::string& told) {
    const std::string mend =
        "; take an earlier version of it, or open it in Quorvane, which shows ";
    const int read = BoxesRead();
    if (!lastLoad.Opened) {
        return std::filesystem::exists(SystemPath(path))
                   ? "It can't be read: it is no file, or closed to you"
                   : told + " Look at its name and its folder";
    }
    if (!lastLoad.HasCount) {
        return "line 1: not a Quorvane diagram, which begins with the number of its boxes";
    }
    if (lastLoad.Finished) {
        return "The file ends in the middle of a box, its last one, box" + NumberText(read) + mend +
               "what is left of it";
    }
    if (lastLoad.EndsEarly) {
        return "line " + NumberText(LineOfBox(read + 1)) + ": " + told + ": box" +
               NumberText(read + 1) + " isn't there" + mend + "those before it";
    }
    return "line 1: " + told + " At most " + NumberText(MaxBoxes) + " fit: part it in two";
}

}  // namespace

bool LoadDiagram(ConsoleDesktop& console, const std::string& path, std::string& why) {
    if (Documents.UpperBound() > 0) ForgetDiagram();
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
    const bool isWhole = lastLoad.Finished && lastLoad.HasCount && !lastLoad.ReadPastEnd;
    if (!isWhole) {
        why = (isPiped ? "standard input" : path) + ": " + Fault(path, lastText);
        return false;
    }
    for (const auto& line : held) write(line);
    return true;
}

}  // namespace quorvane
