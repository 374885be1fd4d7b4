// SPDX-License-Identifier: MIT
#pragma once

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace quorvane::testing {

/// Runs a check in a child process and gives its result, 0 to 255; -1 when the child was killed.
template <class Child>
int InChild(Child child) {
    const auto process = fork();
    if (process == 0) _exit(child());
    int status = 0;
    waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// From here on no file of this process may grow further, which is as good as a full disk.
inline void LimitFiles(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit = {bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
}

/// Gives up the rights of root, whom no permission holds back.
inline void BecomeNobody() {
    if (geteuid() == 0 && setuid(65534) != 0) _exit(99);
}

}  // namespace quorvane::testing
