// SPDX-License-Identifier: MIT
#include "workbench/whole_boxes.h"

#include <array>

#include "diagram/box_table.h"
#include "files/document_file.h"
#include "platform/file_table.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"

namespace quorvane {

namespace {

using Lines = std::array<std::string, 3>;  ///< Of one box: type and text, slots, place

constexpr std::size_t SlotFields = 13;
constexpr std::size_t PlaceFields = 2;

/// Fields 0 to 2 of the line of slots are entries, 3, 5, ... exits, and 4, 6, ... their colours.
bool IsColor(std::size_t field) { return field > 3 && field % 2 == 0; }

std::vector<std::string> FieldsOf(std::string_view line) {
    std::vector<std::string> fields;
    for (;;) {
        const auto end = FindFieldEnd(line);
        fields.emplace_back(line.substr(0, end - 1));
        if (end > line.size()) return fields;
        line.remove_prefix(end);
    }
}

std::string Joined(const std::vector<std::string>& fields, std::size_t count) {
    std::string line;
    for (std::size_t i = 0; i < count; ++i) line += (i > 0 ? "~" : "") + fields[i];
    return line;
}

/// False for a box that is not whole. Fields that the loader wouldn't read are taken off.
bool TakeWhole(Lines& box) {
    const auto slots = FieldsOf(box[1]);
    const auto place = FieldsOf(box[2]);
    const bool isComplete = FindFieldEnd(box[0]) <= box[0].size() && slots.size() >= SlotFields &&
                            place.size() > PlaceFields;
    if (!isComplete) return false;
    box[1] = Joined(slots, SlotFields);
    box[2] = Joined(place, PlaceFields) + "~";
    return Attempt([&] {
        for (std::size_t i = 0; i < SlotFields; ++i) {
            if (IsColor(i)) {
                TextToInt32(slots[i]);
            } else {
                TextToInt16(slots[i]);
            }
        }
        TextToInt32(place[0]);
        TextToInt32(place[1]);
    });
}

std::vector<Lines> ReadBoxes(std::string_view bytes) {
    std::vector<Lines> boxes;
    Lines box;
    const int file = FreeFile();
    OpenText(file, bytes);
    const auto read = [&] {
        for (auto& line : box) line = LineInput(file);
    };
    const bool begins = Attempt([&] { TextToInt16(LineInput(file)); });
    while (begins && boxes.size() < MaxBoxes && Attempt(read) && TakeWhole(box))
        boxes.push_back(box);
    CloseFile(file);
    return boxes;
}

void TakeOffLostArrows(std::string& slots, int count) {
    auto fields = FieldsOf(slots);
    for (std::size_t i = 0; i < SlotFields; ++i) {
        if (!IsColor(i) && TextToInt16(fields[i]) > count) fields[i] = "0";
    }
    slots = Joined(fields, SlotFields);
}

std::string FileOf(const std::vector<Lines>& boxes) {
    std::string file = NumberText(static_cast<std::int64_t>(boxes.size())) + "\r\n";
    for (const auto& box : boxes) {
        for (const auto& line : box) file += line + "\r\n";
    }
    return file + "\r\n";
}

}  // namespace

WholeBoxes ReadWholeBoxes(std::string_view bytes) {
    auto boxes = ReadBoxes(bytes);
    WholeBoxes whole;
    for (const auto& box : boxes) whole.Texts.push_back(box[0].substr(FindFieldEnd(box[0])));
    whole.File = FileOf(boxes);
    whole.IsIntact = whole.File == bytes;
    if (whole.IsIntact) return whole;
    for (auto& box : boxes) TakeOffLostArrows(box[1], whole.Count());
    whole.File = FileOf(boxes);
    return whole;
}

}  // namespace quorvane
