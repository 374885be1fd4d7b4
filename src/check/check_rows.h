// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "diagram/box_table.h"

namespace quorvane {

/// A type whose boxes don't work as they are.
struct TroubledType {
    std::string_view Key;
    std::string_view Fault;     ///< What is wrong with its line, "" when no row writes one
    std::string_view Function;  ///< The function for a "Matlab Command" box in its place
};

/// What is known of a type, nullptr when nothing is wrong with it.
const TroubledType* FindTroubledType(std::string_view type);

/// The function that a "Matlab Command" box takes in place of a "Matrix Manipulation" of this text;
/// "" when its line is right.
std::string ManipulationInstead(std::string_view text);

/// The digits, in order, of the entries without which the line of a box has a gap or a call has too
/// few arguments. In free texts the words that name entries count.
std::string NeededEntries(const Box& box);

/// What the text of a box lacks for a whole line, "" when it is all there.
std::string_view MissingInText(const Box& box);

/// True when a word in the text of a box should name an entry but has no digit of one after it.
/// That ends a run, unless a file box was written before.
bool NamesNoEntry(const Box& box);

/// True when the box leaves a value in its variable.
bool SetsItsVariable(const Box& box);

}  // namespace quorvane
