// SPDX-License-Identifier: GPL-2.0-or-later
// The test panel's table: three kinds of paper with a check mark each, one of them with an icon.
#pragma once

#include <QAbstractTableModel>
#include <array>

class PaperTable final : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    std::array<bool, 3> m_used = {true, false, true};
};
