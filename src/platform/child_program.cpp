// SPDX-License-Identifier: MIT
#include "platform/child_program.h"

#ifndef _WIN32
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "platform/paths.h"
#endif

namespace quorvane {

#ifdef _WIN32

std::string ProgramBeside(const std::string&) { return ""; }
int RunProgram(std::vector<std::string>, const std::string&) { return -1; }

#else

namespace {

struct CloseStream {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using Stream = std::unique_ptr<std::FILE, CloseStream>;

/// A file that has no name: nobody waits for a reader who gives up.
Stream FileOfText(const std::string& text) {
    Stream file(std::tmpfile());
    if (file && std::fwrite(text.data(), 1, text.size(), file.get()) != text.size()) file.reset();
    if (file) std::rewind(file.get());
    return file;
}

}  // namespace

std::string ProgramBeside(const std::string& name) {
    std::error_code error;
    const auto own = std::filesystem::read_symlink("/proc/self/exe", error).string();
    return JoinPath(FolderOf(own), name);
}

int RunProgram(std::vector<std::string> command, const std::string& input) {
    const auto file = FileOfText(input);
    if (!file) return -1;
    std::vector<char*> words;
    words.reserve(command.size() + 1);
    for (auto& word : command) words.push_back(word.data());
    words.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, fileno(file.get()), STDIN_FILENO);
    pid_t process = 0;
    int status = -1;
    const bool started =
        posix_spawn(&process, words[0], &actions, nullptr, words.data(), environ) == 0;
    posix_spawn_file_actions_destroy(&actions);
    pid_t ended = -1;
    while (started && (ended = waitpid(process, &status, 0)) < 0 && errno == EINTR) {
    }
    return ended == process && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

#endif

}  // namespace quorvane
