// SPDX-License-Identifier: MIT
#include "qt/dialogs/list_box_model.h"

#include "platform/numbers.h"
#include "platform/paths.h"
#include "qt/desktop/screen_units.h"

namespace quorvane {

void ListBoxModel::Show(const std::vector<std::string>& entries) {
    if (entries == entries_) return;
    beginResetModel();
    entries_ = entries;
    endResetModel();
}

int ListBoxModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

QVariant ListBoxModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    return ToScreen(entries_.at(static_cast<std::size_t>(index.row())));
}

QModelIndexList ListBoxModel::match(const QModelIndex& start, int, const QVariant& value, int,
                                    Qt::MatchFlags) const {
    const auto typed = LowerCase(ToCore(value.toString()));
    const int count = rowCount();
    for (int i = 0; i < count; ++i) {
        const int row = (start.row() + i) % count;
        const auto entry = LowerCase(entries_[static_cast<std::size_t>(row)]);
        if (entry.starts_with(typed) || FileNameOf(entry).starts_with(typed)) return {index(row)};
    }
    return {};
}

}  // namespace quorvane
