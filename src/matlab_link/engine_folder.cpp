// SPDX-License-Identifier: MIT
#include "matlab_link/engine_folder.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <random>
#include <string_view>
#include <system_error>

#include "matlab_link/engine_functions.h"
#include "platform/runtime_error.h"

namespace quorvane {

namespace fs = std::filesystem;

namespace {

constexpr int FileNotFound = 53;

/// The functions that take the place of the engine's own; all others have the token in their names.
/// One of them is for Octave alone, since MATLAB has it.
constexpr std::array<std::string_view, 4> replacing = {"input", "keyboard", "pause",
                                                       "system_dependent"};
constexpr std::string_view octaveFunction = "system_dependent";

bool Replaces(std::string_view name) {
    return std::find(replacing.begin(), replacing.end(), name) != replacing.end();
}

std::string WithToken(std::string text, const std::string& token) {
    constexpr std::string_view mark = "TOKEN";
    for (auto at = text.find(mark); at != std::string::npos;
         at = text.find(mark, at + token.size())) {
        text.replace(at, mark.size(), token);
    }
    return text;
}

bool WriteFile(const fs::path& path, const std::string& text) {
    auto* file = std::fopen(path.string().c_str(), "wb");
    const bool isWritten = file && std::fwrite(text.data(), 1, text.size(), file) == text.size() &&
                           std::fflush(file) == 0;
    if (file) std::fclose(file);
    return isWritten;
}

/// A new folder that only its owner can read and enter; a number makes its name unique.
fs::path NewFolder() {
    std::error_code error;
    const auto place = fs::temp_directory_path(error);
    for (int tries = 0; !error && tries < 100; ++tries) {
        auto folder = place / ("quorvane-" + DrawToken());
        if (!fs::create_directory(folder, error)) continue;
        fs::permissions(folder, fs::perms::owner_all, error);
        return folder;
    }
    throw RuntimeError(FileNotFound);
}

}  // namespace

std::string DrawToken() {
    std::random_device device;
    const auto high = static_cast<std::uint64_t>(device()) << 32;
    std::array<char, 20> text{};
    std::snprintf(text.data(), text.size(), "q%llx",
                  static_cast<unsigned long long>(high | device()));
    return text.data();
}

void EngineFolder::RemoveAll::operator()(const fs::path* folder) const {
    std::error_code error;
    fs::remove_all(*folder, error);
    delete folder;
}

std::string EngineDefinitions(const std::string& token) {
    std::string text;
    for (const auto& function : EngineFunctions()) text += WithToken(function.Text, token);
    return text;
}

void EngineFolder::Make(const std::string& token) {
    folder_.reset(new fs::path(NewFolder()));
    for (const auto& function : EngineFunctions()) {
        if (function.Name == octaveFunction) continue;
        const std::string name = (Replaces(function.Name) ? "" : token) + function.Name;
        if (!WriteFile(*folder_ / (name + ".m"), WithToken(function.Text, token))) {
            throw RuntimeError(FileNotFound);
        }
    }
}

}  // namespace quorvane
