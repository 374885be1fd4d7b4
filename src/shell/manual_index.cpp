// SPDX-License-Identifier: MIT
#include "shell/manual_index.h"

#include <array>
#include <cstdio>

#include "catalogue/box_commands.h"
#include "catalogue/icon_table.h"

namespace quorvane {

namespace {

/// A caption without the "&" of its key and the dots that announce a dialog.
std::string Plain(std::string_view caption) {
    std::string plain(caption);
    std::erase(plain, '&');
    plain.erase(plain.find_last_not_of(". ") + 1);
    return plain;
}

int CellOf(const BoxCommand& command) {
    if (command.Cell != 0) return command.Cell;
    return IconCell(command.BoxText ? command.BoxText : "Special Matrix");
}

std::string Row(const BoxCommand& command, const std::string& menus) {
    char picture[80];
    std::snprintf(picture, sizeof picture,
                  "<img src=\":/icons/%03d.svg\" width=\"32\" height=\"32\">", CellOf(command));
    return std::string("<tr><td align=\"center\">") + picture + "</td><td>" + menus +
           "<a href=\"#" + std::string(command.Page) + "\">" + Plain(command.Caption) +
           "</a></td></tr>\n";
}

}  // namespace

std::string ManualIndex() {
    constexpr int deepest = 4;
    std::array<std::string, deepest> submenus;
    std::string rows;
    for (const auto& command : boxCommands) {
        const auto depth = static_cast<std::size_t>(command.Depth);
        if (!MakesBox(command)) {
            submenus[depth] = Plain(command.Caption) + ", ";
            continue;
        }
        std::string menus;
        for (std::size_t above = 1; above < depth; ++above) menus += submenus[above];
        rows += Row(command, menus);
    }
    return rows;
}

}  // namespace quorvane
