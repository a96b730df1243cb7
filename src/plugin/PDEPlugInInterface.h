// PDEPlugInInterface: the panel object that a print dialog drives.
#pragma once

#include "platform/ClassNames.h"

#include "plugin/MainView.h"
#include "plugin/PainChangeController.h"

#include "platform/HostProtocol.h"

class ProfileControl;

class PDEPlugInInterface : public QObject, public bv::PrintPanel
{
    Q_OBJECT

public:
    // Keeps the callback (borrowed) with its settings and session. A null callback is a panel without any of them.
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
    // Runs the rules over both panes; a call of the dialog and an action of the advanced pane's menus.
    void constraints() override;
    // Action of the Color Options pane's controls: runs the rules over that pane only.
    void selectItem();

private:
    void myLoad();
    void connectOutlets();
    void connectActions();
    bool hasViews() const { return onColorView && onAdvancedView; }

    bv::PrintPanelCallback *pdePluginCallbackObject;
    PMPrintSettings setting = nullptr;
    PMPrintSession session = nullptr;
    ppd_file_t *ppd = nullptr;
    QPointer<MainView> pdeMainView; // owned; a dialog that parents it may have taken it down with its window
    QPointer<ColorOptions> onColorView;
    QPointer<AdvancedColorOptions> onAdvancedView;
    std::unique_ptr<PainChangeController> painChange;
    std::unique_ptr<ProfileControl> profileControl;
    std::unique_ptr<PDEControlItem[]> compTable; // lives as long as the panel: the rules use it until the end
};
