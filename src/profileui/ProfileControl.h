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

    // The outlets: the advanced pane, whose ticket and menus follow this window, and the widget over whose window this
    // one stands. Both are borrowed and may be null.
    void setAdvancedColorOptions(AdvancedColorOptions *pane);
    void setParentWidget(QWidget *parent);
    // The ticket and the print session (borrowed); the session says whether the queue is on the network.
    void setPMPrint(PMPrintSettings settings, PMPrintSession session);
    // The table to which the option rules are applied after OK (borrowed; null: none).
    void setConstTable(PDEControlTable table);

    // Makes the window, in its idle state, and reads the lists.
    void initWithProfileControl();
    // The list of the class menu's item: 1 SIM, 2 DST, else RGB.
    ProfileList *currentProfileDict();
    // Whether the selected row is a profile known from the printer; false without a selected row.
    bool isCustomProfile();

public slots:
    // Opens the window and returns when it is closed.
    void showProfileManagementWindow();

    void addButton();
    void editButton();
    void deleteButton();
    void browseButton();
    // The edit area's OK: takes the entry into the list, or does nothing.
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
    // The selected row where the current list has one there; else -1.
    int selectedRow();
    void readLists();
    void reloadTable();
    void showFields(const QString &fileName, const QString &profileName);
    void enableEditArea(bool all, bool profileName);
    void enableListButtons(bool add, bool edit, bool remove);
    void setMode(Mode mode);
    void endEditing();
    void classMenuChanged();
    void selectionChanged();
    void rememberDeleted(const ProfileRecord &record);
    bool isTaken(std::string_view fileName, int32_t location, int exceptRow);
    ProfileRecord *targetOfProfileOK();
    void takeBrowsedName(const QString &fileName);
    void writeLists();
    void updateAdvancedPane();

    // One list a class as the window shows it, and the records deleted or replaced in a local queue's.
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
    QPointer<bv::ManagementWindow> m_window; // ours, or its parent window's
};
