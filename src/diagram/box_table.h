// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/checked_array.h"

namespace quorvane {

constexpr int MaxBoxes = 350;

/// An entry or exit that its box type doesn't have.
constexpr std::int16_t LockedSlot = -1;

/// One step of a diagram. A free record has empty texts and 0 everywhere
/// else, apart from the place of its last use.
struct Box {
    std::string BoxType;  ///< The box type key, compared letter for letter; "" in a free record
    std::string BoxMark;  ///< "OK" once the generator has emitted the box; written by the generator
    std::string BoxText;  ///< The configuration; its form depends on BoxType
    std::int16_t BoxDocument = 0;  ///< Number of the document it lies in; 0 in a free record
    /// Slots: 0 empty, -1 locked, else the number of the box at the far end. An arrow is the pair
    /// of slots that name each other.
    CheckedArray<std::int16_t, 1, 3> BoxIn;
    CheckedArray<std::int16_t, 1, 5> BoxOut;
    /// Colours of the arrows that leave, red in the low byte, by the entry in which they land at
    /// the far box; so 4 and 5 never show.
    CheckedArray<std::int32_t, 1, 5> BoxLineColor;
    std::int32_t BoxLeft = 0;  ///< Upper left corner on the sheet, in screen units of 1/1440 inch
    std::int32_t BoxTop = 0;
    /// Stays with the box when its number changes, and is never given again; 0 in a free record and
    /// until GiveBoxIds.
    std::uint32_t Id = 0;

    friend bool operator==(const Box&, const Box&) = default;
};

/// The one table of all boxes of all documents. Numbers in use are 1 to NextBox - 1, without holes;
/// record 0 is never a user's box.
extern CheckedArray<Box, 0, MaxBoxes> Boxes;

/// The number that the next new box takes, 1 with no boxes. An armed box is already counted.
extern std::int16_t NextBox;

/// What the next click means: 0 not editing, 1 idle, 2 a box is armed, 3 arrow without source,
/// 4 arrow with ArrowSource, 5 move, 6 copy, 7 inside a group copy. The generator leaves 0 or 1
/// here.
extern std::int16_t EditMode;

/// The box at which the arrow being drawn starts; valid in EditMode 4.
extern std::int16_t ArrowSource;

/// The record of this number, or a free one for a number outside the table: loops run up to NextBox
/// inclusive, also when the table is full.
const Box& BoxOrFree(int number);

/// The key under which the icon table holds the box's picture: the plot kind of a "Plot Output",
/// "Diag" for a diagonal "Matrix Manipulation", else the type; "Subroutine" for a text that says
/// so.
std::string_view BoxIconKey(int number);

/// True for a box that the generator has emitted in this run.
inline bool IsDone(const Box& box) {
    // A run asks this of every box in the front, time and again.
    const auto& mark = box.BoxMark;
    return mark.size() == 2 && mark[0] == 'O' && mark[1] == 'K';
}

inline void MarkDone(Box& box) {
    // Letter by letter this is a few stores; an assignment is a call.
    box.BoxMark.clear();
    box.BoxMark.push_back('O');
    box.BoxMark.push_back('K');
}

/// "box" and the number, the script variable of a box.
std::string BoxName(int number);

/// Makes a record free, but for its place: that of its last use stays.
void FreeRecord(Box& box);

/// Gives each new box its Id.
void GiveBoxIds();

void ResetBoxTable();

}  // namespace quorvane
