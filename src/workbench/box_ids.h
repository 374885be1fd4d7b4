// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace quorvane {

/// A text of a box without the numbers of the boxes that it mentions.
struct Mentions {
    std::string Pattern;     ///< The text with each "box3" as MentionMark
    std::vector<int> Boxes;  ///< The numbers, in order
};

/// What stands for a box in a pattern. No text of a diagram file holds a line end.
constexpr const char* MentionMark = "box\n";

/// Finds where a text names variables of boxes of the document: "box3", but neither "box3a" nor
/// "mybox3".
Mentions FindMentions(const std::string& text, int document);

/// A name for each of these boxes of one document. It doesn't hang on numbers, and hardly on the
/// rest of the diagram: it is made of type and text. Of boxes that share these, the first on the
/// sheet, from top to bottom and then from left to right, has that name; the others add a digest of
/// what feeds them, and where that is the same too, "#" and a number in the same order. Boxes on
/// the very same place are told apart by their arrows. It is made of visible ASCII characters,
/// without blanks and commas.
std::vector<std::string> BoxIds(const std::vector<int>& numbers);

}  // namespace quorvane
