// SPDX-License-Identifier: GPL-2.0-or-later
// The modes of the management window: opening, selecting, editing, closing.
#include "profileui/ProfileControl.h"

#include "colorrules/AdvancedColorOptions.h"
#include "colorrules/GreyedReasons.h"
#include "common/PDECommon.h"
#include "discovery/ProtocolCodes.h"
#include "platform/Bundle.h"
#include "platform/Log.h"
#include "platform/RootPath.h"
#include "profiles/MenuState.h"
#include "profiles/ProfileOperations.h"
#include "profileui/KeyFilters.h"
#include "profileui/ManagementWindow.h"
#include "profileui/ProfileTableModel.h"
#include "profileui/WindowHints.h"

#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>

namespace {

// The folder in which browsing for a profile starts.
constexpr char kBrowseFolder[] = "/Library/Printers/BREVANE/QL70/Profiles";

constexpr uint32_t kFileNameLimit = 31;
constexpr uint32_t kExtensionLimit = 3;
constexpr uint32_t kProfileNameLimit = 30;

// Initial values of a new entry. Its index in the printer's table is kFirstOwnIndex plus its slot.
constexpr int32_t kFirstOwnIndex = 500;
constexpr int32_t kNewProfileClass = 2;
constexpr int32_t kNewAvailability = 3;

QString textOf(const char (&field)[kProfileTextBytes])
{
    const std::string_view text = bv::fieldText(field);
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

void setField(char (&field)[kProfileTextBytes], const QString &text)
{
    bv::setFieldText(field, text.toStdString());
}

// Whether the name of a browsed file may be put into the file name field.
bool isUsableFileName(const QString &name)
{
    if (name.size() > static_cast<qsizetype>(kFileNameLimit) || name.count(u'.') > 1)
        return false;
    QString accepted = name;
    CheckUniCharString(reinterpret_cast<const char16_t *>(name.utf16()), static_cast<uint32_t>(name.size()),
                       kFilterFileName, &accepted);
    return accepted == name;
}

} // namespace

ProfileControl::ProfileControl(QObject *parent) : QObject(parent) {}

ProfileControl::~ProfileControl()
{
    delete m_window;
}

void ProfileControl::setAdvancedColorOptions(AdvancedColorOptions *pane)
{
    m_advanced = pane;
}

void ProfileControl::setParentWidget(QWidget *parent)
{
    m_parentWidget = parent;
}

void ProfileControl::setPMPrint(PMPrintSettings settings, PMPrintSession session)
{
    m_settings = settings;
    m_session = session;
}

void ProfileControl::setConstTable(PDEControlTable table)
{
    m_constTable = table;
}

bool ProfileControl::isLocalQueue() const
{
    return bv::isLocalProtocol(protocolType);
}

// ---- Opening and closing ----

void ProfileControl::showProfileManagementWindow()
{
    initWithProfileControl();
    m_window->setWindowTitle(localizedString("ProfileTitle"));
    m_window->exec();
}

void ProfileControl::makeWindow()
{
    QWidget *parent = m_parentWidget ? m_parentWidget->window() : nullptr;
    if (m_window && m_window->parentWidget() == parent)
        return;
    delete m_window;
    m_window = new bv::ManagementWindow(parent);
    connectControls();
}

void ProfileControl::connectControls()
{
    const Ui::ProfileManagement &c = m_window->controls;
    connect(c._profileMenu, &QComboBox::activated, this, &ProfileControl::classMenuChanged);
    connect(c._profileTableView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ProfileControl::selectionChanged);
    connect(c._addButton, &QPushButton::clicked, this, &ProfileControl::addButton);
    connect(c._editButton, &QPushButton::clicked, this, &ProfileControl::editButton);
    connect(c._deleteButton, &QPushButton::clicked, this, &ProfileControl::deleteButton);
    connect(c._browse, &QPushButton::clicked, this, &ProfileControl::browseButton);
    connect(c._localOK, &QPushButton::clicked, this, &ProfileControl::profileOK);
    connect(c._localCancel, &QPushButton::clicked, this, &ProfileControl::profileCancel);
    connect(c._windowOK, &QPushButton::clicked, this, &ProfileControl::profileWindowOK);
    connect(c._windowCancel, &QPushButton::clicked, this, &ProfileControl::profileWindowCancel);
    connect(c._fileNameEdit, &QLineEdit::textChanged, this, [this] { explain(); });
    connect(c._locationMenu, &QComboBox::currentIndexChanged, this, [this] { explain(); });
    connect(m_window, &bv::ManagementWindow::escapePressed, this, &ProfileControl::escape);
}

void ProfileControl::initWithProfileControl()
{
    makeWindow();
    const Ui::ProfileManagement &c = m_window->controls;
    setMode(kIdle);
    if (m_advanced)
        m_advanced->setControlValueToTicket();
    protocolType = PDECommon::commoniGetProtocol(m_session);

    c._locationMenu->clear();
    for (const bv::ProfileStorage &storage : bv::kProfileStorages)
        c._locationMenu->addItem(localizedString(storage.name), storage.location);
    c._profileMenu->setCurrentIndex(kProfileRGB);
    c._profileMenu->setEnabled(true);
    c._fileNameEdit->setMaxLength(kFileNameLimit, kExtensionLimit);
    c._fileNameEdit->setInputKey(kFilterFileName);
    c._fileNameEdit->setOperateControl(c._localOK);
    c._profileNameEdit->setMaxLength(kProfileNameLimit, 0);
    c._profileNameEdit->setInputKey(kFilterAscii);

    readLists();
    showFields({}, {});
    enableEditArea(false, false);
    enableListButtons(true, false, false);
    reloadTable();
    c._profileMenu->setFocus();
}

void ProfileControl::readLists()
{
    for (ProfileList *list :
         {&plistRGBDict, &plistSIMDict, &plistDSTDict, &plistRGBDelete, &plistSIMDDelete, &plistDSTDelete})
        *list = {};
    const auto read = isLocalQueue() ? BVPListReadProfile_Dict_Pap : BVPListReadProfile_Dict;
    read(&plistRGBDict, kProfileRGB);
    read(&plistSIMDict, kProfileSIM);
    read(&plistDSTDict, kProfileDST);
}

void ProfileControl::profileWindowOK()
{
    writeLists();
    updateAdvancedPane();
    m_window->accept();
}

void ProfileControl::profileWindowCancel()
{
    m_window->reject();
}

void ProfileControl::writeLists()
{
    const int32_t result = isLocalQueue()
                               ? BVPListWriteProfile_All_Pap(&plistRGBDict, &plistSIMDict, &plistDSTDict,
                                                             &plistRGBDelete, &plistSIMDDelete, &plistDSTDelete)
                               : BVPListWriteProfile_All(&plistRGBDict, &plistSIMDict, &plistDSTDict);
    if (result != noErr)
        bv::diagnosticLine("profile management: the lists were not written", bv::LogSubject::ListsNotWritten);
}

void ProfileControl::updateAdvancedPane()
{
    // The menus show what the file holds, also when writing it failed.
    if (m_advanced) {
        m_advanced->rebuildProfileItems();
        m_advanced->getControlValueFromTicket();
    }
    if (m_constTable)
        bv::applyOptionRules(m_constTable);
}

void ProfileControl::escape()
{
    if (buttonIdentify == kIdle)
        profileWindowCancel();
    else
        profileCancel();
}

// ---- Table and selection ----

ProfileList *ProfileControl::currentProfileDict()
{
    switch (m_window ? m_window->controls._profileMenu->currentIndex() : kProfileRGB) {
    case kProfileSIM:
        return &plistSIMDict;
    case kProfileDST:
        return &plistDSTDict;
    default:
        return &plistRGBDict;
    }
}

ProfileList *ProfileControl::currentDeleteDict()
{
    const ProfileList *current = currentProfileDict();
    return current == &plistSIMDict ? &plistSIMDDelete : current == &plistDSTDict ? &plistDSTDelete : &plistRGBDelete;
}

int ProfileControl::selectedRow()
{
    const int row = m_window ? m_window->controls._profileTableView->selectedRow() : -1;
    return row < std::min(currentProfileDict()->count, kProfileSlots) ? row : -1;
}

bool ProfileControl::isCustomProfile()
{
    const int row = selectedRow();
    return row >= 0 && bv::isFromPrinter(currentProfileDict()->records[row].InMenu);
}

void ProfileControl::reloadTable()
{
    m_window->model->setList([this] { return currentProfileDict(); }, !isLocalQueue());
    m_window->hints->explainIcon(!isLocalQueue());
    m_window->controls._profileTableView->deselectRow();
    m_window->controls._profileTableView->fitColumns();
}

void ProfileControl::classMenuChanged()
{
    showFields({}, {});
    enableListButtons(true, false, false);
    reloadTable();
}

void ProfileControl::selectionChanged()
{
    if (buttonIdentify != kIdle)
        return;
    const int row = selectedRow();
    if (row < 0) {
        showFields({}, {});
        enableListButtons(true, false, false);
        return;
    }
    const ProfileRecord &record = currentProfileDict()->records[row];
    const bool onPrinter = bv::isOnPrinter(record.InMenu);
    showFields(textOf(record.FileName), textOf(record.ProfileName));
    // An unknown location leaves the menu unchanged.
    if (const int item = m_window->controls._locationMenu->findData(record.Location); item >= 0)
        m_window->controls._locationMenu->setCurrentIndex(item);
    enableListButtons(true, true, !onPrinter);
}

void ProfileControl::showFields(const QString &fileName, const QString &profileName)
{
    m_window->controls._fileNameEdit->putText(fileName);
    m_window->controls._profileNameEdit->putText(profileName);
}

void ProfileControl::enableEditArea(bool all, bool profileName)
{
    const Ui::ProfileManagement &c = m_window->controls;
    for (QWidget *control : std::initializer_list<QWidget *>{c._fileNameText, c._fileNameEdit, c._browse,
                                                             c._locationText, c._locationMenu})
        control->setEnabled(all);
    for (QWidget *control :
         std::initializer_list<QWidget *>{c._profileNameText, c._profileNameEdit, c._localOK, c._localCancel})
        control->setEnabled(all || profileName);
}

void ProfileControl::enableListButtons(bool add, bool edit, bool remove)
{
    const Ui::ProfileManagement &c = m_window->controls;
    c._addButton->setEnabled(add);
    c._editButton->setEnabled(edit);
    c._deleteButton->setEnabled(remove);
    explain();
}

void ProfileControl::setMode(Mode mode)
{
    buttonIdentify = mode;
    m_window->controls._profileTableView->setSelectionHeld(mode != kIdle);
    m_window->setReturnConfirmsEntry(mode != kIdle);
    explain();
}

QString ProfileControl::entryProblem()
{
    const Ui::ProfileManagement &c = m_window->controls;
    const bool editing = buttonIdentify == kEditing;
    const int32_t location = c._locationMenu->currentData().toInt();
    if (isTaken(c._fileNameEdit->text().toStdString(), location, editing ? selectedRow() : -1))
        return localizedString("Entry: this file is in the list already");
    if (!editing && currentProfileDict()->count >= kProfileSlots)
        return localizedString("Entry: the list is full");
    return {};
}

void ProfileControl::explain(bool discarded)
{
    const int row = selectedRow();
    bv::EntryState state;
    state.underWay = buttonIdentify != kIdle;
    state.discarded = discarded;
    state.onPrinter = row >= 0 && bv::isOnPrinter(currentProfileDict()->records[row].InMenu);
    if (state.underWay)
        state.problem = entryProblem();
    m_window->hints->show(state);
}

// ---- Adding, editing, deleting ----

void ProfileControl::addButton()
{
    const Ui::ProfileManagement &c = m_window->controls;
    setMode(kAdding);
    showFields({}, {});
    c._profileMenu->setEnabled(false);
    enableListButtons(false, false, false);
    enableEditArea(true, true);
    // The file name field enables this button once its text is usable.
    c._localOK->setEnabled(false);
    c._fileNameEdit->setFocus();
}

void ProfileControl::editButton()
{
    const Ui::ProfileManagement &c = m_window->controls;
    if (selectedRow() < 0)
        return;
    const bool onlyName = isCustomProfile();
    setMode(kEditing);
    c._profileMenu->setEnabled(false);
    enableListButtons(false, false, false);
    enableEditArea(!onlyName, true);
    (onlyName ? c._profileNameEdit : c._fileNameEdit)->setFocus();
}

void ProfileControl::endEditing()
{
    const Ui::ProfileManagement &c = m_window->controls;
    // Moves the focus to the table first. Disabling the edit area would pass it to the next control.
    c._profileTableView->setFocus();
    setMode(kIdle);
    c._profileMenu->setEnabled(true);
    showFields({}, {});
    enableEditArea(false, false);
    enableListButtons(true, false, false);
    reloadTable();
}

void ProfileControl::profileCancel()
{
    endEditing();
    explain(true);
}

bool ProfileControl::isTaken(std::string_view fileName, int32_t location, int exceptRow)
{
    const ProfileList *list = currentProfileDict();
    for (int row = 0; row < std::min(list->count, kProfileSlots); ++row) {
        const ProfileRecord &record = list->records[row];
        if (row != exceptRow && record.Location == location && bv::fieldText(record.FileName) == fileName)
            return true;
    }
    return false;
}

ProfileRecord *ProfileControl::targetOfProfileOK()
{
    ProfileList *list = currentProfileDict();
    if (buttonIdentify == kEditing) {
        ProfileRecord *edited = &list->records[selectedRow()];
        rememberDeleted(*edited);
        return edited;
    }
    ProfileRecord *end = std::end(list->records);
    ProfileRecord *free =
        std::find_if(list->records, end, [](const ProfileRecord &r) { return !bv::isUsed(r.InMenu); });
    return free == end ? nullptr : free;
}

void ProfileControl::profileOK()
{
    const Ui::ProfileManagement &c = m_window->controls;
    const int row = selectedRow();
    if (buttonIdentify == kIdle || (buttonIdentify == kEditing && row < 0))
        return;
    const QString fileName = c._fileNameEdit->text();
    if (fileName.isEmpty() || fileName.startsWith(u'.'))
        return;
    const int32_t location = c._locationMenu->currentData().toInt();
    if (isTaken(fileName.toStdString(), location, buttonIdentify == kEditing ? row : -1))
        return;
    ProfileRecord *target = targetOfProfileOK();
    if (!target)
        return;

    const bool allFields = !bv::isFromPrinter(target->InMenu);
    if (allFields)
        setField(target->FileName, fileName);
    setField(target->ProfileName, c._profileNameEdit->text());
    if (allFields)
        target->Location = location;
    if (buttonIdentify == kAdding) {
        ProfileList *list = currentProfileDict();
        target->IndexOnDevice = static_cast<int32_t>(target - list->records) + kFirstOwnIndex;
        target->InMenu = bv::kOwnInMenu;
        target->ProfileClass = kNewProfileClass;
        target->Availability = kNewAvailability;
        ++list->count;
    }
    endEditing();
}

void ProfileControl::rememberDeleted(const ProfileRecord &record)
{
    ProfileList *deleted = currentDeleteDict();
    if (isLocalQueue() && deleted->count < kProfileSlots)
        deleted->records[deleted->count++] = record;
}

void ProfileControl::deleteButton()
{
    const Ui::ProfileManagement &c = m_window->controls;
    const int row = selectedRow();
    c._profileTableView->setFocus();
    enableListButtons(true, false, false);
    enableEditArea(false, false);
    if (row < 0)
        return;
    ProfileList *list = currentProfileDict();
    rememberDeleted(list->records[row]);
    std::copy(list->records + row + 1, std::end(list->records), list->records + row);
    // Marks the last slot as free. Its other fields are left as they are.
    list->records[kProfileSlots - 1].InMenu = bv::kFreeSlot;
    --list->count;
    showFields({}, {});
    reloadTable();
}

// ---- Browsing ----

void ProfileControl::browseButton()
{
    const QString folder = QString::fromStdString(bv::mapRootPath(kBrowseFolder));
    // The parent window may be destroyed while the panel is open, and destroys the panel with it.
    const QPointer<QFileDialog> panel(new QFileDialog(m_window, localizedString("Choose a Profile"), folder));
    panel->setOption(QFileDialog::DontUseNativeDialog);
    panel->setFileMode(QFileDialog::ExistingFile);
    const bool chosen = panel->exec() == QDialog::Accepted;
    if (!panel)
        return;
    if (chosen && !panel->selectedFiles().isEmpty())
        takeBrowsedName(QFileInfo(panel->selectedFiles().constFirst()).fileName());
    delete panel;
}

void ProfileControl::takeBrowsedName(const QString &fileName)
{
    const Ui::ProfileManagement &c = m_window->controls;
    c._fileNameEdit->setFocus();
    c._fileNameEdit->putText({});
    c._localOK->setEnabled(false);
    // Intended: a browsed name may have 31 units without a dot. Typing allows fewer, to leave room for the extension.
    if (!isUsableFileName(fileName))
        return;
    c._fileNameEdit->putText(fileName);
    c._localOK->setEnabled(true);
}
