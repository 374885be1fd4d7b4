// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <string>
#include <vector>

namespace quorvane {

/// The entries of a list box. Each is converted when it is shown, so that a list of many thousands
/// opens at once.
class ListBoxModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;
    void Show(const std::vector<std::string>& entries);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// Typing finds an entry by its beginning, a path by that of its file name too.
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override;

private:
    std::vector<std::string> entries_;
};

}  // namespace quorvane
