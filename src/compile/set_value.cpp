// SPDX-License-Identifier: MIT
#include "compile/set_value.h"

#include "diagram/box_table.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

bool TakesValue(const Box& box) {
    return box.BoxType == "Constant Input" || box.BoxType == "Keyboard Input";
}

std::string BoxesWithValue() {
    std::string names;
    for (int i = 1; i < NextBox; ++i) {
        if (!TakesValue(Boxes[i])) continue;
        names += (names.empty() ? "" : ", ") + BoxName(i) + " (" + Boxes[i].BoxType + ")";
    }
    return names.empty() ? "No box of this diagram takes a value" : "Boxes that take one: " + names;
}

}  // namespace

std::string SetValue(const std::string& assignment) {
    const auto equals = assignment.find('=');
    if (equals == std::string::npos || equals + 1 == assignment.size()) {
        return "A value is given as in box1=0.5. " + BoxesWithValue();
    }
    const auto name = assignment.substr(0, equals);
    for (int i = 1; i < NextBox; ++i) {
        if (name != BoxName(i)) continue;
        if (!TakesValue(Boxes[i])) {
            return name + " (" + Boxes[i].BoxType + ") takes no value. " + BoxesWithValue();
        }
        Boxes[i].BoxText = OneLine(assignment.substr(equals + 1));
        return "";
    }
    return "There is no " + name + ". " + BoxesWithValue();
}

}  // namespace quorvane
