// SPDX-License-Identifier: MIT
#pragma once

#include "check/check_findings.h"

namespace quorvane {

// What a box writes: its entries, its text and the row of its type.

void CheckEntries(Check& check, int number);
void CheckText(Check& check, int number);
void CheckPickup(Check& check, int number);

}  // namespace quorvane
