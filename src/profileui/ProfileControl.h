// SPDX-License-Identifier: GPL-2.0-or-later
// The profile management window: shows the three stored profile lists, edits copies of them, and writes them on OK.
#pragma once

#include "platform/ClassNames.h"

#include "common/PDEControlItem.h"
#include "platform/PrintSettings.h"
#include "profiles/ProfileList.h"

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <string_view>

class AdvancedColorOptions;

namespace bv {
class ManagementWindow;
}

class ProfileControl : public QObject
{
    Q_OBJECT

public:
    explicit ProfileControl(QObject *parent = nullptr);
    ~ProfileControl() override;

    // The advanced pane, whose ticket and menus are updated after OK, and a widget of the parent window. Both are
    // borrowed and may be null.
    void setAdvancedColorOptions(AdvancedColorOptions *pane);
    void setParentWidget(QWidget *parent);
    // The ticket and the print session, both borrowed. The session tells whether the queue is on the network.
    void setPMPrint(PMPrintSettings settings, PMPrintSession session);
    // The table that the option rules are applied to after OK. Borrowed; null: no rules are applied.
    void setConstTable(PDEControlTable table);

    // Creates the window in its idle state and reads the lists.
    void initWithProfileControl();
    // The list that the class menu selects: 1 SIM, 2 DST, else RGB.
    ProfileList *currentProfileDict();
    // Whether the selected row is a profile known from the printer. False when no row is selected.
    bool isCustomProfile();

public slots:
    // Opens the window and returns when it is closed.
    void showProfileManagementWindow();

    void addButton();
    void editButton();
    void deleteButton();
    void browseButton();
    // The edit area's OK. Takes the entry into the list; an invalid entry is ignored without a message.
    void profileOK();
    void profileCancel();
    // The window's OK: writes the lists, brings the advanced pane up to date, closes the window.
    void profileWindowOK();
    void profileWindowCancel();

private:
    enum Mode { kIdle = 0, kAdding = 1, kEditing = 2 };

    void makeWindow();
    void connectControls();
    void escape();
    bool isLocalQueue() const;
    ProfileList *currentDeleteDict();
    // The selected row, or -1 when none is selected or the current list is shorter.
    int selectedRow();
    void readLists();
    void reloadTable();
    void showFields(const QString &fileName, const QString &profileName);
    void enableEditArea(bool all, bool profileName);
    void enableListButtons(bool add, bool edit, bool remove);
    void setMode(Mode mode);
    // Brings the window's hints up to date.
    void explain(bool discarded = false);
    // Why profileOK would ignore the entry. Empty: it would take it.
    QString entryProblem();
    void endEditing();
    void classMenuChanged();
    void selectionChanged();
    void rememberDeleted(const ProfileRecord &record);
    bool isTaken(std::string_view fileName, int32_t location, int exceptRow);
    ProfileRecord *targetOfProfileOK();
    void takeBrowsedName(const QString &fileName);
    void writeLists();
    void updateAdvancedPane();

    // One list for each class, as the window shows it. For local queues also the records that were deleted or replaced.
    ProfileList plistRGBDict{};
    ProfileList plistSIMDict{};
    ProfileList plistDSTDict{};
    ProfileList plistRGBDelete{};
    ProfileList plistSIMDDelete{};
    ProfileList plistDSTDelete{};
    int32_t protocolType = -1;      // the queue's kind of connection
    int32_t buttonIdentify = kIdle; // a Mode

    QPointer<AdvancedColorOptions> m_advanced;
    QPointer<QWidget> m_parentWidget;
    PMPrintSettings m_settings = nullptr;
    PMPrintSession m_session = nullptr;
    PDEControlTable m_constTable = nullptr;
    QPointer<bv::ManagementWindow> m_window; // owned; its parent window may destroy it first
};
