// SPDX-License-Identifier: MIT
#include "workbench/quick_find.h"

#include <algorithm>

#include "catalogue/box_commands.h"
#include "diagram/box_table.h"
#include "platform/numbers.h"

namespace quorvane {

namespace {

bool IsWordLetter(char c) { return c != ' ' && c != '(' && c != '.' && c != ','; }

/// The words of a text in small letters.
std::vector<std::string> Words(std::string_view text) {
    std::vector<std::string> words;
    bool inside = false;
    for (const char c : LowerCase(std::string(text))) {
        if (!IsWordLetter(c)) {
            inside = false;
            continue;
        }
        if (!inside) words.emplace_back();
        inside = true;
        words.back() += c;
    }
    return words;
}

bool Fits(const std::vector<std::string>& wanted, const std::string& text) {
    const auto words = Words(text);
    return std::all_of(wanted.begin(), wanted.end(), [&](const auto& begin) {
        return std::any_of(words.begin(), words.end(),
                           [&](const auto& word) { return word.starts_with(begin); });
    });
}

/// A menu's caption without the mark of its letter and the dots that announce a dialog.
std::string PlainCaption(std::string_view caption) {
    std::string plain(caption);
    std::erase(plain, '&');
    while (!plain.empty() && (plain.back() == '.' || plain.back() == ' ')) plain.pop_back();
    return plain;
}

}  // namespace

std::vector<QuickRow> FindQuick(std::string_view text) {
    std::vector<QuickRow> found;
    const auto wanted = Words(text);
    if (wanted.empty()) return found;
    for (const auto& row : boxCommands) {
        auto caption = PlainCaption(row.Caption);
        if (MakesBox(row) && Fits(wanted, caption + " " + std::string(row.BoxType))) {
            found.push_back({std::move(caption), row.Control});
        }
    }
    for (int i = 1; i < NextBox; ++i) {
        auto line = BoxName(i) + "  " + Boxes[i].BoxType + "  " + Boxes[i].BoxText;
        if (Fits(wanted, line)) found.push_back({std::move(line), "", i});
    }
    return found;
}

}  // namespace quorvane
