// SPDX-License-Identifier: MIT
#include "qt/dialogs/option_list_layout.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "qt/desktop/screen_units.h"
#include "workbench/option_lines.h"

namespace quorvane {

namespace {

constexpr int Margin = 14;
constexpr int Gap = 12;

/// The further field: a check box, or a text with its caption, which is the option's own when it
/// stands beside one.
QLayout* FieldRow(const ListField& field, QWidget* option) {
    auto* row = new QHBoxLayout;
    const auto name = ToScreen(field.Control);
    if (field.What == ListField::Kind::Check) {
        auto* check = new QCheckBox(ToScreen(field.Caption));
        check->setObjectName(name);
        row->addWidget(check);
        return row;
    }
    auto* edit = new QLineEdit;
    edit->setObjectName(name);
    if (option) {
        row->addWidget(option);
        edit->setAccessibleName(static_cast<QRadioButton*>(option)->text());
    } else {
        auto* label = new QLabel(ToScreen(field.Caption));
        label->setBuddy(edit);
        edit->setAccessibleName(ToScreen(field.Caption));
        row->addWidget(label);
    }
    row->addWidget(edit);
    return row;
}

}  // namespace

void SetUpOptionList(const OptionList& list, QWidget* window) {
    auto* rows = new QVBoxLayout(window);
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->setSpacing(Gap);
    auto* frame = new QGroupBox(ToScreen(list.FrameCaption));
    auto* options = new QVBoxLayout(frame);
    bool fieldPlaced = list.Field.What == ListField::Kind::None;
    for (const auto& option : list.Options) {
        const auto name = OptionName(list, option);
        if (name.empty()) continue;
        auto* button = new QRadioButton(ToScreen(option.Caption).replace("&", "&&"));
        button->setObjectName(QString::fromStdString(name));
        const bool hasField = option.Index != NoIndex && option.Index == list.Field.Beside;
        if (hasField) {
            options->addLayout(FieldRow(list.Field, button));
            fieldPlaced = true;
        } else {
            options->addWidget(button);
        }
    }
    rows->addWidget(frame);
    if (!fieldPlaced) rows->addLayout(FieldRow(list.Field, nullptr));
    auto* ok = new QPushButton("OK");
    ok->setObjectName("cmdOK");
    auto* last = new QHBoxLayout;
    last->addStretch();
    last->addWidget(ok);
    rows->addLayout(last);
}

void ShowOptionTips(const OptionList& list, const QWidget* window) {
    for (const auto& option : list.Options) {
        auto* button =
            window->findChild<QWidget*>(QString::fromStdString(OptionName(list, option)));
        if (button) button->setToolTip(ToScreen(TipOfOption(list, option)).replace("\r\n", "\n"));
    }
}

}  // namespace quorvane
