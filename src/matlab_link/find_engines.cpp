// SPDX-License-Identifier: MIT
#include "matlab_link/find_engines.h"

#include <algorithm>
#include <filesystem>

#include "platform/numbers.h"
#include "platform/paths.h"

namespace quorvane {

namespace fs = std::filesystem;

#ifdef _WIN32
const std::vector<std::string> enginePrograms = {"matlab.exe"};
#else
const std::vector<std::string> enginePrograms = {"matlab", "octave-cli", "octave"};
#endif

namespace {

std::vector<fs::path> FoldersIn(const fs::path& folder) {
    std::vector<fs::path> folders;
    std::error_code error;
    for (fs::directory_iterator at(folder, error); !error && at != fs::directory_iterator();
         at.increment(error)) {
        std::error_code none;
        if (at->is_directory(none)) folders.push_back(at->path());
    }
    std::sort(folders.begin(), folders.end());
    return folders;
}

/// The highest of Octave's versions in a folder, from "share/octave/7.3.0", as "7.3"; "" for none.
std::string OctaveVersion(const fs::path& folder) {
    std::vector<int> highest;
    std::string version;
    for (const auto& each : FoldersIn(folder / "share/octave")) {
        const auto name = each.filename().string();
        const auto point = name.find('.');
        if (point == std::string::npos || !IsNumeric(name.substr(0, point))) continue;
        const auto shown = name.substr(0, name.find('.', point + 1));
        if (!IsNumeric(shown)) continue;
        const std::vector<int> numbers = {TextToInt16(shown.substr(0, point)),
                                          TextToInt16(shown.substr(point + 1))};
        if (numbers < highest) continue;
        highest = numbers;
        version = shown;
    }
    return version;
}

/// A release of MATLAB has a folder of its name.
std::string NameOf(const std::string& program, const fs::path& folder) {
    const bool isOctave = program.starts_with("octave");
    const auto last = folder.filename().string();
    const bool isRelease = last.size() > 1 && last[0] == 'R' && last[1] >= '0' && last[1] <= '9';
    const auto version = isOctave ? OctaveVersion(folder) : isRelease ? last : "";
    return (isOctave ? "Octave" : "MATLAB") + (version.empty() ? "" : " " + version);
}

/// The folder above the "bin" in which a program really lies, or by whose name it is found.
std::string FolderOfProgram(const fs::path& program) {
    std::error_code error;
    for (const auto& path : {fs::canonical(program, error), program}) {
        auto folder = path.parent_path().parent_path().string();
        if (path.parent_path().filename() == "bin" && !EngineIn(folder).Name.empty()) return folder;
    }
    return "";
}

void Add(std::vector<FoundEngine>& engines, const std::string& folder) {
    auto engine = EngineIn(folder);
    const bool isKnown = std::any_of(engines.begin(), engines.end(), [&](const auto& known) {
        std::error_code error;
        return fs::equivalent(SystemPath(known.Folder), SystemPath(folder), error);
    });
    if (!engine.Name.empty() && !isKnown) engines.push_back(std::move(engine));
}

void AddBelow(std::vector<FoundEngine>& engines, const fs::path& root) {
    Add(engines, root.string());
    for (const auto& folder : FoldersIn(root)) {
        Add(engines, folder.string());
        // Versions that are installed beside each other.
        const auto name = LowerCase(folder.filename().string());
        if (!name.starts_with("matlab") && !name.starts_with("octave")) continue;
        for (const auto& version : FoldersIn(folder)) Add(engines, version.string());
    }
}

}  // namespace

FoundEngine EngineIn(const std::string& folder) {
    for (const auto& program : enginePrograms) {
        std::error_code error;
        const auto place = SystemPath(folder);
        if (!fs::is_regular_file(place / "bin" / program, error)) continue;
        return {folder, NameOf(program, place)};
    }
    return {folder, ""};
}

std::vector<FoundEngine> FindEngines(const ProgramPlaces& places) {
    std::vector<FoundEngine> engines;
    for (const auto& name : places.Folders) {
        const auto folder = SystemPath(name);
        for (const auto& program : enginePrograms) {
            std::error_code error;
            if (folder.filename() != "bin" || !fs::exists(folder / program, error)) continue;
            Add(engines, FolderOfProgram(folder / program));
        }
    }
    for (const auto& root : places.Roots) AddBelow(engines, SystemPath(root));
    return engines;
}

}  // namespace quorvane
