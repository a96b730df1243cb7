// SPDX-License-Identifier: GPL-2.0-or-later
// Translates the dialog's calls into calls on the views, the controller and the rules.
#include "plugin/PDEPlugInInterface.h"

#include "colorrules/GreyedReasons.h"
#include "platform/Bundle.h"
#include "plugin/PanelLog.h"
#include "plugin/SummaryProperties.h"
#include "plugin/SwitchedOffNote.h"
#include "profiles/ProfileOperations.h"
#include "profileui/ProfileControl.h"
#include "ui_PDEMain.h"

#include <array>

namespace {

constexpr char kPanelKind[] = "vnd.brevane.pde.QL70.bvco";
constexpr int32_t kTableSlots = 5;

} // namespace

PDEPlugInInterface::PDEPlugInInterface(bv::PrintPanelCallback *callback)
    : pdePluginCallbackObject(callback), setting(callback ? callback->printSettings() : nullptr),
      session(callback ? callback->printSession() : nullptr)
{}

PDEPlugInInterface::~PDEPlugInInterface()
{
    if (painChange)
        painChange->deallocPDEControlTableEachView();
    delete pdeMainView.data();
}

void PDEPlugInInterface::myLoad()
{
    if (pdeMainView)
        return;
    _PDEProlog(this, "load the view");
    connectOutlets();
    ppd = pdePluginCallbackObject ? pdePluginCallbackObject->ppdFile() : nullptr;
    painChange->setPMPrintEachView(setting, session);
    painChange->setPPDFileEachView(ppd);
    painChange->creatPDEControlTableEachView();
    std::array<PDEControlTable, kTableSlots> tables{};
    const int32_t count = painChange->getControlDataEachView(tables.data(), kTableSlots);
    compTable = PDECommon::commonControlTableCompound(tables.data(), count);
    profileControl->setPMPrint(setting, session);
    profileControl->setConstTable(compTable.get());
    painChange->createPDEItemForPPDKeyEachView();
    bv::nameSummaryControls(compTable.get(), pdeMainView);
    connectActions();
    _PDEEpilog(this, "load the view");
}

void PDEPlugInInterface::connectOutlets()
{
    Ui::PDEMain form;
    pdeMainView = new MainView;
    form.setupUi(pdeMainView);
    switchedOff = new SwitchedOffNote(pdeMainView);
    form.layout_MainView->addWidget(switchedOff);
    form.group_Simulation->setTitle(localizedString("Simulation"));
    onColorView = form.onColorView;
    onAdvancedView = form.onAdvancedView;
    painChange = std::make_unique<PainChangeController>();
    painChange->onMainCustomView = form.onMainCustomView;
    painChange->onColorView = onColorView;
    painChange->onAdvancedView = onAdvancedView;
    profileControl = std::make_unique<ProfileControl>();
    profileControl->setAdvancedColorOptions(onAdvancedView);
    profileControl->setParentWidget(pdeMainView);
    // The form has both panes in the container, but only the Color Options pane is shown at first.
    form.onMainCustomView->layout()->removeWidget(onAdvancedView);
    onAdvancedView->hide();
}

void PDEPlugInInterface::connectActions()
{
    for (const QComboBox *menu : onColorView->findChildren<QComboBox *>())
        connect(menu, &QComboBox::activated, this, &PDEPlugInInterface::selectItem);
    for (const QCheckBox *box : onColorView->findChildren<QCheckBox *>())
        connect(box, &QCheckBox::clicked, this, &PDEPlugInInterface::selectItem);
    for (const QComboBox *menu : onAdvancedView->findChildren<QComboBox *>())
        connect(menu, &QComboBox::activated, this, &PDEPlugInInterface::constraints);

    connect(switchedOff, &SwitchedOffNote::turnedOff, this, &PDEPlugInInterface::constraints);

    const auto *toAdvanced = pdeMainView->findChild<QPushButton *>(QStringLiteral("button_AdvanceColorOptions"));
    connect(toAdvanced, &QPushButton::clicked, painChange.get(), &PainChangeController::ColorToAdvancedView);
    connect(toAdvanced, &QPushButton::clicked, this, &PDEPlugInInterface::constraints);
    const auto *toColor = pdeMainView->findChild<QPushButton *>(QStringLiteral("button_HideAdvancedOptions"));
    connect(toColor, &QPushButton::clicked, painChange.get(), &PainChangeController::AdvancedToColorView);
    const auto *manage = pdeMainView->findChild<QPushButton *>(QStringLiteral("button_ManageProfile"));
    connect(manage, &QPushButton::clicked, profileControl.get(), &ProfileControl::showProfileManagementWindow);
    const auto *download = pdeMainView->findChild<QPushButton *>(QStringLiteral("button_DownloadManager"));
    connect(download, &QPushButton::clicked, onAdvancedView.data(), &AdvancedColorOptions::downloadManagerButton);
}

QString PDEPlugInInterface::panelName()
{
    myLoad();
    return localizedString("Color Options");
}

QString PDEPlugInInterface::panelKind()
{
    myLoad();
    return QString::fromLatin1(kPanelKind);
}

QStringList PDEPlugInInterface::supportedPPDOptionKeys()
{
    myLoad();
    QStringList keys;
    if (hasViews())
        painChange->addPPDArrayEachView(&keys);
    return keys;
}

QWidget *PDEPlugInInterface::panelView()
{
    myLoad();
    if (BVPListIsAdminProfile() != 0)
        PDECommon::commonGetProfilesFromMIB(session);
    return pdeMainView;
}

void PDEPlugInInterface::willShow()
{
    if (painChange)
        painChange->ShowAdvancedToColorView();
}

bool PDEPlugInInterface::shouldHide()
{
    return true;
}

bool PDEPlugInInterface::restoreValuesAndReturnError(QString *)
{
    myLoad();
    if (hasViews())
        painChange->defaultFromPPDInfoEachView();
    if (hasViews() && setting && session)
        painChange->getControlValueFromTickettEachView();
    constraints();
    return true;
}

bool PDEPlugInInterface::saveValuesAndReturnError(QString *)
{
    if (hasViews() && setting && session)
        painChange->setControlValueToTicketEachView();
    return true;
}

bv::PrintDictionary PDEPlugInInterface::summaryInfo()
{
    myLoad();
    bv::PrintDictionary summary;
    bv::PrintArray order;
    if (hasViews() && setting && session)
        painChange->getSummaryTextEachView(&summary, &order);
    summary.setValue(QString::fromLatin1(bv::kSummaryDisplayOrder), bv::PrintValue(std::move(order)));
    return summary;
}

bool PDEPlugInInterface::shouldPrint()
{
    if (hasViews()) {
        painChange->changeAdvancedItemAccodingQuickColor();
        onAdvancedView->setControlValueToTicket();
    }
    return true;
}

void PDEPlugInInterface::PPDOptionKeyValueDidChange(const QString &, const QString &)
{
    // Does nothing: the pane does not depend on options of other panes.
}

void PDEPlugInInterface::constraints()
{
    if (!pdeMainView) // the joined table points to controls in the view
        return;
    bv::applyOptionRules(compTable.get());
    explain();
}

void PDEPlugInInterface::selectItem()
{
    if (!onColorView)
        return;
    bv::applyOptionRules(onColorView->getControlData());
    explain();
}

void PDEPlugInInterface::explain()
{
    switchedOff->update(compTable.get());
    bv::explainSummaryControls(compTable.get());
    bv::tellOverruledOptions(compTable.get(), painChange->quickColor(), painChange->economy());
}

void PDEPlugInInterface::terminate()
{
    pdePluginCallbackObject = nullptr;
}
