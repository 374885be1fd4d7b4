// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace quorvane {

/// A word that no script and no output contains by chance.
std::string DrawToken();

/// Our functions (resources/engine) as one text that defines all of them; their names and marks are
/// those of this token.
std::string EngineDefinitions(const std::string& token);

/// A temporary folder that only this user can enter. It is removed with its record, and holds our
/// functions for an engine that only takes functions from files.
class EngineFolder {
public:
    /// Makes the folder with the functions, whose names and marks are those of this token. Error 53
    /// when there is no place for it.
    void Make(const std::string& token);
    std::string Path() const { return folder_ ? folder_->string() : ""; }

private:
    struct RemoveAll {
        void operator()(const std::filesystem::path* folder) const;
    };
    std::unique_ptr<const std::filesystem::path, RemoveAll> folder_;
};

}  // namespace quorvane
