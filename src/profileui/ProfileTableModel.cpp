// SPDX-License-Identifier: GPL-2.0-or-later
// Cells of the management window's table.
#include "profileui/ProfileTableModel.h"

#include "platform/Bundle.h"
#include "platform/HostProtocol.h"
#include "platform/PlainTip.h"
#include "platform/RootPath.h"
#include "profiles/MenuState.h"

#include <QFontDatabase>

#include <algorithm>
#include <array>

namespace bv {

namespace {

constexpr char kIconPath[] = "/Library/Printers/BREVANE/QL70/Icons/fileExistqnQL70.icns";
constexpr int kTextPoints = 12;

struct ColumnRow
{
    const char *identifier; // name of the column for scripts
    const char *title;      // localisation key
};

// clang-format off
constexpr std::array<ColumnRow, ProfileTableModel::kColumns> kColumnRows = {{
    {"icon",        "On Printer"},
    {"filename",    "File Name"},
    {"profilename", "Profile Name"},
    {"location",    "Location"},
    {"inmenu",      "In Menu"},
}};
// clang-format on

QString textOf(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

// Whether a value means true: the boolean, a number other than 0, Qt::Checked.
bool meansTrue(const QVariant &value)
{
    return value.toBool() || value.toInt() != 0;
}

// Empty for an unknown location.
QString storageName(int32_t location)
{
    const ProfileStorage *storage = profileStorage(location);
    return storage ? localizedString(storage->name) : QString();
}

} // namespace

ProfileTableModel::ProfileTableModel(QObject *parent)
    : QAbstractTableModel(parent), m_icon(QString::fromStdString(mapRootPath(kIconPath))),
      m_font(QFontDatabase::systemFont(QFontDatabase::GeneralFont))
{
    m_font.setPointSizeF(std::max<qreal>(kTextPoints, m_font.pointSizeF()));
}

void ProfileTableModel::setList(ListSource list, bool showIcons)
{
    beginResetModel();
    m_list = std::move(list);
    m_showIcons = showIcons;
    endResetModel();
}

int ProfileTableModel::rowCount(const QModelIndex &parent) const
{
    const ProfileList *list = m_list ? m_list() : nullptr;
    return list && !parent.isValid() ? std::clamp(list->count, 0, kProfileSlots) : 0;
}

int ProfileTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : kColumns;
}

QString ProfileTableModel::cellText(const ProfileRecord &record, int column) const
{
    switch (column) {
    case kFileName:
        return textOf(fieldText(record.FileName));
    case kProfileName:
        return textOf(fieldText(record.ProfileName));
    case kLocation:
        return storageName(record.Location);
    default:
        return {};
    }
}

QString ProfileTableModel::rowTip(const ProfileRecord &record) const
{
    QStringList place = {textOf(fieldText(record.FileName)), storageName(record.Location)};
    place.removeAll(QString());
    const char *said = isOnPrinter(record.InMenu)     ? "The printer reported this profile when it was last asked"
                       : isFromPrinter(record.InMenu) ? "The printer did not report this profile when it was last asked"
                                                      : "Entered by hand";
    return textOf(fieldText(record.ProfileName)) + u'\n' + place.join(QStringLiteral(", ")) + u'\n' +
           localizedString(said);
}

QVariant ProfileTableModel::iconCell(const ProfileRecord &record, int role) const
{
    // The record alone decides whether the icon is shown. The image file may still be missing.
    const bool shown = m_showIcons && isOnPrinter(record.InMenu);
    switch (role) {
    case kIconShownRole:
        return shown;
    case Qt::DecorationRole:
        return shown && !m_icon.isNull() ? QVariant(m_icon) : QVariant();
    case Qt::AccessibleTextRole:
        return localizedString(shown ? "On the printer" : "Not on the printer");
    default:
        return {};
    }
}

QVariant ProfileTableModel::checkCell(const ProfileRecord &record, int role) const
{
    switch (role) {
    case Qt::CheckStateRole:
        return isInMenu(record.InMenu) ? Qt::Checked : Qt::Unchecked;
    case Qt::AccessibleTextRole:
        return localizedString(isInMenu(record.InMenu) ? "Shown in the menus" : "Not shown in the menus");
    default:
        return {};
    }
}

QVariant ProfileTableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const ProfileRecord &record = m_list()->records[index.row()];
    if (role == Qt::ToolTipRole)
        return plainTip(rowTip(record));
    if (index.column() == kIcon)
        return iconCell(record, role);
    if (index.column() == kInMenu)
        return checkCell(record, role);
    switch (role) {
    case Qt::DisplayRole:
        return cellText(record, index.column());
    case Qt::FontRole:
        return m_font;
    default:
        return {};
    }
}

bool ProfileTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != kInMenu || role != Qt::CheckStateRole || index.row() >= rowCount())
        return false;
    ProfileRecord &record = m_list()->records[index.row()];
    if (isInMenu(record.InMenu) == meansTrue(value))
        return true;
    const int32_t other = flippedInMenu(record.InMenu);
    if (other == record.InMenu)
        return false;
    record.InMenu = other;
    emit dataChanged(index, index, {role, Qt::AccessibleTextRole});
    return true;
}

QVariant ProfileTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= kColumns)
        return {};
    const ColumnRow &column = kColumnRows[static_cast<size_t>(section)];
    if (role == kColumnIdentifierRole)
        return QString::fromLatin1(column.identifier);
    // The icon's column is too narrow for a title. Screen readers and tool tips still get it.
    if (role == Qt::AccessibleTextRole || role == Qt::ToolTipRole || (role == Qt::DisplayRole && section != kIcon))
        return localizedString(column.title);
    return {};
}

Qt::ItemFlags ProfileTableModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return index.column() == kInMenu ? flags | Qt::ItemIsUserCheckable : flags;
}

} // namespace bv
