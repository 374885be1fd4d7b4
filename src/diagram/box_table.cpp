// SPDX-License-Identifier: MIT
#include "diagram/box_table.h"

#include "platform/numbers.h"

namespace quorvane {

CheckedArray<Box, 0, MaxBoxes> Boxes;
std::int16_t NextBox = 1;
std::int16_t EditMode = 0;
std::int16_t ArrowSource = 0;

namespace {
std::uint32_t lastId = 0;
}  // namespace

const Box& BoxOrFree(int number) {
    static const Box free;
    return number >= 0 && number <= MaxBoxes ? Boxes[number] : free;
}

std::string BoxIconKey(int number) {
    const Box& box = Boxes[number];
    std::string key;
    if (box.BoxType == "Plot Output") {
        const auto end = box.BoxText.find(';');
        if (end != std::string::npos) key = box.BoxText.substr(0, end);
    } else if (box.BoxType == "Matrix Manipulation" && box.BoxText.starts_with("Diag")) {
        key = "Diag";
    } else {
        key = box.BoxType;
    }
    if (box.BoxText == "Subroutine") key = "Subroutine";
    return key;
}

std::string BoxName(int number) {
    std::string name = "box";
    AppendNumber(name, number);
    return name;
}

void FreeRecord(Box& box) {
    Box free;
    free.BoxLeft = box.BoxLeft;
    free.BoxTop = box.BoxTop;
    box = std::move(free);
}

void GiveBoxIds() {
    for (int i = 1; i < NextBox; ++i) {
        if (BoxOrFree(i).Id == 0 && i <= MaxBoxes) Boxes[i].Id = ++lastId;
    }
}

void ResetBoxTable() {
    Boxes.Fill(Box());
    lastId = 0;
    NextBox = 1;
    EditMode = 0;
    ArrowSource = 0;
}

}  // namespace quorvane
