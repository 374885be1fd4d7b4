// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "diagram/placement.h"
#include "diagram/selection.h"
#include "diagram/worksheet_events.h"
#include "support/diagram_fixture.h"

namespace quorvane::testing {

using Numbers = std::vector<int>;
using Point = std::pair<double, double>;

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

    static void SelectNumbers(const Numbers& numbers) {
        SelectedBoxes.Resize(0);
        for (const auto number : numbers) SelectedBoxes.Append(static_cast<std::int16_t>(number));
    }

    static Numbers Selected() {
        Numbers numbers;
        for (int i = 1; i <= SelectedBoxes.UpperBound(); ++i) numbers.push_back(SelectedBoxes[i]);
        return numbers;
    }

    /// Left and top of a box's control.
    static Point Corner(int number, int document = 1) {
        const auto& control = Sheet(document).box[number];
        return {control.Left, control.Top};
    }
};

}  // namespace quorvane::testing
