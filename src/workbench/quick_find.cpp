// SPDX-License-Identifier: MIT
#include "workbench/quick_find.h"

#include <algorithm>
#include <optional>

#include "catalogue/box_commands.h"
#include "catalogue/icon_table.h"
#include "commands/option_list_dialog.h"
#include "commands/run_command.h"
#include "diagram/box_table.h"
#include "diagram/preferences.h"
#include "files/document_file.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "workbench/examples.h"
#include "workbench/history.h"

namespace quorvane {

QuickMenus quickMenus;

namespace {

using Words = std::vector<std::string>;

bool IsWordLetter(char c) {
    constexpr std::string_view separators = " \t\r\n(),.;:/\"";
    return separators.find(c) == std::string_view::npos;
}

/// The words of a text in small letters.
Words WordsOf(std::string_view text) {
    Words words;
    bool inside = false;
    for (const char c : LowerCase(text)) {
        const bool letter = IsWordLetter(c);
        if (letter && !inside) words.emplace_back();
        if (letter) words.back() += c;
        inside = letter;
    }
    return words;
}

/// What is looked for.
struct Search {
    std::string Text;
    Words Wanted;
    bool FindsAll = false;
};

bool BeginAll(const Words& wanted, const Words& words) {
    return std::all_of(wanted.begin(), wanted.end(), [&](const auto& begin) {
        return std::any_of(words.begin(), words.end(),
                           [&](const auto& word) { return word.starts_with(begin); });
    });
}

std::string FirstLetters(const Words& words) {
    std::string letters;
    for (const auto& word : words) letters += word[0];
    return letters;
}

/// How well a row fits, 0 best; nothing when it doesn't. Its key counts less than its text.
std::optional<int> Rank(const Search& search, const std::string& text, const std::string& key) {
    if (search.FindsAll) return 0;
    const auto lower = LowerCase(text);
    const auto words = WordsOf(text);
    if (lower == search.Text || LowerCase(key) == search.Text) return 0;
    if (lower.starts_with(search.Text)) return 1;
    if (BeginAll(search.Wanted, words)) return 2;
    auto all = words;
    for (auto& word : WordsOf(key)) all.push_back(std::move(word));
    if (BeginAll(search.Wanted, all)) return 3;
    if (search.Text.size() > 1 && FirstLetters(words).starts_with(search.Text)) return 4;
    return {};
}

struct Hit {
    int Rank;
    QuickRow Row;

    /// Of two that begin with the text, the one with the shorter first word fits better.
    std::size_t FirstWord() const {
        return Rank == 1 && Row.Box == 0 ? std::min(Row.Text.find(' '), Row.Text.size()) : 0;
    }
};
using Hits = std::vector<Hit>;

bool IsBetter(const Hit& one, const Hit& other) {
    return one.Rank != other.Rank ? one.Rank < other.Rank : one.FirstWord() < other.FirstWord();
}

void Add(Hits& hits, const Search& search, const std::string& key, QuickRow row) {
    if (const auto rank = Rank(search, row.Text, key)) hits.push_back({*rank, std::move(row)});
}

void AddCommands(Hits& hits, const Search& search) {
    std::string menu = "Functions";
    for (const auto& row : boxCommands) {
        if (!MakesBox(row)) {
            if (row.Caption != "-") menu = PlainCaption(row.Caption);
            continue;
        }
        Add(hits, search, std::string(row.BoxType),
            {.Text = PlainCaption(row.Caption),
             .Where = row.Depth == 1 ? "Functions" : menu,
             .Picture = row.Cell,
             .Control = row.Control});
    }
}

void AddOptions(Hits& hits, const Search& search) {
    for (const auto& list : optionLists) {
        const auto* command = FindCommandOfDialog(list.Dialog);
        for (int i = 0; command && i < static_cast<int>(list.Options.size()); ++i) {
            const auto& option = list.Options[static_cast<std::size_t>(i)];
            if (OptionName(list, option).empty()) continue;
            const std::string text = option.BoxText ? option.BoxText : "";
            std::string key(option.BoxType);
            const auto cell = IconCell(key.empty() ? text : key);
            key += ' ';
            key += text;
            Add(hits, search, key,
                {.Text = std::string(option.Caption),
                 .Where = std::string(list.Caption),
                 .Picture = cell,
                 .Control = command->Control,
                 .List = &list,
                 .Option = i});
        }
    }
}

void AddGraphs(Hits& hits, const Search& search) {
    for (const auto& type : graphTypes) {
        Add(hits, search, std::string(type.Command),
            {.Text = std::string(type.Name),
             .Where = "Plot",
             .Picture = IconCell(type.Icon),
             .Control = "mnuOutputPlot",
             .Graph = &type});
    }
}

void AddMenus(Hits& hits, const Search& search) {
    for (auto& row : quickMenus.Entries()) Add(hits, search, "", std::move(row));
}

void AddBoxes(Hits& hits, const Search& search) {
    ForEachOpenDocument([&](const Worksheet& sheet, int document) {
        const std::string where(FileNameOf(sheet.Caption));
        for (int i = 1; i < NextBox; ++i) {
            const Box& box = Boxes[i];
            if (box.BoxDocument != document) continue;
            auto text = BoxName(i) + "  " + box.BoxType;
            if (!box.BoxText.empty()) text += "  " + box.BoxText;
            const int picture = sheet.box.Has(i) ? sheet.box[i].Picture : 0;
            Add(hits, search, BoxName(i),
                {.Text = std::move(text), .Where = where, .Picture = picture, .Box = i});
        }
    });
}

void AddExamples(Hits& hits, const Search& search) {
    for (auto& example : Examples()) {
        Add(hits, search, "",
            {.Text = std::move(example.Name), .Where = "example", .File = std::move(example.File)});
    }
}

}  // namespace

std::vector<QuickRow> FindQuick(std::string_view text, bool boxesOnly) {
    const Search search = {LowerCase(text), WordsOf(text), boxesOnly && WordsOf(text).empty()};
    Hits hits;
    if (search.Wanted.empty() && !search.FindsAll) return {};
    if (!boxesOnly) {
        AddCommands(hits, search);
        AddOptions(hits, search);
        AddGraphs(hits, search);
        AddMenus(hits, search);
    }
    AddBoxes(hits, search);
    if (!boxesOnly) AddExamples(hits, search);
    std::stable_sort(hits.begin(), hits.end(), IsBetter);
    std::vector<QuickRow> rows;
    for (auto& hit : hits) rows.push_back(std::move(hit.Row));
    return rows;
}

void ChooseQuick(const QuickRow& row, Worksheet& sheet) {
    if (!row.File.empty()) return LoadDocumentFile(row.File);
    if (row.Box > 0) return;
    if (quickMenus.Run(row.Control, sheet)) return;
    GiveUp();
    if (row.List) pickedBeforehand = &row.List->Options[static_cast<std::size_t>(row.Option)];
    if (row.Graph) typeBeforehand = row.Graph;
    RunBoxCommand(sheet, row.Control);
    pickedBeforehand = nullptr;
    typeBeforehand = nullptr;
}

}  // namespace quorvane
