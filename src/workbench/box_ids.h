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
/// what feeds them, and where that is taken too, their place. So a box that comes or goes changes
/// the names of at most two others, and a box that is moved keeps its own unless another one is
/// just like it. Boxes on the very same place are told apart by their arrows. A name has no blanks.
std::vector<std::string> BoxIds(const std::vector<int>& numbers);

}  // namespace quorvane
