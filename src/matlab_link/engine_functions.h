// SPDX-License-Identifier: MIT
#pragma once

#include <span>

namespace quorvane {

/// A file of resources/engine/: its name without ".m", and its text.
struct EngineFunction {
    const char* Name;
    const char* Text;
};

/// All of them; the build writes the table.
std::span<const EngineFunction> EngineFunctions();

}  // namespace quorvane
