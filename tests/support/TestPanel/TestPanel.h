// SPDX-License-Identifier: GPL-2.0-or-later
// A panel of another maker. It has only the host protocol in common with our plug-in, and shows that the dialog works
// with any panel. Each call is logged as a line in the file that TESTPANEL_LOG names.
#pragma once

#include "platform/HostProtocol.h"

#include <QPointer>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;

class TestPanel final : public bv::PrintPanel
{
public:
    explicit TestPanel(bv::PrintPanelCallback *callback);
    ~TestPanel() override;

    QString panelName() override;
    QString panelKind() override;
    QStringList supportedPPDOptionKeys() override;
    QWidget *panelView() override;
    void willShow() override;
    bool shouldHide() override;
    // Fails when the stamp's text is "odd".
    bool restoreValuesAndReturnError(QString *error) override;
    // Fails while the stamp's text is "refuse".
    bool saveValuesAndReturnError(QString *error) override;
    bv::PrintDictionary summaryInfo() override;
    // False while the stamp's text is "hold".
    bool shouldPrint() override;
    void PPDOptionKeyValueDidChange(const QString &key, const QString &ppdChoice) override;
    void constraints() override;
    void terminate() override;

private:
    void buildView();
    void openEditor();

    bv::PrintPanelCallback *m_callback;
    QPointer<QWidget> m_view;
    QComboBox *m_toner = nullptr; // owned by the view, as are the others
    QCheckBox *m_stamp = nullptr;
    QLineEdit *m_stampText = nullptr;
    QSpinBox *m_sheets = nullptr;
};

class TestPanelFactory final : public QObject, public bv::PrintPanelFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID BV_PRINT_PANEL_FACTORY_IID)
    Q_INTERFACES(bv::PrintPanelFactory)

public:
    // Fails while TESTPANEL_REFUSES_START is set.
    bool initWithBundle(const bv::PluginBundle &bundle) override;
    // One panel for the printer module, two for the type "two", none for other types.
    std::optional<std::vector<std::unique_ptr<bv::PrintPanel>>>
    PDEPanelsForType(const QString &type, bv::PrintPanelCallback *hostInfo) override;
};
