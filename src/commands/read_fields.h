// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// Reads a text that a dialog has packed: what stands in it for each "{}" of the pattern, such as
/// "[{}:{}:{}];". Empty when the text isn't of that form, or when a separator stands in it more
/// often than in the pattern, so that the fields can't be told apart.
std::vector<std::string> ReadFields(std::string_view text, std::string_view pattern);

}  // namespace quorvane
