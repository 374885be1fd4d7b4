// SPDX-License-Identifier: MIT
// Every window of the program, for the contact sheet.
#include "picture.h"

namespace quorvane {

namespace {

constexpr QSize Large(1000, 720);

// clang-format off
const Picture windows[] = {
    {"frame welcome", Large, "frmMDI", {"begin"}},
};
// clang-format on

}  // namespace

std::span<const Picture> AllWindows() { return windows; }

}  // namespace quorvane
