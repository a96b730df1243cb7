// SPDX-License-Identifier: GPL-2.0-or-later
// PDEPlugInInterface: the panel object that a print dialog drives.
#pragma once

#include "platform/ClassNames.h"

#include "plugin/MainView.h"
#include "plugin/PainChangeController.h"

#include "platform/HostProtocol.h"

class ProfileControl;

class SwitchedOffNote;

class PDEPlugInInterface : public QObject, public bv::PrintPanel
{
    Q_OBJECT

public:
    // The callback, its settings and its session are borrowed. With a null callback the panel has none of them.
    explicit PDEPlugInInterface(bv::PrintPanelCallback *callback);
    ~PDEPlugInInterface() override;

    QString panelName() override;
    QString panelKind() override;
    QStringList supportedPPDOptionKeys() override;
    QWidget *panelView() override;
    void willShow() override;
    bool shouldHide() override;
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    bv::PrintDictionary summaryInfo() override;
    bool shouldPrint() override;
    void PPDOptionKeyValueDidChange(const QString &key, const QString &ppdChoice) override;
    void terminate() override;

public slots:
    // Runs the rules over both panes. Called by the dialog and by the advanced pane's menus.
    void constraints() override;
    // Runs the rules over the Color Options pane only. Called by that pane's controls.
    void selectItem();

private:
    void myLoad();
    void connectOutlets();
    void connectActions();
    // Tells users and dialog what the choices mean for the controls.
    void explain();
    bool hasViews() const { return onColorView && onAdvancedView; }

    bv::PrintPanelCallback *pdePluginCallbackObject;
    PMPrintSettings setting = nullptr;
    PMPrintSession session = nullptr;
    ppd_file_t *ppd = nullptr;
    QPointer<MainView> pdeMainView;         // owned; null once a dialog has destroyed it with its window
    SwitchedOffNote *switchedOff = nullptr; // in the view
    QPointer<ColorOptions> onColorView;
    QPointer<AdvancedColorOptions> onAdvancedView;
    std::unique_ptr<PainChangeController> painChange;
    std::unique_ptr<ProfileControl> profileControl;
    std::unique_ptr<PDEControlItem[]> compTable; // lives as long as the panel, because the rules use it
};
