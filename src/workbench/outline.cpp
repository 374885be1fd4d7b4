// SPDX-License-Identifier: MIT
#include "workbench/outline.h"

#include "diagram/box_table.h"
#include "diagram/selection.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "workbench/history.h"

namespace quorvane {

namespace {

std::string OneLine(const std::string& text) {
    std::string line;
    for (const char c : text) {
        if (c == '\r') continue;
        line += c == '\n' ? ' ' : c;
    }
    return line;
}

template <class Slots>
std::string Peers(const Slots& slots) {
    std::string names;
    for (const auto peer : slots) {
        if (peer > 0) names += (names.empty() ? "" : ", ") + BoxName(peer);
    }
    return names;
}

OutlineRow RowOf(int number) {
    const Box& box = Boxes[number];
    return {box.BoxDocument,      number,           BoxName(number),  box.BoxType,
            OneLine(box.BoxText), Peers(box.BoxIn), Peers(box.BoxOut)};
}

bool Holds(const OutlineRow& row, const std::string& filter) {
    const auto cells =
        row.Name + '\n' + row.Type + '\n' + row.Text + '\n' + row.From + '\n' + row.To;
    return LowerCase(cells).find(filter) != std::string::npos;
}

}  // namespace

std::vector<OutlineRow> Outline(std::string_view filter) {
    const auto wanted = LowerCase(filter);
    std::vector<OutlineRow> rows;
    ForEachOpenDocument([&](const Worksheet& sheet, int document) {
        rows.push_back({.Document = document, .Name = std::string(FileNameOf(sheet.Caption))});
        const auto first = rows.size();
        for (int i = 1; i < NextBox; ++i) {
            if (Boxes[i].BoxDocument != document) continue;
            auto row = RowOf(i);
            if (Holds(row, wanted)) rows.push_back(std::move(row));
        }
        if (!wanted.empty() && rows.size() == first) rows.pop_back();
    });
    return rows;
}

void DeleteBox_Key(int number) {
    GiveUp();
    const Box& box = BoxOrFree(number);
    if (box.BoxDocument == 0) return;
    auto& sheet = DocumentWindow(box.BoxDocument);
    ClearSelectionRect(sheet.Tag);
    SelectedBoxes.Resize(0);
    SelectedBoxes.Append(ToInt16(number));
    mnuEditClear_Click(sheet);
}

}  // namespace quorvane
