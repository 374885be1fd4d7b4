// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "diagram/box_table.h"
#include "diagram/worksheet.h"
#include "files/document_file.h"
#include "shell/application.h"
#include "support/scripted_desktop.h"
#include "support/table_file.h"

namespace quorvane::testing {

/// A box of a diagram under test. Slots that are not named are locked entries and empty exits.
struct TestBox {
    std::string Type;
    std::string Text;
    std::vector<int> In = {};
    std::vector<int> Out = {};
};

/// A program at its start with one empty document, number 1, on a scripted desktop.
class DiagramTest : public ::testing::Test {
protected:
    void SetUp() override {
        ResetApplication();
        desktop = &screen;
        matlabLink = screen.Link();
        NewDocument();
    }
    void TearDown() override {
        ResetApplication();
        desktop = nullptr;
    }
    /// Begins anew, with a desktop that remembers nothing: for each row of a table.
    void Restart() {
        screen = ScriptedDesktop();
        SetUp();
    }

    static Worksheet& Sheet(int document = 1) { return *Documents[document]; }

    /// Adds boxes behind those of the table, as records without a picture, and returns the first
    /// one's number.
    static int Draw(std::initializer_list<TestBox> boxes, int document = 1) {
        const int first = NextBox;
        for (const auto& drawn : boxes) {
            Box& box = Boxes[NextBox];
            box = Box();
            box.BoxType = drawn.Type;
            box.BoxText = drawn.Text;
            box.BoxDocument = static_cast<std::int16_t>(document);
            box.BoxIn.Fill(LockedSlot);
            int slot = 1;
            for (const int entry : drawn.In) box.BoxIn[slot++] = static_cast<std::int16_t>(entry);
            slot = 1;
            for (const int exit : drawn.Out) box.BoxOut[slot++] = static_cast<std::int16_t>(exit);
            ++NextBox;
        }
        return first;
    }

    /// The same for a box of a table, "type~text~entries~exits".
    static void DrawBox(const std::string& cell, int document = 1) {
        auto box = Split(cell, '~');
        box.resize(4);
        Draw({{box[0], Crlf(box[1]), Numbers(box[2]), Numbers(box[3])}}, document);
    }

    /// The messages since the last time, each with its icon, one of "-i?!x", in front; parted by
    /// "|".
    std::string TakeTold() {
        std::string told;
        for (const auto& message : screen.Messages) {
            EXPECT_EQ(message.Title, "Quorvane");
            told += (told.empty() ? "" : "|");
            told += "-i?!x"[static_cast<int>(message.Picture)] + message.Text;
        }
        screen.Messages.clear();
        return told;
    }

    ScriptedDesktop screen;
};

}  // namespace quorvane::testing
