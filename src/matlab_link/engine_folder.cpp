// SPDX-License-Identifier: MIT
#include "matlab_link/engine_folder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <random>
#include <system_error>

#include "matlab_link/engine_functions.h"
#include "platform/runtime_error.h"

namespace quorvane {

namespace fs = std::filesystem;

namespace {

constexpr int FileNotFound = 53;

/// Which functions have the token in their names, and which are for Octave alone, since MATLAB has
/// its own.
constexpr std::array<std::string_view, 2> ours = {"run", "ask"};
constexpr std::string_view octaveFunction = "system_dependent";

bool IsOurs(std::string_view name) {
    return std::find(ours.begin(), ours.end(), name) != ours.end();
}

void Replace(std::string& text, std::string_view from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
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

void EngineFolder::Make(const std::string& token, bool forOctave) {
    folder_.reset(new fs::path(NewFolder()));
    for (const auto& function : EngineFunctions()) {
        if (function.Name == octaveFunction && !forOctave) continue;
        std::string text = function.Text;
        Replace(text, "TOKEN", token);
        Replace(text, "RUN", token + "run");
        Replace(text, "ASK", token + "ask");
        const std::string name = (IsOurs(function.Name) ? token : "") + function.Name;
        std::string why;
        if (Write(name, text, why).empty()) throw RuntimeError(FileNotFound);
    }
}

std::string EngineFolder::Write(const std::string& name, const std::string& text,
                                std::string& why) const {
    const auto path = (*folder_ / (name + ".m")).string();
    auto* file = std::fopen(path.c_str(), "wb");
    const bool isWritten = file && std::fwrite(text.data(), 1, text.size(), file) == text.size() &&
                           std::fflush(file) == 0;
    if (!isWritten) why = std::generic_category().message(errno);
    if (file) std::fclose(file);
    return isWritten ? path : "";
}

void EngineFolder::Remove(const std::string& file) {
    std::error_code error;
    fs::remove(file, error);
}

}  // namespace quorvane
