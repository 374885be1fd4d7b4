// SPDX-License-Identifier: MIT
#pragma once

#include "generator/run.h"

namespace quorvane {

/// Writers of the boxes whose text needs more than a row of data. They write the script of `box`
/// and tell whether it is done; the chain marks it then.

bool WriteKeyboardInput(Run& run, int box, int slot);
bool WriteMatrixInput(Run& run, int box, int slot);
/// True for a "Matrix Make Input" or "Vector Make Input" that takes nothing: its text is the value.
bool IsMadeByText(const Box& box);
bool WriteMatrixMake(Run& run, int box, int slot);
bool WriteVectorMake(Run& run, int box, int slot);
bool WriteFileInput(Run& run, int box, int slot);
bool WriteFileOutput(Run& run, int box, int slot);
bool WriteSum(Run& run, int box, int slot);
/// True when `text` begins with the word that names an entry by the digit after it: "Input", and
/// "input" where both count. In a plot the word is meant only with a digit, elsewhere a word
/// without the digit of an entry is error 13 or 9.
bool NamesEntry(std::string_view text, bool isPlot);
bool WriteFunction(Run& run, int box, int slot);
/// True for a text that a "Logic Operator" has a line for.
bool IsLogicOperator(std::string_view text);
bool WriteLogic(Run& run, int box, int slot);
bool WriteMatrixManipulation(Run& run, int box, int slot);
bool WriteSplit(Run& run, int box, int slot);
/// True when a "Pause" passes on a value: that of its feeder, if that has one.
bool HandsOn(const Box& pause);
bool WritePause(Run& run, int box, int slot);
bool WritePlot(Run& run, int box, int slot);
bool WriteTrash(Run& run, int box, int slot);

}  // namespace quorvane
