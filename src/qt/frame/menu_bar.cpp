// SPDX-License-Identifier: MIT
#include "qt/frame/menu_bar.h"

#include <QMenu>
#include <utility>

#include "catalogue/box_commands.h"
#include "catalogue/icon_table.h"
#include "catalogue/option_lists.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/icon_strip.h"
#include "qt/desktop/screen_units.h"
#include "shell/menus.h"

namespace quorvane {

int activeDocument = 0;
int poppedDocument = 0;

namespace {

template <class Row>
QString ActionName(const Row& row) {
    const auto name = ToScreen(row.Control);
    return row.Index < 0 ? name : QString("%1(%2)").arg(name).arg(row.Index);
}

/// Makes menus from a table of rows by their depth; `choose` runs an entry's command.
template <class Row, class Enabled, class Choose>
MenuSet MakeMenus(const std::vector<Row>& rows, QWidget* parent, Enabled enabled, Choose choose) {
    MenuSet set;
    QList<QMenu*> open;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Row& row = rows[i];
        const bool isMenu =
            row.Depth == 0 || (i + 1 < rows.size() && rows[i + 1].Depth > row.Depth);
        open.resize(row.Depth);
        QAction* action = nullptr;
        if (isMenu) {
            auto* menu = new QMenu(ToScreen(row.Caption), parent);
            menu->setObjectName(ToScreen(row.Control) + "Menu");
            action = menu->menuAction();
            if (row.Depth == 0) {
                set.Menus.append(menu);
            } else {
                open.last()->addMenu(menu);
            }
            open.append(menu);
        } else if (row.Caption == "-") {
            action = open.last()->addSeparator();
        } else {
            action = open.last()->addAction(ToScreen(row.Caption));
            action->setShortcut(QKeySequence(ToScreen(row.Shortcut)));
            action->setEnabled(enabled(row));
            QObject::connect(action, &QAction::triggered, parent,
                             [&row, choose] { Dispatch([&] { choose(row); }); });
        }
        action->setObjectName(ActionName(row));
        set.Actions.append(action);
    }
    return set;
}

/// A command whose dialog decides on the picture shows that of its first option.
int PictureOf(const BoxCommand& command) {
    const auto* list = FindOptionList(command.Dialog);
    if (command.Cell > 0 || !list) return command.Cell;
    const auto& first = list->Options.front();
    return IconCell(first.BoxType.empty() ? first.BoxText : first.BoxType);
}

/// Gives an entry its picture when its menu is opened first, since drawing all takes a while.
void ShowPicture(QAction* action, int picture) {
    auto* menu = qobject_cast<QMenu*>(action->parent());
    if (!menu) menu = qobject_cast<QMenu*>(action->associatedObjects().value(0));
    if (!menu || picture <= 0) return;
    QObject::connect(menu, &QMenu::aboutToShow, action, [action, picture] {
        if (!action->icon().isNull()) return;
        constexpr int pixels = 18;
        QIcon icon;
        for (const qreal ratio : {1, 2}) icon.addPixmap(CellOnPaper(picture, pixels, ratio));
        action->setIcon(icon);
        action->setIconVisibleInMenu(true);
    });
}

template <class Rows, class Records>
void RefreshMenus(const MenuSet& set, const Rows& rows, const Records& records) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto* record = MenuRecord(records, rows[i].Control, rows[i].Index);
        if (!record) continue;
        auto* action = set.Actions[static_cast<int>(i)];
        // A record's caption is a file's name, in which "&" marks no letter.
        if (!record->Caption.empty()) {
            action->setText(ToScreen(record->Caption).replace("&", "&&"));
        }
        action->setCheckable(record->Checked);
        action->setChecked(record->Checked);
        action->setVisible(record->Visible);
    }
}

}  // namespace

MenuSet MakeFrameMenus(QWidget* parent) {
    return MakeMenus(
        frameMenu, parent, [](const FrameMenuRow& row) { return row.Command != nullptr; },
        [](const FrameMenuRow& row) { row.Command(); });
}

MenuSet MakeDocumentMenus(QWidget* parent) {
    auto set = MakeMenus(
        documentMenu, parent, [](const DocumentMenuRow& row) { return HasCommand(row); },
        [](const DocumentMenuRow& row) {
            const int popped = std::exchange(poppedDocument, 0);
            const int document = popped > 0 ? popped : activeDocument;
            if (document > 0) RunMenuCommand(row, DocumentWindow(document));
        });
    for (int i = 0; i < set.Actions.size(); ++i) {
        const auto* command = FindBoxCommand(documentMenu[static_cast<std::size_t>(i)].Control);
        if (command) ShowPicture(set.Actions[i], PictureOf(*command));
    }
    return set;
}

void RefreshFrameMenus(const MenuSet& set) { RefreshMenus(set, frameMenu, frmMDI); }

void RefreshDocumentMenus(const MenuSet& set, int document) {
    RefreshMenus(set, documentMenu, DocumentWindow(document));
}

}  // namespace quorvane
