// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <string>
#include <vector>

namespace quorvane {

/// The entries of a list box. They become text of the screen one by one, as they are looked at, so
/// that a list of many thousands is there at once.
class ListBoxModel : public QAbstractListModel {
public:
    using QAbstractListModel::QAbstractListModel;
    void Show(const std::vector<std::string>& entries);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// What is typed finds an entry by its beginning, that of a path by the file name, too.
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override;

private:
    std::vector<std::string> entries_;
};

}  // namespace quorvane
