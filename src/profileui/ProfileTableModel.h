// SPDX-License-Identifier: GPL-2.0-or-later
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

    // Returns the current list (borrowed, may be null).
    using ListSource = std::function<ProfileList *()>;

    // Shows the current list in its stored order. The source is asked at every access, so the model always shows and
    // changes the list that is current at that moment. Resets the model, which clears the selection. Call it again
    // after the list has changed.
    void setList(ListSource list, bool showIcons);

    // The icon of profiles that are on the printer; null where its file is missing.
    const QImage &icon() const { return m_icon; }
    // The font of the texts: 12 points, or the user's own size where that is larger.
    const QFont &font() const { return m_font; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    // Accepts Qt::CheckStateRole in the last column. A value that means true puts the profile into the menus; any other
    // value takes it out. Returns false and changes nothing if the record's state code is not 1 to 6.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    QString cellText(const ProfileRecord &record, int column) const;
    // File, place, and what the printer said of it.
    QString rowTip(const ProfileRecord &record) const;
    QVariant iconCell(const ProfileRecord &record, int role) const;
    QVariant checkCell(const ProfileRecord &record, int role) const;

    ListSource m_list;
    bool m_showIcons = false;
    QImage m_icon;
    QFont m_font;
};

} // namespace bv
