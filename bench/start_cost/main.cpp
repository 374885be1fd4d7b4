// SPDX-License-Identifier: MIT
// start_cost ROUNDS PROGRAM [ARGUMENT...] -- PROGRAM [ARGUMENT...]
// Runs the two programs in turn, without their output, and prints for each round a line of four
// numbers: wall time in microseconds and the highest resident memory in KB of the first, then of
// the second. It is a program of its own since a started process counts the memory of the one that
// starts it as its own: that of an interpreter would hide what is measured.
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

[[noreturn]] void GiveUp(const char* what, const char* which) {
    std::fprintf(stderr, "start_cost: %s: %s\n", which, what);
    std::exit(2);
}

struct Cost {
    long Microseconds = 0;
    long Kilobytes = 0;
};

Cost RunOnce(char** command, const posix_spawn_file_actions_t& silence) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    pid_t process = 0;
    if (posix_spawn(&process, command[0], &silence, nullptr, command, environ) != 0) {
        GiveUp("can't be started", command[0]);
    }
    int status = 0;
    rusage usage{};
    if (wait4(process, &status, 0, &usage) != process) GiveUp("can't be waited for", command[0]);
    const auto taken = Clock::now() - start;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) GiveUp("has failed", command[0]);
    return {std::chrono::duration_cast<std::chrono::microseconds>(taken).count(), usage.ru_maxrss};
}

}  // namespace

int main(int argc, char** argv) {
    int parting = 2;
    while (parting < argc && std::strcmp(argv[parting], "--") != 0) ++parting;
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 0;
    if (rounds < 1 || parting == 2 || parting + 1 >= argc) {
        std::fputs("usage: start_cost ROUNDS PROGRAM [ARGUMENT...] -- PROGRAM [ARGUMENT...]\n",
                   stderr);
        return 2;
    }
    argv[parting] = nullptr;
    posix_spawn_file_actions_t silence;
    posix_spawn_file_actions_init(&silence);
    posix_spawn_file_actions_addopen(&silence, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&silence, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    for (int round = 0; round < rounds; ++round) {
        const auto first = RunOnce(argv + 2, silence);
        const auto second = RunOnce(argv + parting + 1, silence);
        std::printf("%ld %ld %ld %ld\n", first.Microseconds, first.Kilobytes, second.Microseconds,
                    second.Kilobytes);
    }
    return 0;
}
