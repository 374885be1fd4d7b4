// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace quorvane {

/// A word that no script and no output contains by chance.
std::string DrawToken();

/// A temporary folder that only this user can enter. It is removed with its record, and holds what
/// an engine has to find: our functions (resources/engine) and the script that it runs.
class EngineFolder {
public:
    /// Makes the folder with the functions, whose names and marks are those of this token. Error 53
    /// when there is no place for it.
    void Make(const std::string& token, bool forOctave);
    std::string Path() const { return folder_ ? folder_->string() : ""; }
    /// Writes an M-file and returns its path; "" when it can't be written whole, with the reason in
    /// `why`.
    std::string Write(const std::string& name, const std::string& text, std::string& why) const;
    static void Remove(const std::string& file);

private:
    struct RemoveAll {
        void operator()(const std::filesystem::path* folder) const;
    };
    std::unique_ptr<const std::filesystem::path, RemoveAll> folder_;
};

}  // namespace quorvane
