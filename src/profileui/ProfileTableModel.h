// The management window's table over one profile list: icon, names, location and the check mark of the profile menus.
#pragma once

#include "platform/ClassNames.h"

#include "profiles/ProfileList.h"

#include <QAbstractTableModel>
#include <QFont>
#include <QImage>
#include <functional>

namespace bv {

class ProfileTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { kIcon, kFileName, kProfileName, kLocation, kInMenu, kColumns };

    explicit ProfileTableModel(QObject *parent = nullptr);

    // Answers which list is the current one (borrowed, may be null).
    using ListSource = std::function<ProfileList *()>;

    // Shows the current list; the rows stand as they are stored. The source is asked at every access, so what is shown
    // and what a check mark changes is always the list that is current then. Icons are shown only when asked for.
    // Resets the model, which clears the selection: call it also after the list has changed.
    void setList(ListSource list, bool showIcons);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    // Takes Qt::CheckStateRole in the last column: a value that means true puts the profile into the menus, any other
    // takes it out. False, and nothing changed, where the state code has no other menu state (none of 1 to 6).
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    QString cellText(const ProfileRecord &record, int column) const;
    QVariant iconCell(const ProfileRecord &record, int role) const;
    QVariant checkCell(const ProfileRecord &record, int role) const;

    ListSource m_list;
    bool m_showIcons = false;
    QImage m_icon;
    QFont m_font;
};

} // namespace bv
