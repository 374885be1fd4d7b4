// SPDX-License-Identifier: MIT
#include "memory_count.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace quorvane::bench {

namespace {

bool counting = false;
std::ptrdiff_t inUse = 0;
std::ptrdiff_t peak = 0;

}  // namespace

MemoryCount::MemoryCount() {
    inUse = 0;
    peak = 0;
    counting = true;
}

MemoryCount::~MemoryCount() { counting = false; }

std::size_t MemoryCount::Peak() { return static_cast<std::size_t>(peak); }

namespace {

void* Take(std::size_t size) {
    void* block = std::malloc(size);
    if (!block) throw std::bad_alloc();
    if (counting) {
        inUse += static_cast<std::ptrdiff_t>(malloc_usable_size(block));
        peak = std::max(peak, inUse);
    }
    return block;
}

void GiveBack(void* block) {
    if (counting && block) inUse -= static_cast<std::ptrdiff_t>(malloc_usable_size(block));
    std::free(block);
}

}  // namespace

}  // namespace quorvane::bench

void* operator new(std::size_t size) { return quorvane::bench::Take(size); }
void operator delete(void* block) noexcept { quorvane::bench::GiveBack(block); }
void operator delete(void* block, std::size_t) noexcept { quorvane::bench::GiveBack(block); }
