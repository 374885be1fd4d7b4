// SPDX-License-Identifier: MIT
#include "workbench/picture_file.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/runtime_error.h"
#include "platform/svg_text.h"

namespace quorvane {

namespace {

/// The program beside this one.
std::string PictureProgram() {
    std::error_code error;
    const auto own = std::filesystem::read_symlink("/proc/self/exe", error).string();
    return JoinPath(FolderOf(own), "quorvane-picture");
}

struct CloseStream {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

/// Runs quorvane-picture with this text as standard input. It is read from a file that has no
/// name: nobody waits for a reader who gives up.
PictureEnd RunPictureProgram(std::string program, std::string path, std::string scale,
                             const std::string& svg) {
    const std::unique_ptr<std::FILE, CloseStream> input(std::tmpfile());
    if (!input || std::fwrite(svg.data(), 1, svg.size(), input.get()) != svg.size()) {
        return PictureEnd::NotDrawn;
    }
    std::rewind(input.get());
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, fileno(input.get()), STDIN_FILENO);
    char* const arguments[] = {program.data(), path.data(), scale.data(), nullptr};
    pid_t process = 0;
    int status = -1;
    const bool started =
        posix_spawn(&process, program.c_str(), &actions, nullptr, arguments, environ) == 0;
    posix_spawn_file_actions_destroy(&actions);
    pid_t ended = -1;
    while (started && (ended = waitpid(process, &status, 0)) < 0 && errno == EINTR) {
    }
    if (ended != process || !WIFEXITED(status)) return PictureEnd::NotDrawn;
    return static_cast<PictureEnd>(WEXITSTATUS(status));
}

}  // namespace

PictureFormat PictureFormatOf(const std::string& path) {
    const auto name = LowerCase(path);
    if (name.ends_with(".svg")) return PictureFormat::Svg;
    if (name.ends_with(".pdf")) return PictureFormat::Pdf;
    return name.ends_with(".png") ? PictureFormat::Png : PictureFormat::None;
}

std::string SavePicture(const std::string& path, const std::string& svg, double scale) {
    const auto format = PictureFormatOf(path);
    auto end = PictureEnd::Written;
    if (format == PictureFormat::None) return "The name of a picture ends in .svg, .pdf or .png";
    if (format == PictureFormat::Svg) {
        if (!Attempt([&] { ReplaceFile(path, svg); })) end = PictureEnd::NotWritten;
    } else {
        const auto program = PictureProgram();
        if (access(program.c_str(), X_OK) != 0) {
            return "PDF and PNG pictures need the program " + program + ", which isn't there";
        }
        end = RunPictureProgram(program, path, Pixels(scale, 4), svg);
    }
    switch (end) {
        case PictureEnd::Written: return "";
        case PictureEnd::NotWritten: return "The picture can't be written";
        default: return "The picture can't be drawn; a large one needs a smaller scale";
    }
}

}  // namespace quorvane
