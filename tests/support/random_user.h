// SPDX-License-Identifier: MIT
#pragma once

#include <random>
#include <string>
#include <vector>

#include "platform/quiet_desktop.h"

namespace quorvane::testing {

/// A user without a plan, and the desktop that they sit at. Files are "a.qvm" and "b.qvm" in the
/// current folder.
struct RandomUser : QuietDesktop {
    explicit RandomUser(unsigned seed) : chance(seed) {}

    /// Does one thing as one event would, on any worksheet, and says what.
    std::string Operate();

    Answer MsgBox(const Message& message) override;
    std::string InputBox(const std::string&, const std::string&, const std::string&) override;
    std::string OpenFileDialog(const std::string&, const std::string&) override;
    std::string SaveFileDialog(const std::string&, const std::string&) override;
    std::int32_t ColorDialog(std::int32_t start) override;
    void ShowModal(std::string_view name) override;

    /// A number from 0 to `below` - 1.
    int Any(int below) { return static_cast<int>(chance() % static_cast<unsigned>(below)); }
    std::mt19937 chance;
    /// Keeps away from what, by design, leaves arrows known at one end alone or boxes written over.
    bool Careful = false;

private:
    std::string OperateOn(int document);
};

}  // namespace quorvane::testing
