// SPDX-License-Identifier: MIT
#pragma once

#include "platform/runtime_error.h"

namespace quorvane::testing {

/// The number of the run-time error that a statement raises, 0 for none.
template <class Statement>
int RaisedError(Statement&& statement) {
    try {
        statement();
    } catch (const RuntimeError& error) {
        return error.Number;
    }
    return 0;
}

}  // namespace quorvane::testing
