// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "diagram/worksheet.h"

namespace quorvane {

/// False in a program without windows, where nothing is painted since nobody would see it.
extern bool paintsSheets;

/// What the lines of an arrow are drawn with.
struct Pen {
    std::int32_t Color = 0;  ///< Red in the low byte
    int Width = 1;           ///< In pixels
};

/// Paints the arrow from box `source` to entry `entry` (1 to 3) of box `destination` on the surface
/// of `document`: two legs and a head, by the places of the box controls. A destination of 0 or
/// below, and any failure, paints nothing more. `mode` is always "b" and has no effect.
void DrawArrow(int source, int destination, int entry, const char* mode, int document);

/// Paints the two legs of an arrow from control S to entry `entry` of control D.
void DrawLegs(std::vector<DrawnShape>& surface, const Pen& pen, const BoxControl& S,
              const BoxControl& D, int entry);

/// Paints the legs and the head of such an arrow.
void DrawLegsAndHead(std::vector<DrawnShape>& surface, const Pen& pen, const BoxControl& S,
                     const BoxControl& D, int entry);

/// The lowest entry of `destination` that holds `source`, 1 when there is none.
int FindEntrySlot(int source, int destination);

/// Adds all arrows of a document, by box and exit, so that later ones lie over earlier ones. One
/// that can't be drawn is left out.
void AddArrows(std::vector<DrawnShape>& shapes, int document);

/// Clears the surface of the document with this number and paints all its arrows. "" paints
/// nothing.
void RedrawDocument(const std::string& document);

}  // namespace quorvane
