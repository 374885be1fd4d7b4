// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace quorvane {

/// The menus of one bar, made once from its table.
struct MenuSet {
    QList<QMenu*> Menus;
    QList<QAction*> Actions;  ///< One for each row of the table, in its order
};

/// Makes the menus of the frame, and those of a worksheet, whose commands work on the active one.
MenuSet MakeFrameMenus(QWidget* parent);
MenuSet MakeDocumentMenus(QWidget* parent);

/// Shows captions, check marks and recent files as the records say.
void RefreshFrameMenus(const MenuSet& set);
void RefreshDocumentMenus(const MenuSet& set, int document);

/// The document whose worksheet is active, 0 when none is. The frame sets it.
extern int activeDocument;
/// The document for which a menu has popped up, 0 while none has.
extern int poppedDocument;

}  // namespace quorvane
