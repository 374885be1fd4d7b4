// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>
#include <map>
#include <string_view>
#include <vector>

#include "diagram/box_table.h"

namespace quorvane {

/// The type of the box that closes the block which a box of this type opens; "" when it opens none.
std::string_view CloserOf(std::string_view type);

/// True for the types that close blocks.
bool IsCloser(std::string_view type);

/// The exits from First to Last.
struct ExitRange {
    int First;
    int Last;
};
constexpr ExitRange AllExits = {1, 5};

/// The exits at which the inside of the block of an opening box begins: all of a loop or a
/// subroutine's head, one for each arm of an "If".
ExitRange InnerExits(const Box& box);

/// The blocks of the diagram, by its arrows.
class Blocks {
public:
    /// The boxes that may close the block which `box` opens, as far as it begins at these exits.
    /// Those that close a block inside of it don't count.
    std::vector<int> Closers(int box, ExitRange exits);
    /// The boxes on the level to which these exits of a box lead, without those inside inner
    /// blocks.
    std::vector<int> Inside(int box, ExitRange exits);

private:
    /// A set of boxes by their numbers.
    using BoxSet = std::bitset<MaxBoxes + 1>;
    struct Block {
        std::vector<int> Closers;
        BoxSet Inner;  ///< The closing boxes of the blocks inside, at any depth
    };
    const Block& Whole(int box);
    Block Inspect(int number, ExitRange exits);
    std::vector<int> Level(std::vector<int> waiting);
    std::vector<int> Behind(int number);
    /// The blocks inspected so far; empty for one that is being inspected, so that a ring of blocks
    /// ends.
    std::map<int, Block> known_;
};

}  // namespace quorvane
