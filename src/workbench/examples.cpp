// SPDX-License-Identifier: MIT
#include "workbench/examples.h"

#include <algorithm>
#include <filesystem>

#include "diagram/preferences.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"

namespace quorvane {

namespace {

constexpr std::string_view Ending = ".qvm";

std::string NameOfFile(const std::string& file) {
    std::string name(FileNameOf(file));
    name.resize(name.size() - Ending.size());
    return name;
}

/// A row of the README's table: "| `sine` | What it shows | What comes of it |".
struct Row {
    std::string Name, Line;
};

std::vector<Row> ReadRows(const std::string& readme) {
    std::vector<Row> rows;
    Attempt([&] {
        const int number = FreeFile();
        OpenForInput(number, readme);
        while (!EndOfFile(number)) {
            const auto line = LineInput(number);
            const auto nameEnd = line.find("` | ");
            if (!line.starts_with("| `") || nameEnd == std::string_view::npos) continue;
            const auto rest = line.substr(nameEnd + 4);
            rows.push_back({std::string(line.substr(3, nameEnd - 3)),
                            std::string(rest.substr(0, rest.find(" |")))});
        }
        CloseFile(number);
    });
    return rows;
}

}  // namespace

std::vector<Example> Examples() {
    const auto folder = JoinPath(ProgramDirectory, "examples");
    std::vector<std::string> files;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator(SystemPath(folder), error)) {
        if (entry.path().extension() == Ending) files.push_back(entry.path().string());
    }
    std::sort(files.begin(), files.end());
    const auto rows = ReadRows(JoinPath(folder, "README.md"));
    const auto rowOf = [&](const std::string& file) {
        return std::find_if(rows.begin(), rows.end(),
                            [&](const Row& row) { return row.Name == NameOfFile(file); });
    };
    std::stable_sort(files.begin(), files.end(),
                     [&](const auto& one, const auto& other) { return rowOf(one) < rowOf(other); });
    std::vector<Example> examples;
    for (const auto& file : files) {
        auto name = NameOfFile(file);
        std::replace(name.begin(), name.end(), '_', ' ');
        const auto row = rowOf(file);
        examples.push_back({std::move(name), file, row == rows.end() ? std::string() : row->Line});
    }
    return examples;
}

}  // namespace quorvane
