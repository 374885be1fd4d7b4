// SPDX-License-Identifier: MIT
#include "diagram/box_table.h"

#include "platform/numbers.h"

namespace quorvane {

CheckedArray<Box, 0, MaxBoxes> Boxes;
std::int16_t NextBox = 1;
std::int16_t EditMode = 0;
std::int16_t ArrowSource = 0;

namespace {

using namespace std::string_view_literals;

std::uint32_t lastId = 0;
const Box freeRecord;

}  // namespace

const Box& BoxOrFree(int number) {
    return number >= 0 && number <= MaxBoxes ? Boxes[number] : freeRecord;
}

std::string_view BoxIconKey(int number) {
    const Box& box = Boxes[number];
    const std::string_view type = box.BoxType, text = box.BoxText;
    if (text == "Subroutine"sv) return text;
    if (type == "Plot Output"sv) {
        const auto end = text.find(';');
        return end == std::string_view::npos ? std::string_view() : text.substr(0, end);
    }
    if (type == "Matrix Manipulation"sv && text.starts_with("Diag")) return "Diag";
    return type;
}

std::string BoxName(int number) {
    std::string name = "box";
    AppendNumber(name, number);
    return name;
}

void FreeRecord(Box& box) {
    box.BoxType.clear();
    box.BoxMark.clear();
    box.BoxText.clear();
    box.BoxDocument = 0;
    box.BoxIn.Fill(0);
    box.BoxOut.Fill(0);
    box.BoxLineColor.Fill(0);
    box.Id = 0;
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
