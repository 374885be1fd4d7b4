// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "diagram/box_table.h"
#include "platform/checked_array.h"

namespace quorvane {

/// An entry or exit of a described box.
struct DescribedSlot {
    enum class Kind {
        Open,
        Locked,
        Joined,  ///< An arrow
        OneWay,  ///< It names a box that doesn't name it back
        Lost,    ///< It names a number that no box of the diagram has
    };
    Kind State = Kind::Open;
    std::size_t Far =
        0;  ///< The box at the far end, by its place in the description; with Lost the number
    int FarSlot = 0;         ///< The exit or entry there of an arrow
    std::int32_t Color = 0;  ///< Of what leads into an entry, red in the low byte
};

/// A box by what doesn't hang on its number.
struct DescribedBox {
    int Number = 0;
    std::string Id;  ///< A name among the boxes of its diagram (box_ids.h)
    std::string Type;
    std::string Pattern;  ///< Its text, with a MentionMark for each box that it mentions
    std::vector<std::size_t> Mentions;  ///< These boxes, by their places in the description
    std::int32_t Left = 0, Top = 0;
    CheckedArray<DescribedSlot, 1, 3> Entries;
    CheckedArray<DescribedSlot, 1, 5> Exits;
};

/// The boxes of a diagram in the order of their ids. It lives on without the diagram.
using Description = std::vector<DescribedBox>;

Description DescribeDocument(int document);

/// The text of a box, with "box{Sin}" for a mention of the box with that id.
std::string DescribedText(const Description& boxes, const DescribedBox& box);

/// A text on one line: control characters, quotation marks and backslashes are written with a
/// backslash.
std::string Visible(std::string_view text);
/// The same in quotation marks.
std::string Quoted(std::string_view text);

/// The id of the box at the far end of an arrow; "box99" for a number that no box has.
std::string FarId(const Description& boxes, const DescribedSlot& slot);

/// What an entry or exit says: "from Sin exit 2", "open".
std::string SlotWords(const Description& boxes, const DescribedSlot& slot, bool isEntry);
std::string PlaceWords(const DescribedBox& box);
std::string ColorWords(std::int32_t color);

/// A box in one line: its type, text and place, and what leads into each entry that isn't locked.
/// Its exits show only where no entry tells them.
std::string BoxWords(const Description& boxes, const DescribedBox& box);

/// A line for each box, its id and its words. The same diagram under other numbers has the same
/// lines; a change in one place changes the lines there.
std::string DescribedLines(const Description& boxes);

}  // namespace quorvane
