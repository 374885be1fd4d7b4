// SPDX-License-Identifier: MIT
#include "compile/output.h"

#include <cstdio>

#include "compile/options.h"
#include "platform/file_table.h"
#include "platform/runtime_error.h"

namespace quorvane {

bool WriteOutput(const std::string& path, const std::string& text) {
    if (path.empty()) {
        return std::fwrite(text.data(), 1, text.size(), stdout) == text.size() &&
               std::fflush(stdout) == 0;
    }
    return Attempt([&] { ReplaceFile(path, text); });
}

int Refuse(const std::string& what) {
    std::fprintf(stderr, "quorvane-compile: %s\n", what.c_str());
    return NothingCompiled;
}

}  // namespace quorvane
