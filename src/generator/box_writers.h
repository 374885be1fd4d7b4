// SPDX-License-Identifier: MIT
#pragma once

#include "generator/run.h"

namespace quorvane {

/// Writers of the boxes whose text needs more than a row of data. They write the script of `box`
/// and tell whether it is done; the chain marks it then.

bool WriteKeyboardInput(Run& run, int box, int slot);
bool WriteMatrixInput(Run& run, int box, int slot);
bool WriteMatrixMake(Run& run, int box, int slot);
bool WriteVectorMake(Run& run, int box, int slot);
bool WriteFileInput(Run& run, int box, int slot);
bool WriteFileOutput(Run& run, int box, int slot);
bool WriteSum(Run& run, int box, int slot);
bool WriteFunction(Run& run, int box, int slot);
bool WriteLogic(Run& run, int box, int slot);
bool WriteMatrixManipulation(Run& run, int box, int slot);
bool WriteSplit(Run& run, int box, int slot);
bool WritePause(Run& run, int box, int slot);
bool WritePlot(Run& run, int box, int slot);
bool WriteTrash(Run& run, int box, int slot);

}  // namespace quorvane
