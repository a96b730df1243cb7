// The management window's table over one profile list: icon, names, location and the check mark of the profile menus.
#pragma once

#include "profiles/ProfileList.h"

#include <QAbstractTableModel>
#include <QFont>
#include <QImage>

namespace bv {

class ProfileTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { kIcon, kFileName, kProfileName, kLocation, kInMenu, kColumns };

    explicit ProfileTableModel(QObject *parent = nullptr);

    // Shows another list (borrowed, may be null) or the same one after a change; the rows stand as they are stored.
    // Icons are shown only when asked for. Resets the model, which clears the selection.
    void setList(ProfileList *list, bool showIcons);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    // Takes Qt::CheckStateRole in the last column: puts the profile into the profile menus or takes it out.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    QString cellText(const ProfileRecord &record, int column) const;
    QVariant iconCell(const ProfileRecord &record, int role) const;
    QVariant checkCell(const ProfileRecord &record, int role) const;

    ProfileList *m_list = nullptr;
    bool m_showIcons = false;
    QImage m_icon;
    QFont m_font;
};

} // namespace bv
