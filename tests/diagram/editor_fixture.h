// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "diagram/placement.h"
#include "diagram/selection.h"
#include "diagram/worksheet_events.h"
#include "support/diagram_fixture.h"

namespace quorvane::testing {

/// A program with one empty worksheet and the user's hand on the mouse.
class EditorTest : public DiagramTest {
protected:
    static Worksheet& Sheet(int document = 1) { return *Documents[document]; }

    static void Press(double X, double Y, int document = 1) {
        main_MouseDown(Sheet(document), LeftButton, 0, X, Y);
    }

    /// Arms a box of this type and places it; returns its number.
    static int Place(const std::string& type, double X, double Y, int document = 1) {
        EditMode = 1;
        AddBox(Sheet(document));
        Boxes[NextBox - 1].BoxType = type;
        Press(X, Y, document);
        return NextBox - 1;
    }

    /// An arrow by a click on each box, between boxes of one document.
    static void Join(int source, int destination, int document = 1) {
        EditMode = 3;
        box_Click(Sheet(document), source);
        box_Click(Sheet(document), destination);
    }

    /// Draws the selection rectangle from corner to corner.
    static void Select(double x1, double y1, double x2, double y2, int document = 1) {
        auto& sheet = Sheet(document);
        main_MouseDown(sheet, LeftButton, 0, x1, y1);
        main_MouseMove(sheet, LeftButton, 0, x1, y1);
        main_MouseMove(sheet, LeftButton, 0, x2, y2);
        main_MouseUp(sheet, LeftButton, 0, x2, y2);
    }

    static void SelectNumbers(std::initializer_list<std::int16_t> numbers) {
        SelectedBoxes.Resize(0);
        for (const auto number : numbers) SelectedBoxes.Append(number);
    }

    static std::vector<int> Selected() {
        std::vector<int> numbers;
        for (int i = 1; i <= SelectedBoxes.UpperBound(); ++i) numbers.push_back(SelectedBoxes[i]);
        return numbers;
    }

    static std::vector<int> Entries(int number) { return Slots(Boxes[number].BoxIn); }
    static std::vector<int> Exits(int number) { return Slots(Boxes[number].BoxOut); }

    /// Left and top of a box's control.
    static std::pair<double, double> Corner(int number, int document = 1) {
        const auto& control = Sheet(document).box[number];
        return {control.Left, control.Top};
    }
    /// Left and top of a box's record.
    static std::pair<int, int> SheetCorner(int number) {
        return {Boxes[number].BoxLeft, Boxes[number].BoxTop};
    }

private:
    template <class Array>
    static std::vector<int> Slots(const Array& slots) {
        return {slots.begin(), slots.end()};
    }
};

using Numbers = std::vector<int>;
using Point = std::pair<double, double>;
using WholePoint = std::pair<int, int>;

}  // namespace quorvane::testing
