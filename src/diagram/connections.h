// SPDX-License-Identifier: MIT
#pragma once

#include "diagram/worksheet.h"

namespace quorvane {

/// Two boxes are joined by a click on the source and one on the destination.

/// Enters arrow mode: over boxes the pointer is an arrow, over the worksheets the no-drop
/// sign.
void BeginArrow();

/// Joins ArrowSource to box `destination` by the lowest empty slots of both and paints the arrow.
/// A message tells why not: the boxes lie in different documents, or no slot is empty. The mode is
/// idle afterwards.
void MakeConnection(Worksheet& sheet, int destination);

void mnuArrow_Click(Worksheet& sheet);

/// Toggle multiple arrows: while they are on, each click on an idle worksheet's box begins an
/// arrow.
void mnuMultipleArrows_Click(Worksheet& sheet);
void pnlArrow_Click(Worksheet& sheet);

/// Chooses the colour of the arrows of boxes made from now on.
void mnuEditLineColor_Click(Worksheet& sheet);

}  // namespace quorvane
