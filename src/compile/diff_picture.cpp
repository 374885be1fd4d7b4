// SPDX-License-Identifier: MIT
#include "compile/diff_picture.h"

#include "diagram/placement.h"
#include "diagram/worksheet.h"

namespace quorvane {

namespace {

using OldBoxes = CheckedArray<Box, 0, MaxBoxes>;

// Red in the low byte.
constexpr std::int32_t AddedColor = 0x3CA028;
constexpr std::int32_t RemovedColor = 0x3030D0;
constexpr std::int32_t ChangedColor = 0xD06030;

/// Places a box of the old diagram on the worksheet, without its arrows. Gives back its number.
int PutBack(const Box& old) {
    const int number = NextBox++;
    Box& box = Boxes[number];
    box = old;
    for (auto& entry : box.BoxIn) entry = entry > 0 ? std::int16_t{0} : entry;
    for (auto& exit : box.BoxOut) exit = exit > 0 ? std::int16_t{0} : exit;
    box.BoxLineColor.Fill(RemovedColor);
    auto& controls = DocumentWindow(box.BoxDocument).box;
    controls.Load(number);
    auto& control = controls[number];
    control.Left = box.BoxLeft;
    control.Top = box.BoxTop;
    control.Visible = true;
    GiveIcon(control, BoxIconKey(number));
    return number;
}

/// Leads the arrows from one old box to another between the boxes that are there now.
void PutArrowsBack(const OldBoxes& older, int oldFrom, int oldTo,
                   const std::map<int, int>& numbers) {
    const auto from = numbers.find(oldFrom);
    const auto to = numbers.find(oldTo);
    if (from == numbers.end() || to == numbers.end()) return;
    for (int exit = 1; exit <= 5; ++exit) {
        for (int entry = 1; entry <= 3; ++entry) {
            auto& near = Boxes[from->second].BoxOut[exit];
            auto& far = Boxes[to->second].BoxIn[entry];
            if (older[oldFrom].BoxOut[exit] != oldTo || older[oldTo].BoxIn[entry] != oldFrom ||
                near != 0 || far != 0) {
                continue;
            }
            near = static_cast<std::int16_t>(to->second);
            far = static_cast<std::int16_t>(from->second);
        }
    }
}

}  // namespace

std::map<int, std::int32_t> TintDifferences(const OldBoxes& older, const DiagramDiff& diff) {
    std::map<int, std::int32_t> tints;
    auto numbers = diff.NewNumbers;
    for (const auto& difference : diff.Found) {
        if (difference.Kind != Change::Removed) {
            const bool isNew = difference.Kind == Change::Added;
            tints[difference.NewNumber] = isNew ? AddedColor : ChangedColor;
        } else if (NextBox <= MaxBoxes) {
            const int number = PutBack(older[difference.OldNumber]);
            numbers[difference.OldNumber] = number;
            tints[number] = RemovedColor;
        }
    }
    for (const auto& difference : diff.Found) {
        if (difference.Kind != Change::Removed) continue;
        const int removed = difference.OldNumber;
        for (const int feeder : older[removed].BoxIn) {
            PutArrowsBack(older, feeder, removed, numbers);
        }
        for (const int fed : older[removed].BoxOut) PutArrowsBack(older, removed, fed, numbers);
    }
    return tints;
}

}  // namespace quorvane
