// SPDX-License-Identifier: MIT
#pragma once

// The preferences themselves are read on every level; here is where they are kept between runs.
#include "diagram/preferences.h"
