// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "platform/form.h"

namespace quorvane {

/// The dialogs whose controls are bound by their tables.
const std::vector<Form>& Forms();

/// The form of this name, nullptr when there is none.
const Form* FindForm(std::string_view name);

}  // namespace quorvane
