// SPDX-License-Identifier: MIT
#include "commands/read_fields.h"

namespace quorvane {

namespace {

constexpr std::string_view Hole = "{}";

/// The literal text before the pattern's next hole, which is taken off with it.
std::string_view TakeLiteral(std::string_view& pattern) {
    const auto hole = pattern.find(Hole);
    const auto literal = pattern.substr(0, hole);
    pattern.remove_prefix(hole == std::string_view::npos ? pattern.size() : hole + Hole.size());
    return literal;
}

}  // namespace

std::vector<std::string> ReadFields(std::string_view text, std::string_view pattern) {
    const auto head = TakeLiteral(pattern);
    if (!text.starts_with(head)) return {};
    text.remove_prefix(head.size());
    std::vector<std::string> fields;
    std::string_view before;
    while (pattern.find(Hole) != std::string_view::npos) {
        before = TakeLiteral(pattern);
        const auto end = text.find(before);
        if (end == std::string_view::npos) return {};
        fields.emplace_back(text.substr(0, end));
        text.remove_prefix(end + before.size());
    }
    if (!text.ends_with(pattern)) return {};
    text.remove_suffix(pattern.size());
    if (!before.empty() && text.find(before) != std::string_view::npos) return {};
    fields.emplace_back(text);
    return fields;
}

}  // namespace quorvane
