// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace quorvane {

/// Gives a box of the loaded diagram another value, by a text such as "box1=0.5": the text of a
/// constant, the default answer of what is asked from the keyboard. Returns "", or why it can't be
/// done and for which boxes it can.
std::string SetValue(const std::string& assignment);

}  // namespace quorvane
