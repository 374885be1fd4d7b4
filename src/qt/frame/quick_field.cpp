// SPDX-License-Identifier: MIT
#include "qt/frame/quick_field.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QStringListModel>

#include "commands/run_command.h"
#include "qt/desktop/dispatch.h"
#include "qt/desktop/screen_units.h"
#include "qt/frame/frame_view.h"
#include "workbench/history.h"

namespace quorvane {

QuickField::QuickField(QWidget* parent) : QLineEdit(parent) {
    setObjectName("quick");
    setAccessibleName("Find a command or a box");
    setPlaceholderText("Find a command or a box");
    setToolTip("Runs a command of the menu \"Functions\", or shows a box");
    setClearButtonEnabled(true);
    // Some dark themes leave this colour at black.
    auto colors = palette();
    auto faint = colors.color(QPalette::Text);
    constexpr int alpha = 150;
    faint.setAlpha(alpha);
    colors.setColor(QPalette::PlaceholderText, faint);
    setPalette(colors);
    list_ = new QStringListModel(this);
    completer_ = new QCompleter(list_, this);
    completer_->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    completer_->setMaxVisibleItems(12);
    completer_->setWidget(this);
    connect(this, &QLineEdit::textEdited, this, &QuickField::Find);
    connect(this, &QLineEdit::returnPressed, this, [this] { Choose(0); });
    connect(completer_, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            [this](const QModelIndex& index) { Choose(index.row()); });
}

void QuickField::Find(const QString& text) {
    rows_ = FindQuick(ToCore(text));
    QStringList lines;
    for (const auto& row : rows_) lines.append(ToScreen(row.Text).simplified());
    list_->setStringList(lines);
    if (rows_.empty()) {
        completer_->popup()->hide();
    } else {
        completer_->complete();
    }
}

/// A command may show a dialog, which waits until the list has gone.
void QuickField::Choose(int row) {
    if (row < 0 || row >= static_cast<int>(rows_.size())) return;
    const auto chosen = rows_[static_cast<std::size_t>(row)];
    rows_.clear();
    completer_->popup()->hide();
    clear();
    QMetaObject::invokeMethod(
        this,
        [chosen] {
            if (chosen.Box > 0) return frameView->ShowBox(chosen.Box);
            frameView->FocusWorksheet(activeDocument);
            Dispatch([&] {
                GiveUp();
                if (activeDocument > 0)
                    RunBoxCommand(DocumentWindow(activeDocument), chosen.Control);
            });
        },
        Qt::QueuedConnection);
}

}  // namespace quorvane
