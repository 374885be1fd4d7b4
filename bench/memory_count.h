// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace quorvane::bench {

/// Counts what is taken from the heap with `new` while it lives. One at a time.
class MemoryCount {
public:
    MemoryCount();
    ~MemoryCount();
    MemoryCount(const MemoryCount&) = delete;
    MemoryCount& operator=(const MemoryCount&) = delete;

    /// The most bytes that were in use at once beyond those at the start.
    static std::size_t Peak();
};

}  // namespace quorvane::bench
