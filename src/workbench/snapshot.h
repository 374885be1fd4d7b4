// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "diagram/box_table.h"
#include "diagram/worksheet.h"

namespace quorvane {

/// A state of all diagrams, to which the program can go back. Snapshots that follow each other
/// share what has not changed between them, so that many can be kept.

/// A box's control with its number, at its place on the sheet: scrolling doesn't change it.
struct SheetControl {
    int Number = 0;
    BoxControl Control;

    friend bool operator==(const SheetControl&, const SheetControl&) = default;
};

/// What a worksheet that was closed gets back. One that is open keeps its own.
struct WorksheetSettings {
    std::int16_t AcrossValue = 0, AcrossMax = 0;  ///< The scroll bars
    std::int16_t DownValue = 0, DownMax = 0;
    int DrawWidth = 1;
    bool MultipleArrows = false;
    bool Bubbles = false;
};

struct DocumentSnapshot {
    bool HasWindow = false;  ///< What follows but for State is empty without one
    DocumentState State;
    std::string Caption;
    std::int32_t LineColor = 0;
    WorksheetSettings Settings;
    std::shared_ptr<const std::vector<SheetControl>> Controls;
    /// What is painted, at its place on the sheet, in blocks, so that a new arrow shares the rest.
    std::vector<std::shared_ptr<const std::vector<DrawnShape>>> Surface;
    /// The document's text when it was made, loaded or saved last; "" when no file has it.
    std::shared_ptr<const std::string> StoredText;
};

struct Snapshot {
    std::int16_t NextBox = 1;
    std::vector<std::shared_ptr<const Box>> Boxes{nullptr};  ///< 1 to NextBox - 1
    std::vector<DocumentSnapshot> Documents{1};              ///< By number; element 0 holds none
};

/// True when the boxes, the open worksheets and their line colours are those of the snapshot. Marks
/// of the generator, scroll positions, names of files and the like don't count. `nextBox` stands
/// for NextBox, so that a box that is armed can be left out.
bool IsDiagramOf(const Snapshot& snapshot, int nextBox);

/// Brings a snapshot up to the present state.
void UpdateSnapshot(Snapshot& snapshot, int nextBox);

/// Brings only the texts of what is stored up to the present state, also while a box is armed.
void UpdateStoredTexts(Snapshot& snapshot);

/// Goes back, or on, to a snapshot from the state of `present`, its neighbour in time. Selection,
/// armed box and pending arrow are given up. Worksheets that both have keep their scroll positions,
/// captions and files; whether they count as modified is told by what is stored of them. What they
/// keep is written into `snapshot`, which is the present one then.
void RestoreSnapshot(Snapshot& snapshot, const Snapshot& present);

/// The bytes that all snapshots hold together.
std::size_t SnapshotBytes();

}  // namespace quorvane
