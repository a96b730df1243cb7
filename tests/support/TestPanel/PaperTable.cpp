// SPDX-License-Identifier: GPL-2.0-or-later
// The model of the test panel's table.
#include "PaperTable.h"

#include "platform/HostProtocol.h"

namespace {

constexpr std::array<const char *, 3> kIdentifiers = {"icon", "paper", "used"};
constexpr std::array<const char *, 3> kPapers = {"Plain", "Thick", "Film"};

} // namespace

int PaperTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(kPapers.size());
}

int PaperTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(kIdentifiers.size());
}

QVariant PaperTable::data(const QModelIndex &index, int role) const
{
    const auto row = static_cast<size_t>(index.row());
    if (index.column() == 0 && role == bv::kIconShownRole)
        return row == 1;
    if (index.column() == 1 && role == Qt::DisplayRole)
        return QString::fromLatin1(kPapers[row]);
    if (index.column() == 2 && role == Qt::CheckStateRole)
        return m_used[row] ? Qt::Checked : Qt::Unchecked;
    return {};
}

bool PaperTable::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (index.column() != 2 || role != Qt::CheckStateRole)
        return false;
    m_used[static_cast<size_t>(index.row())] = value.toInt() == Qt::Checked;
    emit dataChanged(index, index);
    return true;
}

QVariant PaperTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == bv::kColumnIdentifierRole)
        return QString::fromLatin1(kIdentifiers[static_cast<size_t>(section)]);
    return QAbstractTableModel::headerData(section, orientation, role);
}

Qt::ItemFlags PaperTable::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    // The check mark of the last paper cannot be changed.
    return index.column() == 2 && index.row() != 2 ? flags | Qt::ItemIsUserCheckable : flags;
}
