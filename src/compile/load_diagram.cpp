// SPDX-License-Identifier: MIT
#include "compile/load_diagram.h"

#include <utility>
#include <vector>

#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "files/document_file.h"
#include "platform/file_table.h"

namespace quorvane {

namespace {

/// Takes back what an earlier diagram has left.
void ForgetDiagram() {
    CloseAllFiles();
    ResetBoxTable();
    ResetDocuments();
    ResetDocumentFile();
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

}  // namespace quorvane
